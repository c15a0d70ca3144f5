#include "rtf/ContextChangedHandler.h"
#include "rtf/RTFContext.h"
#include "rtf/RTFDocumentCopy.h"
#include "rtf/RTFParser.h"
#include "rtf/RTFState.h"
#include "rtf/RTFStore.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

// The closing of runs: what goes to the handler, and when.

namespace {

constexpr unsigned char kLineFeed = 10;

/// As many rows are copied anew for every run.
constexpr std::size_t kRowsCopiedAnew = 64;

/// Makes `shown` equal to `rows`. Where those are many, rows that are in their place from behind are taken to be so up
/// to the front: between two calls both only grow at their ends, or are cut there.
void ShowRows(std::vector<CRTFTableRow*>& shown, const std::vector<CRTFTableRow*>& rows) {
  if (rows.empty() && shown.empty()) return;
  if (rows.size() <= kRowsCopiedAnew) {
    shown = rows;
    return;
  }
  std::size_t common = std::min(shown.size(), rows.size());
  while (common > 0 && shown[common - 1] != rows[common - 1]) --common;
  if (common == shown.size() && common == rows.size()) return;
  shown.resize(common);
  shown.insert(shown.end(), rows.begin() + static_cast<std::ptrdiff_t>(common), rows.end());
}

/// The colour of characters goes before that of the paragraph, and both before that of the run.
int ColorIndex(int ofCharacters, int ofParagraph, int ofRun) {
  if (ofCharacters > 0) return ofCharacters;
  return ofParagraph > 0 ? ofParagraph : ofRun;
}

}  // namespace

bool CRTFParser::PropCanChangeContext(IPROP prop) {
  switch (prop) {
    case ipropBold:
    case ipropItalic:
    case ipropUnderline:
    case ipropSuperscript:
    case ipropSubscript:
    case ipropNoSuperSub:
    case ipropFontSize:
    case ipropForeColorIndex:
    case ipropBackColorIndex:
      return true;
    case ipropFontId:
      return m_rds != rdsFontEntry;
    case ipropStyle:
      return m_rds != rdsStyleSheet;
    default:
      return false;
  }
}

void CRTFParser::FillState(CRTFState& state) {
  // A handler may have changed any of these at the run before.
  state.Next = nullptr;
  state.Destination = rdsNorm;
  state.InternalState = risNorm;
  state.List = nullptr;
  state.Level = nullptr;
  state.CharProps = m_CharProps;
  state.ParProps = m_ParProps;
  state.SecProps = m_SecProps;
  state.FontProps = m_FontProps;
  zeb::CopyWithoutRows(m_DocProps, state.DocProps);
  ShowRows(state.DocProps.Rows, m_DocProps.Rows);
  if (m_ParProps.InTable == 0) return;
  // Fixed behaviour: a run in a table has the formatting that the last tab, quote, raw byte or line end noted.
  state.CharProps.CellFontId = m_CellFont;
  state.CharProps.FontSize = m_CellFontSize;
  state.CharProps.Bold = m_CellBold;
  state.CharProps.Italic = m_CellItalic;
  state.CharProps.Superscript = m_CellSuper;
  state.CharProps.Subscript = m_CellSub;
}

void CRTFParser::ContextHasChanged(bool paragraphEnd, bool lineBreak, bool tableEnd) {
  if (m_pContextHandler == nullptr) {
    PrintChar(kLineFeed);
    return;
  }
  if (!m_TextBuffer.empty() || paragraphEnd || lineBreak || tableEnd || m_pPicture != nullptr) {
    CRTFState& state = m_pStore->m_RunState;
    FillState(state);
    CRTFContext context;
    context.State = &state;
    context.Font = GetFontAtID(m_ParProps.InTable != 0 ? m_CellFont : m_FontProps.FontId);
    context.ParagraphEnd = paragraphEnd ? 1 : 0;
    context.LineBreak = lineBreak ? 1 : 0;
    context.TableEnd = tableEnd ? 1 : 0;
    context.Picture = m_pPicture;
    context.ForeColor =
        GetColorAtID(ColorIndex(m_CharProps.CharForeColor, m_ParProps.ForeColor, m_FontProps.ForeColorIndex));
    context.BackColor =
        GetColorAtID(ColorIndex(m_CharProps.CharBackColor, m_ParProps.BackColor, m_FontProps.BackColorIndex));
    context.List = m_pCurList;
    context.Level = m_pCurLevel;
    m_pStore->m_bInHandler = true;
    m_pContextHandler->OnContextChanged(m_TextBuffer.c_str(), &context);
    m_pStore->m_bInHandler = false;
  }
  m_TextBuffer.clear();
  FreePicture();
}

int CRTFParser::ParseParagraphEnd() {
  if (m_ParProps.InTable == 0) {
    ContextHasChanged(true, false, false);
    return rtfOK;
  }
  if (!m_InRow) m_ParProps.InTable = 0;
  return PrintChar(kLineFeed);
}

int CRTFParser::ParseTabStop(int value) {
  if (m_ParProps.TabCount < CRTFTabStops::kCount) {
    CRTFTabStop& stop = m_ParProps.Tabs[m_ParProps.TabCount++];
    stop.Position = value;
    stop.Kind = m_ParProps.TabKind;
  }
  return rtfOK;
}

void CRTFParser::EndBookmarkStart() { HandOnBookmark(true); }
void CRTFParser::EndBookmarkEnd() { HandOnBookmark(false); }

void CRTFParser::HandOnBookmark(bool start) {
  if (m_pContextHandler != nullptr) {
    std::wstring name = m_BookmarkBuffer;
    m_pStore->m_bInHandler = true;
    m_pContextHandler->OnBookmark(std::move(name), start);
    m_pStore->m_bInHandler = false;
  }
  m_BookmarkBuffer.clear();
}

void CRTFParser::FreeOutput() { FreePicture(); }
