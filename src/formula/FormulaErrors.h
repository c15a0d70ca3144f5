#pragma once

namespace zeb {

/// Raises a failure of the formula language by its key. Never returns.
[[noreturn]] void ThrowFormulaError(const wchar_t* key);

}  // namespace zeb
