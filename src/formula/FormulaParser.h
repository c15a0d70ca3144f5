#pragma once

#include "formula/OperationList.h"
#include "platform/Export.h"

#include <string>
#include <vector>

class Operation;

namespace zeb {
struct FormulaAccess;
}

/// Opens a quoted variable name: `[`.
extern ZEB_EXPORT const wchar_t gccVariablenKennzeichenAnfang;
/// Closes a quoted variable name: `]`.
extern ZEB_EXPORT const wchar_t gccVariablenKennzeichenEnde;
/// Opens and closes a string constant: the double quote.
extern ZEB_EXPORT const wchar_t gccConstStringKennzeichen;
/// The value of the constant `e`: exp(1.0), computed once when the library starts.
extern ZEB_EXPORT const double E;

/// Evaluates one formula: an interpreter that works straight on the text.
///
/// Set the text by the constructor or by assigning it, call WerteAus(true), then read GetWert, or after a failure
/// GetErrorCode, GetErrorMessage and GetErrPos. A parser is used again by assigning a new text.
///
/// The grammar is the list of operations that the parser holds, loosest binding first; derived classes change the
/// language by editing that list. The operations are shared by all parsers and belong to none. Formulas nest at most
/// 200 levels of brackets and calls. One parser serves one thread at a time.
class ZEB_EXPORT CFormulaParser {
 public:
  /// The unit of angles.
  enum Winkelmas : int {
    Altgrad = 0,    ///< degrees, 360 to the circle
    Bogenmass = 1,  ///< radians
    Neugrad = 2,    ///< grads, 400 to the circle; the unit of a new parser
  };

  CFormulaParser();
  CFormulaParser(const std::wstring& ausdruck);
  CFormulaParser(const CFormulaParser& other);
  virtual ~CFormulaParser();

  /// Evaluates (German: wertet aus) the formula.
  /// @param berechnen true to compute the value, false to check the syntax only
  /// @return whether the formula is good
  /// @throws CKXException other than CKXParserException, where the error catalogue gives a key no parser family
  virtual bool WerteAus(bool berechnen);
  /// The text of the last error. A later good run does not clear it.
  virtual const wchar_t* GetErrorMessage() const;
  /// Switches string constants and `strcmp` on.
  // Fixed behaviour: switching off clears the flag only; the operations and the function's bit stay.
  virtual void SetWithStringFunctions(bool withStringFunctions);

  /// Copies options, text, result and the list of operations; neither the error message nor the help list nor the
  /// flag of string functions.
  CFormulaParser& operator=(const CFormulaParser& other);
  /// Sets the text and touches nothing else.
  CFormulaParser& operator=(const std::wstring& ausdruck);
  CFormulaParser& operator=(const wchar_t* ausdruck);

  /// The value of the last run. After a failed one 0.0, or what stood in front of left-over text.
  double GetWert() const;
  /// The catalogue's number of the last run's error, 0 after a good run.
  int GetErrorCode() const;
  /// Where the last run failed, in characters from 0; 0 after a good run.
  int GetErrPos() const;
  /// Whether values are computed, or the syntax is checked only.
  bool GetBerechnen() const;
  void SetBerechnen(bool berechnen);
  double GetPI() const;
  /// Sets the value of `pi` and keeps the angle unit, as far as it is recognised.
  void SetPI(double pi);
  /// The factor from the angle unit to radians.
  double GetWinkelmas() const;
  /// Sets the angle unit; a value outside the enumeration changes nothing.
  void SetWinkelmas(Winkelmas winkelmas);
  /// The mask of enabled functions of the main set; -1, all of them, in a new parser.
  int GetFunktionen() const;
  void SetFunktionen(int funktionen);
  /// The mask of enabled functions of the extra set: 1 `w`, 2 `lg`, 4 `strcmp`; 0 in a new parser.
  int GetFunktionenEx() const;
  void SetFunktionenEx(int funktionen);
  /// Switches comments `{ ... }`.
  void EnableKommentarGeschweifteKlammer(bool enable);
  /// Switches comments `' ... '`.
  void EnableKommentarHochkomma(bool enable);

  /// Whether a character ends a comment of a kind that is switched on.
  bool IstKommentarEnde(wchar_t c) const;
  /// Moves the position over blanks and comments.
  /// Keys: "NestedComment", "CommentBeginMissing", "CommentEndMissing", "CommentEndMissing2".
  void EatWhite();
  /// The character at an index, which is not checked.
  wchar_t GetAt(int index) const;
  /// The length of the text in characters.
  int GetLength() const;
  /// The first `n` characters, as far as there are so many.
  std::wstring Left(int n) const;
  /// The text from an index on; empty from the end on.
  std::wstring Mid(int from) const;
  /// At most `n` characters from an index on.
  std::wstring Mid(int from, int n) const;
  /// Back to the options of a new parser, with an empty text. Keeps pi, the list of operations, the help list, the error
  /// message and the flag of string functions.
  void Reset();

  /// The name of a function of the main set, "undefiniert" for any other value. The next call overwrites the text.
  const std::wstring& GetFunktionNameFromDefine(int bit);
  /// The name of a function of the extra set, "undefiniert" for any other value. The next call overwrites the text.
  const std::wstring& GetFunktionNameFromDefineEx(int bit);
  /// Whether the function of a bit is enabled and has the name. Case is ignored.
  bool IsThisFunktion(int bit, const std::wstring& name);
  bool IsThisFunktionEx(int bit, const std::wstring& name);
  /// Appends a function to the help list if `mask` has its bit, and clears the bit in it.
  void AddToArray(const wchar_t* description, int bit, int& mask);
  void AddToArrayEx(const wchar_t* description, int bit, int& mask);
  /// Fills the help list of operators and enabled functions, once.
  void CreateFunctionList();
  /// The length of the help list; 0 until CreateFunctionList has run.
  int GetFunctionCount() const;
  /// The name of an entry of the help list; the index is not checked.
  const wchar_t* GetFunctionNameAt(int index) const;
  /// The German description of an entry of the help list; the index is not checked.
  const wchar_t* GetFunctionDescriptionAt(int index) const;

  /// The index of the assignment sign of a text such as `a = b + 1`, -1 if there is none.
  static int FindFinalGleich(std::wstring text);
  /// The first byte of the locale's decimal point; the next call overwrites the text.
  static const std::wstring& GetWinsysDez();
  // The standard library's classes in the current locale. A negative argument counts as that character plus 256.
  static bool Isalnum(int c);
  static bool Isalpha(int c);
  static bool Isdigit(int c);
  static bool Isspace(int c);
  /// Whether the argument is one of the six German umlauts as a signed Latin-1 byte.
  static bool IstUmlaut(int c);

 protected:
  /// Appends the operations of the plain language to the list.
  void CreateOperationen();
  /// The first entry of the list, null if it is empty.
  Operation* GetFirstOperation();
  /// The entry behind `operation`, null if that is the last or absent.
  Operation* GetNextOperation(Operation* operation);
  /// Inserts `neu` in front of `vor`; nothing happens if `vor` is absent.
  void InsertOperationBefore(Operation* neu, Operation* vor);
  /// Puts `neu` in the place of `alt` and removes every other entry equal to `alt`; nothing if `alt` is absent.
  void ReplaceOperation(Operation* alt, Operation* neu);
  /// Removes the first entry equal to `operation`. The object lives on.
  void DeleteOperation(Operation* operation);

  OperationList m_Operationen;
  std::wstring m_Ausdruck;
  double m_Wert = 0.0;
  double m_Winkelmas;
  double m_PI;
  int m_Funktionen = -1;
  int m_FunktionenEx = 0;
  int m_ErrorCode = 0;
  int m_Pos = 0;
  bool m_Berechnen = true;
  bool m_KommentarGeschweifteKlammer = true;
  bool m_KommentarHochkomma = true;
  bool m_WithStringFunctions = false;
  std::wstring m_ErrorMessage;

 private:
  friend class Operation;
  friend struct zeb::FormulaAccess;

  struct FunctionRecord {
    std::wstring Name;
    std::wstring Description;
  };

  /// Evaluates the whole text from the first operation.
  double EvalText();

  std::vector<FunctionRecord> m_FunctionList;
  int m_Schachtelung = 0;  ///< open brackets and calls of the present run
};
