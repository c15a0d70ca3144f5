#pragma once

#include <array>

// The keys of all failures that the library raises through CKXExceptionHandler::ThrowException.
// Class, number and message of each stand in share/KXErrorMessages.xml; a new key goes there too, in every language.
namespace zeb::ErrorKeys {

// Memory and files.
inline constexpr const wchar_t* NoMoreMemoryLeft = L"NoMoreMemoryLeft";
inline constexpr const wchar_t* ReadFileFailure = L"ReadFileFailure";
inline constexpr const wchar_t* FileReadOnly = L"FileReadOnly";

// Report document.
inline constexpr const wchar_t* OrderVectorNotSortable = L"OrderVectorNotSortable";

// Formulas.
inline constexpr const wchar_t* ArithmeticOperatorExpected = L"ArithmeticOperatorExpected";
inline constexpr const wchar_t* ClosingBracketExpected = L"ClosingBracketExpected";
inline constexpr const wchar_t* CommentBeginMissing = L"CommentBeginMissing";
inline constexpr const wchar_t* CommentEndMissing = L"CommentEndMissing";
inline constexpr const wchar_t* CommentEndMissing2 = L"CommentEndMissing2";
inline constexpr const wchar_t* ConstStringEndMissing = L"ConstStringEndMissing";
inline constexpr const wchar_t* DivisionByZero = L"DivisionByZero";
inline constexpr const wchar_t* DoubleExpected = L"DoubleExpected";
inline constexpr const wchar_t* FunctionExpected = L"FunctionExpected";
inline constexpr const wchar_t* FunctionVariableExpected = L"FunctionVariableExpected";
inline constexpr const wchar_t* IllegalParameter = L"IllegalParameter";
inline constexpr const wchar_t* InternalParserError = L"InternalParserError";
inline constexpr const wchar_t* NegativePowerFraction = L"NegativePowerFraction";
inline constexpr const wchar_t* NegativeRoot = L"NegativeRoot";
inline constexpr const wchar_t* NegativeRootNull = L"NegativeRootNull";
inline constexpr const wchar_t* NestedComment = L"NestedComment";
inline constexpr const wchar_t* NullPowerNegative = L"NullPowerNegative";
inline constexpr const wchar_t* NumberTooLong = L"NumberTooLong";
inline constexpr const wchar_t* OpeningBracketExpected = L"OpeningBracketExpected";
inline constexpr const wchar_t* VariableEndMissing = L"VariableEndMissing";
inline constexpr const wchar_t* VariableNotFound = L"VariableNotFound";
inline constexpr const wchar_t* WrongFunctionParameterCount = L"WrongFunctionParameterCount";
inline constexpr const wchar_t* ZeroDividedByZero = L"ZeroDividedByZero";
inline constexpr const wchar_t* ZeroRoot = L"ZeroRoot";

// Fonts.
inline constexpr const wchar_t* IncorrectTrueTypeFile = L"IncorrectTrueTypeFile";
inline constexpr const wchar_t* IncorrectPFMFile = L"IncorrectPFMFile";
inline constexpr const wchar_t* IncorrectPFAPFBFile = L"IncorrectPFAPFBFile";
inline constexpr const wchar_t* NoCharMetrics = L"NoCharMetrics";
inline constexpr const wchar_t* TooManyCharacterCodes = L"TooManyCharacterCodes";
// Fixed behaviour: the key is spelled so.
inline constexpr const wchar_t* WrongGlobalIndentifier = L"WrongGlobalIndentifier";
inline constexpr const wchar_t* TrueTypeCreationFailed = L"TrueTypeCreationFailed";
inline constexpr const wchar_t* BitmapMACFontUnsupported = L"BitmapMACFontUnsupported";
inline constexpr const wchar_t* FontEmbeddingNotAllowed = L"FontEmbeddingNotAllowed";
inline constexpr const wchar_t* FontPoolIncomplete = L"FontPoolIncomplete";

// Other.
inline constexpr const wchar_t* WrongParameter = L"WrongParameter";
inline constexpr const wchar_t* UnknownException = L"UnknownException";

/// All of them, in the order above.
inline constexpr std::array All = {
    NoMoreMemoryLeft,
    ReadFileFailure,
    FileReadOnly,
    OrderVectorNotSortable,
    ArithmeticOperatorExpected,
    ClosingBracketExpected,
    CommentBeginMissing,
    CommentEndMissing,
    CommentEndMissing2,
    ConstStringEndMissing,
    DivisionByZero,
    DoubleExpected,
    FunctionExpected,
    FunctionVariableExpected,
    IllegalParameter,
    InternalParserError,
    NegativePowerFraction,
    NegativeRoot,
    NegativeRootNull,
    NestedComment,
    NullPowerNegative,
    NumberTooLong,
    OpeningBracketExpected,
    VariableEndMissing,
    VariableNotFound,
    WrongFunctionParameterCount,
    ZeroDividedByZero,
    ZeroRoot,
    IncorrectTrueTypeFile,
    IncorrectPFMFile,
    IncorrectPFAPFBFile,
    NoCharMetrics,
    TooManyCharacterCodes,
    WrongGlobalIndentifier,
    TrueTypeCreationFailed,
    BitmapMACFontUnsupported,
    FontEmbeddingNotAllowed,
    FontPoolIncomplete,
    WrongParameter,
    UnknownException,
};

}  // namespace zeb::ErrorKeys
