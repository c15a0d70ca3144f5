// The function names and the help list of CFormulaParser.

#include "formula/FormulaCharacters.h"
#include "formula/FormulaParser.h"
#include "formula/FunctionTable.h"

namespace {

/// The table row of a bit, null if the bit names no function of the set.
const zeb::FunctionEntry* FindBit(zeb::FunctionSet set, int bit) {
  for (const zeb::FunctionEntry& entry : zeb::kFunctionTable) {
    if (entry.set == set && entry.Bit() == bit) return &entry;
  }
  return nullptr;
}

const wchar_t* NameOfBit(zeb::FunctionSet set, int bit) {
  const zeb::FunctionEntry* const entry = FindBit(set, bit);
  return entry != nullptr ? entry->name : L"undefiniert";
}

bool IsNameOfBit(zeb::FunctionSet set, int bit, const std::wstring& name) {
  const zeb::FunctionEntry* const entry = FindBit(set, bit);
  return zeb::IsWord(name, entry != nullptr ? entry->word : "undefiniert");
}

}  // namespace

const std::wstring& CFormulaParser::GetFunktionNameFromDefine(int bit) {
  static std::wstring name;
  name = NameOfBit(zeb::FunctionSet::Main, bit);
  return name;
}

const std::wstring& CFormulaParser::GetFunktionNameFromDefineEx(int bit) {
  static std::wstring name;
  name = NameOfBit(zeb::FunctionSet::Extra, bit);
  return name;
}

bool CFormulaParser::IsThisFunktion(int bit, const std::wstring& name) {
  return (m_Funktionen & bit) != 0 && IsNameOfBit(zeb::FunctionSet::Main, bit, name);
}

bool CFormulaParser::IsThisFunktionEx(int bit, const std::wstring& name) {
  return (m_FunktionenEx & bit) != 0 && IsNameOfBit(zeb::FunctionSet::Extra, bit, name);
}

void CFormulaParser::AddToArray(const wchar_t* description, int bit, int& mask) {
  if ((mask & bit) == 0) return;
  m_FunctionList.push_back({GetFunktionNameFromDefine(bit), description});
  mask &= ~bit;
}

void CFormulaParser::AddToArrayEx(const wchar_t* description, int bit, int& mask) {
  if ((mask & bit) == 0) return;
  m_FunctionList.push_back({GetFunktionNameFromDefineEx(bit), description});
  mask &= ~bit;
}

void CFormulaParser::CreateFunctionList() {
  if (!m_FunctionList.empty()) return;
  for (const zeb::OperatorHelp& row : zeb::kOperatorHelp) {
    if (row.condition == zeb::HelpCondition::Modulo && (m_Funktionen & zeb::kModuloBit) == 0) continue;
    if (row.condition == zeb::HelpCondition::WholeDivision && (m_Funktionen & zeb::kWholeDivisionBit) == 0)
      continue;
    // Fixed behaviour: the row of a comment that is switched off stays, with the name of the row before it.
    const bool keepsName =
        (row.condition == zeb::HelpCondition::BraceComment && !m_KommentarGeschweifteKlammer) ||
        (row.condition == zeb::HelpCondition::QuoteComment && !m_KommentarHochkomma);
    const std::wstring name = keepsName ? m_FunctionList.back().Name : row.name;
    m_FunctionList.push_back({name, row.description});
  }
  int main = m_Funktionen & ~zeb::kModuloBit & ~zeb::kWholeDivisionBit;
  int extra = m_FunktionenEx;
  for (const zeb::FunctionEntry& entry : zeb::kFunctionTable) {
    if (entry.description == nullptr) continue;
    if (entry.set == zeb::FunctionSet::Main) {
      AddToArray(entry.description, entry.Bit(), main);
    } else {
      AddToArrayEx(entry.description, entry.Bit(), extra);
    }
  }
}

int CFormulaParser::GetFunctionCount() const { return static_cast<int>(m_FunctionList.size()); }

const wchar_t* CFormulaParser::GetFunctionNameAt(int index) const {
  return m_FunctionList[static_cast<std::size_t>(index)].Name.c_str();
}

const wchar_t* CFormulaParser::GetFunctionDescriptionAt(int index) const {
  return m_FunctionList[static_cast<std::size_t>(index)].Description.c_str();
}
