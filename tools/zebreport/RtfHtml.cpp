#include "Html.h"
#include "RtfFile.h"
#include "RtfList.h"
#include "RtfTable.h"
#include "RtfViews.h"
#include "TextFormat.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace zebreport {

namespace {

constexpr const wchar_t* kPageStart =
    L"<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\">\n<title>rich text</title>\n<style>\n"
    L"body { font: 12pt sans-serif; margin: 24pt; }\n"
    L"p { margin: 0; min-height: 1em; }\n"
    L"p, td { white-space: pre-wrap; overflow-wrap: anywhere; tab-size: 36pt; }\n"
    L"table { border-collapse: collapse; margin: 2pt 0; }\n"
    L".more { margin-top: calc(-2pt - 1px); }\n"
    L"td { border: 1px dotted #aaa; box-sizing: border-box; padding: 2pt; }\n"
    L"sup, sub { line-height: 0; }\n"
    L".picture { display: inline-block; box-sizing: border-box; min-width: 90pt; border: 1px dashed #888; "
    L"background: #eee; color: #444; font: 9pt sans-serif; padding: 4pt; overflow: hidden; }\n"
    L"</style></head><body>\n";
constexpr const wchar_t* kPageEnd = L"</body></html>\n";

constexpr const wchar_t* kJustifications[] = {L"left", L"right", L"center", L"justify"};

/// The index that chose the background, 0 for none: entry 0 of a colour table stands for the colour of the paper.
int BackColorIndex(const CRTFState& state) {
  if (state.CharProps.CharBackColor > 0) return state.CharProps.CharBackColor;
  return state.ParProps.BackColor > 0 ? state.ParProps.BackColor : state.FontProps.BackColorIndex;
}

std::wstring ParagraphStyle(const CParagraphProperties& props) {
  std::wstring style;
  if (props.LeftIndent != 0) style += L"margin-left:" + StyleLength(props.LeftIndent) + L";";
  if (props.RightIndent != 0) style += L"margin-right:" + StyleLength(props.RightIndent) + L";";
  if (props.FirstIndent != 0) style += L"text-indent:" + StyleLength(props.FirstIndent) + L";";
  if (props.Justification > 0 && props.Justification < std::size(kJustifications)) {
    style += std::wstring(L"text-align:") + kJustifications[props.Justification] + L";";
  }
  // Browsers know one distance for all tab stops, from the left indent on.
  const int stop = props.TabCount > 0 ? props.Tabs[0].Position - props.LeftIndent : 0;
  if (stop > 0) style += L"tab-size:" + StyleLength(stop) + L";";
  return style;
}

/// The name as a list of fonts, with a general one where a machine lacks it.
std::wstring FontFamily(const std::wstring& name) {
  const bool isFixed =
      std::ranges::any_of(std::array{L"Mono", L"Courier", L"Consolas"},
                          [&](const wchar_t* part) { return name.find(part) != std::wstring::npos; });
  return StyleString(name) + (isFixed ? L",monospace" : L",sans-serif");
}

std::wstring FontStyle(const CRTFContext& context) {
  const CRTFState& state = *context.State;
  std::wstring style;
  if (context.Font != nullptr && *context.Font->GetFontFaceName() != L'\0') {
    style += L"font-family:" + FontFamily(Beginning(context.Font->GetFontFaceName())) + L";";
  }
  if (state.CharProps.FontSize > 0) {
    const bool raised = state.CharProps.Superscript != 0 || state.CharProps.Subscript != 0;
    style += L"font-size:" + StyleLength(state.CharProps.FontSize * (raised ? 7 : 10)) + L";";
  }
  return style;
}

std::wstring RunStyle(const CRTFContext& context) {
  const CRTFState& state = *context.State;
  std::wstring style = FontStyle(context);
  if (state.CharProps.Bold != 0) style += L"font-weight:bold;";
  if (state.CharProps.Italic != 0) style += L"font-style:italic;";
  if (state.CharProps.Underline != 0) style += L"text-decoration:underline;";
  if (context.ForeColor != nullptr) style += L"color:" + StyleColour(*context.ForeColor) + L";";
  if (context.BackColor != nullptr && BackColorIndex(state) > 0) {
    style += L"background:" + StyleColour(*context.BackColor) + L";";
  }
  return style;
}

/// The text of the run with its formatting.
std::wstring Run(const std::wstring& text, const CRTFContext& context) {
  if (text.empty()) return {};
  const CCharacterProperties& props = context.State->CharProps;
  std::wstring html = L"<span style=\"" + RunStyle(context) + L"\">" + EscapedHtml(text) + L"</span>";
  if (props.Superscript != 0) return L"<sup>" + html + L"</sup>";
  if (props.Subscript != 0) return L"<sub>" + html + L"</sub>";
  return html;
}

/// A number or bullet in the font of what stands behind it.
std::wstring Mark(const std::wstring& mark, const CRTFContext& context) {
  if (mark.empty()) return {};
  return L"<span style=\"" + FontStyle(context) + L"\">" + EscapedHtml(mark) + L"</span>";
}

std::wstring CellStyle(const CRTFState& state, const TablePlace& place) {
  std::wstring style;
  if (place.width > 0) style += L"width:" + StyleLength(place.width) + L";";
  if (const CRTFTableCell* cell = place.cell) {
    constexpr const wchar_t* kAlignments[] = {L"top", L"middle", L"bottom"};
    const int align = std::clamp(cell->VerticalAlign, 0, 2);
    style += std::wstring(L"vertical-align:") + kAlignments[align] + L";";
    const std::pair<const wchar_t*, int> borders[] = {{L"top", cell->BorderTop},
                                                      {L"bottom", cell->BorderBottom},
                                                      {L"left", cell->BorderLeft},
                                                      {L"right", cell->BorderRight}};
    for (const auto& [side, width] : borders) {
      if (width > 0) {
        style += std::wstring(L"border-") + side + L":" + StyleLength(std::min(width, 120)) + L" solid #000;";
      }
    }
  }
  return style + ParagraphStyle(state.ParProps);
}

/// Puts the page together, event by event.
class Page final : public CContextChangedHandler {
 public:
  explicit Page(std::wstring& html) : m_html(html) { m_html += kPageStart; }

  void OnContextChanged(const wchar_t* text, CRTFContext* context) override {
    const TableStep step = m_table.Next(text, *context);
    const std::wstring mark = m_marks.Next(text, *context, step.startsParagraph);
    if (step.endsTable) EndTable();
    if (step.ignored) return;
    if (step.place.has_value()) {
      OpenCell(*context->State, step);
    } else {
      OpenParagraph(context->State->ParProps);
    }
    m_html += Mark(mark, *context) + Run(text, *context);
    if (context->Picture != nullptr) m_html += HtmlPicture(*context->Picture, context->State->CharProps);
    if (context->LineBreak != 0) m_html += L"<br>";
    if (context->ParagraphEnd != 0 && !step.place.has_value()) EndParagraph();
  }

  void OnBookmark(std::wstring name, bool start) override {
    if (start) m_html += L"<a id=\"" + EscapedHtml(name) + L"\"></a>";
  }

  void End() {
    EndTable();
    EndParagraph();
    m_html += kPageEnd;
  }

 private:
  void OpenParagraph(const CParagraphProperties& props) {
    if (m_inParagraph) return;
    m_html += L"<p dir=\"auto\" style=\"" + ParagraphStyle(props) + L"\">";
    m_inParagraph = true;
  }

  void EndParagraph() {
    if (m_inParagraph) m_html += L"</p>\n";
    m_inParagraph = false;
  }

  void OpenCell(const CRTFState& state, const TableStep& step) {
    EndParagraph();
    if (step.startsTable || step.newEdges) {
      EndTable();
      OpenTable(step);
    } else if (step.startsRow) {
      m_html += L"</td></tr>\n<tr>";
    }
    if (step.startsCell) {
      if (!step.startsRow && !step.startsTable) m_html += L"</td>";
      m_html += L"<td dir=\"auto\" style=\"" + CellStyle(state, *step.place) + L"\">";
    } else if (step.startsParagraph) {
      m_html += L"<br>";
    }
  }

  /// Browsers have one set of columns for a table: so rows with other edges are a table of their own.
  void OpenTable(const TableStep& step) {
    m_html += L"<table";
    if (step.newEdges) m_html += L" class=\"more\"";
    if (step.tableWidth > 0) {
      m_html += L" style=\"table-layout:fixed;width:" + StyleLength(step.tableWidth) + L";\"";
    }
    m_html += L"><tr>";
    m_inTable = true;
  }

  void EndTable() {
    if (m_inTable) m_html += L"</td></tr></table>\n";
    m_inTable = false;
  }

  std::wstring& m_html;
  TableWalk m_table;
  ListMarks m_marks;
  bool m_inParagraph = false;
  bool m_inTable = false;
};

/// Takes what browsers show as it is, so that it arrives with the size that stands beside it.
class KeepPictures final : public CPictureConvertHandler {
 public:
  bool ConvertPicture(int /*format*/, const void* data, int length, int /*reserved*/, void* out,
                      int* outLength) override {
    if (length > *outLength) return false;
    std::memcpy(out, data, static_cast<std::size_t>(length));
    *outLength = length;
    return true;
  }
};

}  // namespace

void ShowRtfPage(const std::wstring& file, std::wstring& output) {
  Page page(output);
  KeepPictures pictures;
  ReadRtf(file, page, &pictures);
  page.End();
}

}  // namespace zebreport
