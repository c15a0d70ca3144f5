#pragma once

#include "platform/Export.h"

// Conversions between numbers and text, the unit conversion of lengths, and the scoped numeric locale.
//
// Every file of the system prints and scans its numbers with these functions. Functions with a `wchar_t*`
// result write a terminated text into the caller's buffer; no length is checked and a null buffer is not
// supported (64 characters hold any `int`, 400 any `float`, 350 any `double` with six decimals).
// The decimal mark is that of the process's numeric locale at the moment of the call: see CSetLocaleSwitch.

/// Sets the process's numeric locale (`LC_NUMERIC`) to "C" for a scope. On leaving the scope the locale is
/// always the user's default (""), whatever it was before. The switch changes a process-wide setting.
class ZEB_EXPORT CSetLocaleSwitch {
 public:
  CSetLocaleSwitch();
  /// Touches no locale.
  CSetLocaleSwitch(const CSetLocaleSwitch& other);
  // Fixed behaviour: ends in the user's default locale; there is no saving, restoring or nesting.
  virtual ~CSetLocaleSwitch();
  /// Copies nothing and touches no locale.
  CSetLocaleSwitch& operator=(const CSetLocaleSwitch& other);
};

/// Writes "1" for true and "0" for false.
ZEB_EXPORT void BoolToString(bool value, wchar_t* buffer);
/// Writes the number in decimal ("%d").
ZEB_EXPORT void IntToString(int value, wchar_t* buffer);
/// Writes the number in decimal ("%d").
ZEB_EXPORT void UShortToString(unsigned short value, wchar_t* buffer);
/// Writes six decimals and cuts trailing zeros but for one digit behind the point: 2 becomes `2.0`.
ZEB_EXPORT void DoubleToString(double value, wchar_t* buffer);
/// As DoubleToString, of the value widened to double.
ZEB_EXPORT void FloatToString(float value, wchar_t* buffer);
/// Writes `digits` decimals, none for a negative count; nothing is cut.
ZEB_EXPORT void DoubleToStringFormat(double value, wchar_t* buffer, int digits);

/// The integer that the text begins with, 0 if it begins with none.
ZEB_EXPORT int StringToInt(const wchar_t* text);
/// The low 16 bits of StringToInt: -1 gives 65535.
ZEB_EXPORT unsigned short StringToUShort(const wchar_t* text);
/// Whether StringToInt is not 0: `2` is true, `true` is false.
ZEB_EXPORT bool StringToBool(const wchar_t* text);
/// The number that the text begins with, 0.0 if it begins with none.
ZEB_EXPORT double StringToDouble(const wchar_t* text);
/// The number that the text begins with, 0.0f if it begins with none.
ZEB_EXPORT float StringToFloat(const wchar_t* text);

/// Millimetres to PDF points (1/72 inch), in single precision, division first.
ZEB_EXPORT float MMToPDF(float millimetres);
/// PDF points (1/72 inch) to millimetres, in single precision, multiplication first.
ZEB_EXPORT float PDFToMM(float points);

/// 0 for a finite value, -1 for a NaN and for either infinity.
ZEB_EXPORT int CheckDouble(double value);
