#pragma once

namespace zeb {

/// Raises a failure of the font readers by its key. Never returns.
[[noreturn]] void ThrowFontError(const wchar_t* key);
/// The same with a text behind the message.
[[noreturn]] void ThrowFontError(const wchar_t* key, const wchar_t* additionalText);

}  // namespace zeb
