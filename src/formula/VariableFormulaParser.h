#pragma once

#include "formula/FormulaParser.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

/// A formula parser with named values: numbers and strings that the caller supplies before the run. It can also scan a
/// formula for the names that it uses. Copies own maps of their own.
class ZEB_EXPORT CVariableFormulaParser : public CFormulaParser {
 public:
  /// @param ignoreGrossKlein true to compare names without case (German: gross, klein)
  CVariableFormulaParser(bool ignoreGrossKlein = false);
  CVariableFormulaParser(const std::wstring& ausdruck, bool ignoreGrossKlein);
  CVariableFormulaParser(const CVariableFormulaParser& other);
  ~CVariableFormulaParser() override;

  /// Switches the comparison of names. Names that are stored already are not converted.
  virtual void SetIgnoreGrossKlein(bool ignoreGrossKlein);
  bool GetIgnoreGrossKlein() const;

  // Fixed behaviour: variables are merged into those that are here already, which win.
  /// Takes over the other parser's variables, scanned names, flags and all that CFormulaParser copies.
  CVariableFormulaParser& operator=(const CVariableFormulaParser& other);
  /// Sets the text and touches nothing else.
  CVariableFormulaParser& operator=(const std::wstring& ausdruck);
  CVariableFormulaParser& operator=(const wchar_t* ausdruck);

  /// Adds a numeric variable under its bare name. A name that is there already keeps its value.
  void AddVariable(std::wstring name, double wert);
  /// Adds a string variable under its bare name. A name that is there already keeps its value.
  void AddStringVariable(std::wstring name, std::wstring wert);
  /// Switches names in brackets: `[any text]`.
  void EnableQuotedVariable(bool enable);
  bool IsQuotedVariableEnabled() const;
  /// Lists the names that the formula uses, known or not; see GetVariable.
  /// @return whether the formula is good
  bool ScanVariable();
  /// The names of the last scan in the order met, with repeats, without brackets.
  const std::vector<std::wstring>& GetVariable() const;
  /// Back to a new parser's state: no variables, no scanned names, all flags off, and CFormulaParser::Reset.
  void Reset();

  /// Whether a name can be used without brackets.
  /// @param fehlerPos where the name fails; untouched for an empty name
  static bool IsValidVariablenName(std::wstring name, int& fehlerPos);

 protected:
  /// Whether a text is a name in brackets, with one character at least.
  static bool HasQuote(const std::wstring& text);
  /// Takes the brackets of a name away, if names in brackets are switched on.
  void StripQuote(std::wstring& text) const;
  bool GetScanVariable();
  /// The value of a variable; false if there is none of the name.
  bool LookupVariable(std::wstring name, double& wert) const;
  bool LookupStringVariable(std::wstring name, std::wstring& wert) const;
  /// Appends a name to the scanned ones, without its brackets.
  void AddGescannteVariable(std::wstring name);
  void AddGescannteStringVariable(std::wstring name);

 private:
  friend struct zeb::FormulaAccess;

  /// Plain `<` on wide strings. Most names differ in their first character.
  struct NameLess {
    using is_transparent = void;
    bool operator()(std::wstring_view a, std::wstring_view b) const {
      if (!a.empty() && !b.empty() && a.front() != b.front()) return a.front() < b.front();
      return a < b;
    }
  };
  using NumberMap = std::map<std::wstring, double, NameLess>;
  using StringMap = std::map<std::wstring, std::wstring, NameLess>;

  bool FindVariable(std::wstring_view name, double& wert) const;
  bool FindStringVariable(std::wstring_view name, std::wstring& wert) const;
  /// The key of a name as it stands in the text.
  std::wstring_view KeyOf(std::wstring_view name, std::wstring& buffer) const;

  NumberMap* m_pVariablen;        // owned
  StringMap* m_pStringVariablen;  // owned
  std::vector<std::wstring> m_GescannteVariablen;
  bool m_ScanVariable = false;
  bool m_IgnoreGrossKlein;
  bool m_QuotedVariable = false;
};
