#include "Describe.h"

#include "FormulaText.h"
#include "TextFormat.h"

namespace zebreport {

namespace {

using Texts = std::vector<std::wstring>;

std::wstring PointName(RelationPoint point) {
  switch (point) {
    case RelationPointUpperLeft:
      return L"upper left";
    case RelationPointUpperRight:
      return L"upper right";
    case RelationPointLowerLeft:
      return L"lower left";
    case RelationPointLowerRight:
      return L"lower right";
    default:
      return L"point " + std::to_wstring(static_cast<int>(point));
  }
}

std::wstring Color(const CRGBColor& color) {
  return Number(color.GetRed()) + L" " + Number(color.GetGreen()) + L" " + Number(color.GetBlue());
}

/// Four lengths as one if they are equal.
std::wstring Sides(float left, float upper, float right, float lower) {
  if (left == upper && left == right && left == lower) return Number(left);
  return L"left " + Number(left) + L" upper " + Number(upper) + L" right " + Number(right) + L" lower " +
         Number(lower);
}

void AddBorder(const CBorder& border, Texts& texts) {
  if (border.HasBorder()) {
    texts.push_back(L"border " + Sides(border.GetLeftBorderWidth(), border.GetUpperBorderWidth(),
                                       border.GetRightBorderWidth(), border.GetLowerBorderWidth()));
  }
  const std::wstring distances = Sides(border.GetLeftTextDistance(), border.GetUpperTextDistance(),
                                       border.GetRightTextDistance(), border.GetLowerTextDistance());
  if (distances != L"0") texts.push_back(L"text distance " + distances);
  if (border.GetBaseLineToUpperDistance() != 0.0F || border.GetBaseLineToLowerDistance() != 0.0F) {
    texts.push_back(L"base line " + Number(border.GetBaseLineToUpperDistance()) + L" below the upper edge, " +
                    Number(border.GetBaseLineToLowerDistance()) + L" above the lower edge");
  }
}

void AddLook(const CPlaceable& object, Texts& texts) {
  std::wstring size = L"size " + Number(object.GetWidth()) + L" x " + Number(object.GetHeight());
  if (object.GetKeepMinWidth() != 0.0F) size += L", at least " + Number(object.GetKeepMinWidth()) + L" wide";
  texts.push_back(size);
  if (const CBorder* border = object.GetBorder()) AddBorder(*border, texts);
  if (const CRGBColor* color = object.GetTextColor()) texts.push_back(L"color " + Color(*color));
  if (const CRGBColor* color = object.GetBackgroundColor()) texts.push_back(L"background " + Color(*color));
}

void AddFont(const CText& text, Texts& texts) {
  Texts parts = {L"font " + std::wstring(text.GetFontName()) + L" " + Number(text.GetFontSize())};
  if (text.GetBold() != 400) parts.push_back(L"weight " + std::to_wstring(text.GetBold()));
  if (text.GetItalic()) parts.emplace_back(L"italic");
  if (text.GetUnderline()) parts.emplace_back(L"underlined");
  if (text.GetOverline()) parts.emplace_back(L"overlined");
  if (text.GetStrikeout()) parts.emplace_back(L"struck out");
  if (text.GetLineSpacing() != text.GetFontSize()) {
    parts.push_back(L"line spacing " + Number(text.GetLineSpacing()));
  }
  if (text.GetOrientation() != DOMOrientationDefault) {
    parts.push_back(L"orientation " + std::to_wstring(static_cast<int>(text.GetOrientation())));
  }
  if (*text.GetTextEncoding() != L'\0') {
    parts.push_back(L"encoding " + std::wstring(text.GetTextEncoding()));
  }
  texts.push_back(Joined(parts));
}

void AddField(const CValueHolder& field, Texts& texts) {
  Texts parts = {L"value " + TypeName(field.GetValueHolderType())};
  if (field.GetHasRTFContent()) parts.emplace_back(L"rich text");
  if (field.GetNumberToText()) parts.emplace_back(L"in words");
  if (field.GetCharacterLimit() != 0) {
    parts.push_back(L"at most " + std::to_wstring(field.GetCharacterLimit()) + L" characters");
  }
  if (!field.GetMultiline()) parts.emplace_back(L"one line");
  if (field.GetCutLeft()) parts.emplace_back(L"cut at the left");
  if (field.GetAdjustGraphicToVHSize()) parts.emplace_back(L"graphic fills the field");
  if (field.GetKeepAspectRatio()) parts.emplace_back(L"graphic keeps its proportions");
  if (field.GetPageBreakNrLinesMin() != 0 || field.GetPageBreakNrLinesKeep() != 0) {
    parts.push_back(L"page break: at least " + std::to_wstring(field.GetPageBreakNrLinesMin()) +
                    L" lines, keeps " + std::to_wstring(field.GetPageBreakNrLinesKeep()));
  }
  texts.push_back(Joined(parts));
  const std::wstring before = field.GetAlternativeTextBeforeVH();
  const std::wstring after = field.GetAlternativeTextAfterVH();
  if (!before.empty()) texts.push_back(L"text before " + Quoted(before));
  if (!after.empty()) texts.push_back(L"text after " + Quoted(after));
  const std::wstring content = field.GetTextContent();
  if (!content.empty()) texts.push_back(L"content " + Quoted(content));
}

/// The variables that a formula reads; nothing if there are none.
void AddVariables(const wchar_t* formula, Texts& texts) {
  const FormulaVariables variables = FindVariables(formula);
  if (!variables.failure.empty()) {
    texts.push_back(L"which cannot be read: " + variables.failure);
  } else if (!variables.names.empty()) {
    texts.push_back(L"which reads " + Joined(variables.names));
  }
}

void AddFormula(const CFormulaValueHolder& formula, Texts& texts) {
  texts.push_back(L"name " + Quoted(formula.GetName()));
  texts.push_back(L"formula " + Quoted(formula.GetFormula()));
  AddVariables(formula.GetFormula(), texts);
  Texts parts = {L"decimal places from " + Quoted(formula.GetRoundVHKey())};
  if (formula.GetInternalDecimalPlaces() != -1) {
    parts.push_back(std::to_wstring(formula.GetInternalDecimalPlaces()) + L" places inside");
  }
  if (formula.GetResultIsEmptyIfVHEmpty()) parts.emplace_back(L"empty if a value is empty");
  if (formula.GetResultIsEmptyIfNull()) parts.emplace_back(L"empty if zero");
  if (formula.GetResultIsBool()) parts.emplace_back(L"result is true or false");
  texts.push_back(Joined(parts));
}

void AddKind(const CPlaceable& object, Texts& texts) {
  if (const auto* formula = dynamic_cast<const CFormulaValueHolder*>(&object)) {
    AddFormula(*formula, texts);
  } else if (const auto* sum = dynamic_cast<const CSumValueHolder*>(&object)) {
    Texts parts = {L"name " + Quoted(sum->GetName()), L"sum of " + Quoted(sum->GetSumKey())};
    if (sum->GetResetSumAfterPageEnd()) parts.emplace_back(L"starts anew on each page");
    if (sum->GetCumulative()) parts.emplace_back(L"cumulative");
    texts.push_back(Joined(parts));
  } else if (const auto* dynamicField = dynamic_cast<const CDynamicValueHolder*>(&object)) {
    texts.push_back(L"name " + Quoted(dynamicField->GetName()));
  } else if (const auto* copy = dynamic_cast<const CCopyValueHolder*>(&object)) {
    texts.push_back(L"copy of " + Quoted(copy->GetRefVHID()) + L" in zone " + Quoted(copy->GetRefZoneID()));
  } else if (const auto* picture = dynamic_cast<const CPicture*>(&object)) {
    texts.push_back(std::to_wstring(picture->GetPictureLength()) + L" bytes");
  } else if (const auto* line = dynamic_cast<const CLine*>(&object)) {
    if (line->GetExtendToReportZoneEnd()) texts.emplace_back(L"reaches to the end of the zone");
    if (line->GetExtendToLayoutFooter()) texts.emplace_back(L"reaches to the footer of the page");
  }
}

void AddCondition(const CCondition& condition, Texts& texts) {
  Texts keys;
  for (const auto& [key, type] : condition.GetKeyToTypeMap()) keys.push_back(key + L": " + TypeName(type));
  texts.push_back(L"shown if " + Quoted(condition.GetFormula()) +
                  (keys.empty() ? L"" : L" (" + Joined(keys) + L")"));
  AddVariables(condition.GetFormula(), texts);
}

}  // namespace

std::wstring TypeName(int type) {
  switch (type) {
    case CValueHolder::VHTypeText:
      return L"text";
    case CValueHolder::VHTypeNumber:
      return L"number";
    case CValueHolder::VHTypeDate:
      return L"date";
    case CValueHolder::VHTypeGraphic:
      return L"graphic";
    default:
      return L"type " + std::to_wstring(type);
  }
}

std::vector<std::wstring> Describe(const CPlaceable& object) {
  Texts texts;
  const auto* field = dynamic_cast<const CValueHolder*>(&object);
  const auto* text = dynamic_cast<const CText*>(&object);
  if (text != nullptr && field == nullptr) {
    const std::wstring content = text->GetTextContent();
    if (Quoted(content) != QuotedShort(content)) texts.push_back(L"content " + Quoted(content));
  }
  if (field != nullptr) AddField(*field, texts);
  AddKind(object, texts);
  AddLook(object, texts);
  if (text != nullptr) AddFont(*text, texts);
  if (const CCondition* condition = object.GetCondition()) AddCondition(*condition, texts);
  return texts;
}

std::wstring DescribeRelation(const CPlaceableRelation& relation, const Names& names,
                              const std::wstring& place) {
  const CSimplePoint& offset = relation.GetRefOffset();
  std::wstring text = L"its " + PointName(relation.GetSourceRelPt().GetRelationPoint()) + L" stands at the " +
                      PointName(relation.GetDestRelPt().GetRelationPoint()) + L" of " +
                      names.Of(relation.GetRelationObject(), place);
  if (offset.GetX() != 0.0F || offset.GetY() != 0.0F) {
    text += L", moved by " + Number(offset.GetX()) + L" " + Number(offset.GetY());
  }
  if (relation.GetAdjustHeight()) text += L", of the same height";
  return text;
}

}  // namespace zebreport
