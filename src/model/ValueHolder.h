#pragma once

#include "model/Text.h"

/// A field: a text whose content comes from the data, by an internal key, when the report is printed.
/// Copies as its base does: what the base owns is shared.
class ZEB_EXPORT CValueHolder : public CText {
 public:
  /// Kind of value, carried as an integer. The library itself tests the default and the graphic type.
  enum ValueHolderType : int {
    VHTypeText = 1,     ///< the default
    VHTypeNumber = 2,   ///< a number
    VHTypeDate = 3,     ///< a date, as it is to be printed
    VHTypeGraphic = 8,  ///< a picture; the only type whose graphic settings are saved
  };

  CValueHolder();
  CValueHolder(const CValueHolder& other);
  ~CValueHolder() override;

  /// Reads the record from `node`, which is the `ValueHolder` element. Always true.
  bool Load(zebxmln::CXMLNode* node, CIDManager& idManager) override;
  /// Adds a `ValueHolder` element to `node`. Always true.
  bool Save(zebxmln::CXMLNode* node, CIDManager& idManager) override;

  virtual bool IsFormulaValueHolder() const;
  virtual bool IsSumValueHolder() const;
  virtual bool IsDynamicValueHolder() const;
  virtual bool IsCopyValueHolder() const;

  CValueHolder& operator=(const CValueHolder& other);

  /// Names the value in the data.
  const wchar_t* GetInternalKey() const { return m_strInternalKey.c_str(); }
  void SetInternalKey(const wchar_t* key) { m_strInternalKey = key; }
  /// Text that is printed in front of the value.
  const wchar_t* GetAlternativeTextBeforeVH() const { return m_strTextBefore.c_str(); }
  void SetAlternativeTextBeforeVH(const wchar_t* text) { m_strTextBefore = text; }
  /// Text that is printed behind the value.
  const wchar_t* GetAlternativeTextAfterVH() const { return m_strTextAfter.c_str(); }
  void SetAlternativeTextAfterVH(const wchar_t* text) { m_strTextAfter = text; }

  /// The most characters that are printed; 0, the default, means no limit.
  int GetCharacterLimit() const { return m_iCharacterLimit; }
  void SetCharacterLimit(int limit) { m_iCharacterLimit = limit; }
  /// True by default.
  bool GetMultiline() const { return m_bMultiline; }
  void SetMultiline(bool multiline) { m_bMultiline = multiline; }
  bool GetCutLeft() const { return m_bCutLeft; }
  void SetCutLeft(bool cutLeft) { m_bCutLeft = cutLeft; }
  /// Whether a number is printed in words.
  bool GetNumberToText() const { return m_bNumberToText; }
  void SetNumberToText(bool numberToText) { m_bNumberToText = numberToText; }

  ValueHolderType GetValueHolderType() const { return m_eValueHolderType; }
  void SetValueHolderType(ValueHolderType type) { m_eValueHolderType = type; }
  /// Saved for the graphic type only.
  bool GetAdjustGraphicToVHSize() const { return m_bAdjustGraphicToVHSize; }
  void SetAdjustGraphicToVHSize(bool adjust) { m_bAdjustGraphicToVHSize = adjust; }
  /// Saved for the graphic type only.
  bool GetKeepAspectRatio() const { return m_bKeepAspectRatio; }
  void SetKeepAspectRatio(bool keep) { m_bKeepAspectRatio = keep; }

  int GetPageBreakNrLinesMin() const { return m_iPageBreakNrLinesMin; }
  void SetPageBreakNrLinesMin(int lines) { m_iPageBreakNrLinesMin = lines; }
  int GetPageBreakNrLinesKeep() const { return m_iPageBreakNrLinesKeep; }
  void SetPageBreakNrLinesKeep(int lines) { m_iPageBreakNrLinesKeep = lines; }
  /// Whether the value is rich text (RTF).
  bool GetHasRTFContent() const { return m_bHasRTFContent; }
  void SetHasRTFContent(bool hasRTFContent) { m_bHasRTFContent = hasRTFContent; }

 private:
  std::wstring m_strInternalKey;
  std::wstring m_strTextBefore;
  std::wstring m_strTextAfter;
  int m_iCharacterLimit = 0;
  bool m_bMultiline = true;
  bool m_bCutLeft = false;
  bool m_bNumberToText = false;
  ValueHolderType m_eValueHolderType = VHTypeText;
  bool m_bAdjustGraphicToVHSize = false;
  bool m_bKeepAspectRatio = false;
  int m_iPageBreakNrLinesMin = 0;
  int m_iPageBreakNrLinesKeep = 0;
  bool m_bHasRTFContent = false;
};
