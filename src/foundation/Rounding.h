#pragma once

#include "platform/Export.h"

#include <string>

// Rounding of the formula language, and texts of numbers for display.

/// The number with 15 significant digits under the current numeric locale, without trailing zeros. Values above 1E15
/// have 15 decimals before the cut; zero, a NaN and the infinities are printed as such numbers are.
ZEB_EXPORT std::wstring DoubleToStringFullPrecision(double value);

/// Writes the number with `digits` decimals, rounded to the nearest, and with groups of three integer digits.
/// Expects the numeric locale "C". A separator that is NUL ends the text at its place.
/// @param digits number of decimals; a negative number writes an integer
/// @param buffer the caller's, large enough: 420 characters hold every value with 6 decimals, and each decimal
///               beyond takes one more
ZEB_EXPORT void FormatDouble(double value, int digits, wchar_t* buffer, wchar_t decimalSeparator,
                             wchar_t thousandsSeparator);

/// The number that FormatDouble wrote with these separators; 0.0 for a null or empty text and for one without a number.
/// Expects the numeric locale "C".
ZEB_EXPORT double ReFormatDouble(const wchar_t* text, wchar_t decimalSeparator, wchar_t thousandsSeparator);

/// Rounds ("runden") as the formula language does: a value within 1e-14 of its own size of a rounded one counts as
/// rounded and comes back as it is; so does one with no digits to round, and an infinity. A NaN gives 0.0.
/// @param digits decimal places, or significant digits if `decimalPlaces` is false
/// @param mode 0 towards plus infinity, 1 to the nearest with ties away from zero, 2 towards minus infinity;
///             any other gives 0.0 where rounding is due
ZEB_EXPORT double RundeDouble(double value, int digits, int mode, bool decimalPlaces);

/// An amount of money in the capital numerals of Chinese financial documents, with yuan, jiao and fen.
/// A character that is no digit, as a minus sign, takes a digit's place as a NUL character.
/// Leaves the numeric locale at the user's default, as every CSetLocaleSwitch does.
ZEB_EXPORT std::wstring NumberToText(double value);
