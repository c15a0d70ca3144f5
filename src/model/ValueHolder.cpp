#include "model/ValueHolder.h"

#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"
#include "model/ElementNames.h"
#include "model/ObjectReference.h"

namespace {

constexpr zeb::ElementName kTextBefore = L"TextBefore";
constexpr zeb::ElementName kTextAfter = L"TextAfter";
constexpr zeb::ElementName kCharacterLimit = L"CharacterLimit";
constexpr zeb::ElementName kMultiline = L"Multiline";
constexpr zeb::ElementName kCutLeft = L"CutLeft";
constexpr zeb::ElementName kNumberToText = L"NumberToText";
constexpr zeb::ElementName kAdjVHToGS = L"AdjVHToGS";
constexpr zeb::ElementName kAdjGSToVH = L"AdjGSToVH";
constexpr zeb::ElementName kKeepAspectRatio = L"KeepAspectRatio";
constexpr zeb::ElementName kPageBreakNrLinesMin = L"PageBreakNrLinesMin";
constexpr zeb::ElementName kPageBreakNrLinesKeep = L"PageBreakNrLinesKeep";
constexpr zeb::ElementName kHasRTFContent = L"HasRTFContent";

}  // namespace

CValueHolder::CValueHolder() = default;
CValueHolder::CValueHolder(const CValueHolder& other) = default;
CValueHolder::~CValueHolder() = default;
CValueHolder& CValueHolder::operator=(const CValueHolder& other) = default;

bool CValueHolder::Load(zebxmln::CXMLNode* node, CIDManager& idManager) {
  zeb::RecordReader reader(node);
  zeb::ReadOwnID(reader, zeb::Elements::VHID, idManager, this);
  if (auto* const text = reader.Take(zeb::Elements::Text)) CText::Load(text, idManager);
  reader.Read(zeb::Elements::InternalKey, m_strInternalKey);
  int type = 0;
  if (reader.Read(zeb::Elements::VHType, type)) m_eValueHolderType = static_cast<ValueHolderType>(type);
  reader.Read(kTextBefore, m_strTextBefore);
  reader.Read(kTextAfter, m_strTextAfter);
  reader.Read(kCharacterLimit, m_iCharacterLimit);
  reader.Read(kMultiline, m_bMultiline);
  reader.Read(kCutLeft, m_bCutLeft);
  reader.Read(kNumberToText, m_bNumberToText);
  // Fixed behaviour: an old element, accepted so that the fields behind it are read; nothing of it is kept.
  reader.StepOver(kAdjVHToGS);
  reader.Read(kAdjGSToVH, m_bAdjustGraphicToVHSize);
  reader.Read(kKeepAspectRatio, m_bKeepAspectRatio);
  reader.Read(kPageBreakNrLinesMin, m_iPageBreakNrLinesMin);
  reader.Read(kPageBreakNrLinesKeep, m_iPageBreakNrLinesKeep);
  reader.Read(kHasRTFContent, m_bHasRTFContent);
  return true;
}

bool CValueHolder::Save(zebxmln::CXMLNode* node, CIDManager& idManager) {
  zeb::RecordWriter writer(node, zeb::Elements::ValueHolder);
  zeb::WriteID(writer, zeb::Elements::VHID, idManager, this);
  CText::Save(writer.Node(), idManager);
  writer.Write(zeb::Elements::InternalKey, m_strInternalKey);
  writer.Write(zeb::Elements::VHType, static_cast<int>(m_eValueHolderType));
  writer.WriteUnlessEmpty(kTextBefore, m_strTextBefore);
  writer.WriteUnlessEmpty(kTextAfter, m_strTextAfter);
  if (m_iCharacterLimit > 0) writer.Write(kCharacterLimit, m_iCharacterLimit);
  writer.WriteUnless(kMultiline, m_bMultiline, true);
  writer.WriteUnless(kCutLeft, m_bCutLeft, false);
  writer.WriteUnless(kNumberToText, m_bNumberToText, false);
  // Fixed behaviour: the graphic settings of any other type are lost.
  if (m_eValueHolderType == VHTypeGraphic) {
    writer.WriteUnless(kAdjGSToVH, m_bAdjustGraphicToVHSize, false);
    writer.WriteUnless(kKeepAspectRatio, m_bKeepAspectRatio, false);
  }
  if (m_iPageBreakNrLinesMin > 0) writer.Write(kPageBreakNrLinesMin, m_iPageBreakNrLinesMin);
  if (m_iPageBreakNrLinesKeep > 0) writer.Write(kPageBreakNrLinesKeep, m_iPageBreakNrLinesKeep);
  writer.WriteUnless(kHasRTFContent, m_bHasRTFContent, false);
  return true;
}

bool CValueHolder::IsFormulaValueHolder() const { return false; }
bool CValueHolder::IsSumValueHolder() const { return false; }
bool CValueHolder::IsDynamicValueHolder() const { return false; }
bool CValueHolder::IsCopyValueHolder() const { return false; }
