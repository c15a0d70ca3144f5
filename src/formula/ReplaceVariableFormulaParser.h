#pragma once

#include "formula/VariableFormulaParser.h"

#include <map>
#include <string>
#include <vector>

/// Rewrites a formula's text: swaps variable names for others and keeps all else, comments and blanks too. Only what
/// really stands as a variable in the grammar is touched. Set the text, add the names, call Replace, read GetAusdruck.
class ZEB_EXPORT CReplaceVariableFormulaParser : public CVariableFormulaParser {
 public:
  CReplaceVariableFormulaParser(bool ignoreGrossKlein = false);
  CReplaceVariableFormulaParser(const std::wstring& ausdruck, bool ignoreGrossKlein);
  CReplaceVariableFormulaParser(const CVariableFormulaParser& other);
  /// Copies the names to replace; neither the wildcards nor the arguments of the last Replace.
  CReplaceVariableFormulaParser(const CReplaceVariableFormulaParser& other);
  ~CReplaceVariableFormulaParser() override;

  bool WerteAus(bool berechnen) override;
  void SetWithStringFunctions(bool withStringFunctions) override;
  void SetIgnoreGrossKlein(bool ignoreGrossKlein) override;

  /// Copies all that CVariableFormulaParser copies, the names to replace, the wildcards and the arguments of Replace.
  CReplaceVariableFormulaParser& operator=(const CReplaceVariableFormulaParser& other);
  CReplaceVariableFormulaParser& operator=(const CVariableFormulaParser& other);
  /// Sets the text and touches nothing else.
  CReplaceVariableFormulaParser& operator=(const std::wstring& ausdruck);
  CReplaceVariableFormulaParser& operator=(const wchar_t* ausdruck);

  /// Adds a name to replace, in brackets or bare. One that is there already keeps its new name.
  void AddReplace(std::wstring alt, std::wstring neu);
  /// Adds a prefix of names that are known without being replaced.
  void AddWildcard(const wchar_t* wildcard);
  /// Whether a name begins with a wildcard. Case counts.
  bool FindInWildcards(const wchar_t* name);
  /// Empties the names to replace. The wildcards stay.
  void ResetReplace();
  /// Rewrites the text. After a failure the text is what it was, and the error is read as for any run.
  /// @param stripQuotes new names lose their brackets; the other two arguments then count for nothing
  /// @param quoteIfNeeded new names that are not good without brackets get them
  /// @param unquoteIfPossible new names that are good without brackets lose them
  /// @return whether the formula is good and all its names are known
  bool Replace(bool stripQuotes, bool quoteIfNeeded, bool unquoteIfPossible);
  /// The current text, valid until it is changed.
  const wchar_t* GetAusdruck() const;

 protected:
  /// Whether a name is one to replace or begins with a wildcard.
  bool LookupReplace(std::wstring name);
  /// Puts the new name in the place of the `laenge` characters at `pos`. "InternalParserError" for an unknown name or
  /// a place outside the text.
  /// @param neueLaenge the length of what stands there now
  void ReplaceAt(int pos, int laenge, int& neueLaenge);

 private:
  friend struct zeb::FormulaAccess;

  /// Puts the rewriting operations in the place of the evaluating ones.
  void ReplaceOperationen();
  /// The new name with or without brackets, as the arguments of Replace say.
  std::wstring QuotedAsAsked(std::wstring neu, bool wasQuoted) const;

  std::map<std::wstring, std::wstring> m_Replace;
  bool m_bStripQuotes = false;
  bool m_bQuoteIfNeeded = false;
  bool m_bUnquoteIfPossible = false;
  std::vector<std::wstring> m_Wildcards;
};
