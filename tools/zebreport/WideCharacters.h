#pragma once

namespace zebreport {

/// Whether terminals give a character two columns, as they do for East Asian ones. A half of a surrogate pair is narrow,
/// so that both together have the width of most characters behind them.
bool IsWide(wchar_t character);

}  // namespace zebreport
