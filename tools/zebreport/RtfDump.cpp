#include "RtfFile.h"
#include "RtfViews.h"
#include "TextFormat.h"

#include <array>

namespace zebreport {

namespace {

/// One number of a record, shown when it is not what it is at the start.
struct Field {
  const wchar_t* name;
  int value;
  int start = 0;
};

std::wstring Shown(const Field& field) {
  return field.value == field.start ? L""
                                    : std::wstring(L" ") + field.name + L"=" + std::to_wstring(field.value);
}

template <std::size_t count>
std::wstring Shown(const Field (&fields)[count]) {
  std::wstring text;
  for (const Field& field : fields) text += Shown(field);
  return text;
}

std::wstring Flags(const CRTFContext& context) {
  std::wstring text;
  if (context.ParagraphEnd != 0) text += L" ParagraphEnd";
  if (context.LineBreak != 0) text += L" LineBreak";
  if (context.TableEnd != 0) text += L" TableEnd";
  return text;
}

std::wstring Colour(const wchar_t* name, const CRTFColor* colour) {
  if (colour == nullptr) return {};
  constexpr wchar_t kDigits[] = L"0123456789abcdef";
  std::wstring text = std::wstring(L" ") + name + L"=#";
  for (const unsigned part : {colour->GetRed(), colour->GetGreen(), colour->GetBlue()}) {
    text += kDigits[part / 16];
    text += kDigits[part % 16];
  }
  return text;
}

std::wstring Objects(const CRTFContext& context) {
  std::wstring text;
  if (context.Font != nullptr) {
    text += L" Font=" + Quoted(Beginning(context.Font->GetFontFaceName())) +
            Shown({L"FontCharSet", context.Font->GetFontCharSet()});
  }
  text += Colour(L"ForeColor", context.ForeColor) + Colour(L"BackColor", context.BackColor);
  if (context.Picture != nullptr) {
    text += L" Picture=" + std::to_wstring(context.Picture->GetLength()) + L" bytes";
  }
  if (context.List != nullptr) text += L" List=" + std::to_wstring(context.List->GetListId());
  if (context.Level != nullptr) {
    text += L" Level=" + Quoted(Beginning(context.Level->GetListText())) +
            Shown({L"Levelnfc", context.Level->GetLevelnfc()});
  }
  return text;
}

std::wstring Values(const CCharacterProperties& props) {
  const Field fields[] = {
      {L"Bold", props.Bold},
      {L"Underline", props.Underline},
      {L"Italic", props.Italic},
      {L"Superscript", props.Superscript},
      {L"Subscript", props.Subscript},
      {L"FontSize", props.FontSize, 24},
      {L"CellFontId", props.CellFontId},
      {L"UnicodeSkip", props.UnicodeSkip},
      {L"JpegBlip", props.JpegBlip},
      {L"EmfBlip", props.EmfBlip},
      {L"PngBlip", props.PngBlip},
      {L"CharShading", props.CharShading},
      {L"CharForeColor", props.CharForeColor},
      {L"CharBackColor", props.CharBackColor},
      {L"PicWidth", props.PicWidth},
      {L"PicHeight", props.PicHeight},
      {L"PicWidthGoal", props.PicWidthGoal},
      {L"PicHeightGoal", props.PicHeightGoal},
      {L"PicScaleX", props.PicScaleX},
      {L"PicScaleY", props.PicScaleY},
      {L"PnText", props.PnText},
  };
  return Shown(fields);
}

std::wstring Values(const CParagraphProperties& props) {
  const Field fields[] = {
      {L"LeftIndent", props.LeftIndent},   {L"RightIndent", props.RightIndent},
      {L"FirstIndent", props.FirstIndent}, {L"Justification", props.Justification},
      {L"TabKind", props.TabKind},         {L"InTable", props.InTable},
      {L"Shading", props.Shading},         {L"ParForeColor", props.ForeColor},
      {L"ParBackColor", props.BackColor},  {L"PnBullet", props.PnBullet},
      {L"PnDecimal", props.PnDecimal},
  };
  std::wstring text = Shown(fields);
  for (int i = 0; i < props.TabCount; ++i) {
    text += i == 0 ? L" Tabs=" : L",";
    text += std::to_wstring(props.Tabs[i].Position);
    if (props.Tabs[i].Kind != 0) text += L":" + std::to_wstring(props.Tabs[i].Kind);
  }
  return text;
}

std::wstring Values(const CSectionProperties& props) {
  const Field fields[] = {
      {L"Columns", props.Columns},
      {L"SectionBreak", props.SectionBreak},
      {L"PageNumberX", props.PageNumberX},
      {L"PageNumberY", props.PageNumberY},
      {L"PageNumberFormat", props.PageNumberFormat},
  };
  return Shown(fields);
}

std::wstring Values(const CFontProperties& props) {
  const Field fields[] = {
      {L"FontId", props.FontId},
      {L"CharSet", props.CharSet},
      {L"ForeColorIndex", props.ForeColorIndex},
      {L"BackColorIndex", props.BackColorIndex},
  };
  return Shown(fields);
}

std::wstring Borders(int top, int bottom, int left, int right) {
  const Field fields[] = {
      {L"BorderTop", top}, {L"BorderBottom", bottom}, {L"BorderLeft", left}, {L"BorderRight", right}};
  return Shown(fields);
}

std::wstring Values(const CDocumentProperties& props) {
  const Field fields[] = {
      {L"PaperWidth", props.PaperWidth},
      {L"PaperHeight", props.PaperHeight},
      {L"MarginLeft", props.MarginLeft},
      {L"MarginTop", props.MarginTop},
      {L"MarginRight", props.MarginRight},
      {L"MarginBottom", props.MarginBottom},
      {L"PageNumberStart", props.PageNumberStart},
      {L"FacingPages", props.FacingPages},
      {L"Landscape", props.Landscape},
      {L"DefaultFont", props.DefaultFont, -1},
      {L"RtfVersion", props.RtfVersion},
      {L"DefaultTab", props.DefaultTab, 720},
      {L"RowLeft", props.RowLeft},
      {L"RowHeader", props.RowHeader},
      {L"AnsiCodePage", props.AnsiCodePage},
      {L"Rows", static_cast<int>(props.Rows.size())},
      {L"RowIndex", props.RowIndex, -1},
      {L"CellIndex", props.CellIndex, -1},
      {L"RowBorderSide", props.RowBorderSide},
      {L"CellBorderSide", props.CellBorderSide},
  };
  std::wstring text = Shown(fields);
  if (const CRTFTableRow* row = props.CurrentRow) {
    text += L" Row(" + std::to_wstring(row->Cells.size()) + L" cells" +
            Borders(row->BorderTop, row->BorderBottom, row->BorderLeft, row->BorderRight) + L")";
  }
  if (const CRTFTableCell* cell = props.CurrentCell) {
    text += L" Cell(RightEdge=" + std::to_wstring(cell->RightEdge) +
            Shown({L"VerticalAlign", cell->VerticalAlign}) +
            Borders(cell->BorderTop, cell->BorderBottom, cell->BorderLeft, cell->BorderRight) + L")";
  }
  return text;
}

class Dump final : public CContextChangedHandler {
 public:
  explicit Dump(std::wstring& output) : m_output(output) {}

  void OnContextChanged(const wchar_t* text, CRTFContext* context) override {
    const CRTFState& state = *context->State;
    m_output += L"run " + Quoted(text) + Flags(*context) + Objects(*context) + L" |" +
                Values(state.CharProps) + Values(state.ParProps) + Values(state.FontProps) +
                Values(state.SecProps) + Values(state.DocProps) + L"\n";
  }

  void OnBookmark(std::wstring name, bool start) override {
    m_output += (start ? L"bookmark-start " : L"bookmark-end ") + Quoted(name) + L"\n";
  }

 private:
  std::wstring& m_output;
};

}  // namespace

void DumpRtf(const std::wstring& file, std::wstring& output) {
  Dump dump(output);
  ReadRtf(file, dump, nullptr);
}

}  // namespace zebreport
