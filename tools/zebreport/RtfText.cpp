#include "Failure.h"
#include "RtfFile.h"
#include "RtfList.h"
#include "RtfTable.h"
#include "RtfViews.h"

namespace zebreport {

namespace {

/// Collects the text, with a tab between cells.
class Text final : public CContextChangedHandler {
 public:
  explicit Text(std::wstring& output) : m_output(output) {}

  void OnContextChanged(const wchar_t* text, CRTFContext* context) override {
    const TableStep step = m_table.Next(text, *context);
    const std::wstring mark = m_marks.Next(text, *context, step.startsParagraph);
    if (step.endsTable) EndLine();
    if (step.ignored) return;
    if (step.startsTable || step.startsRow) {
      EndLine();
    } else if (step.startsCell) {
      m_output += L'\t';
    }
    m_inLine = true;
    PartParagraphsOfCell(step, text[0] == L'\0' && context->Picture == nullptr);
    m_output += mark + text;
    if (context->Picture != nullptr) {
      m_output += L"[picture, " + std::to_wstring(context->Picture->GetLength()) + L" bytes]";
    }
    const bool ends = context->ParagraphEnd != 0 && !step.place.has_value();
    if (ends || context->LineBreak != 0) {
      m_output += L'\n';
      m_inLine = false;
    }
  }

  /// Ends a line that has begun.
  void EndLine() {
    if (m_inLine) m_output += L'\n';
    m_inLine = false;
  }

 private:
  /// The end of a cell's last paragraph may be followed by that of the cell: so a line ends when the next one has content.
  void PartParagraphsOfCell(const TableStep& step, bool isEmpty) {
    if (step.startsCell || !step.place.has_value()) {
      m_lineEnds = 0;
    } else if (step.startsParagraph) {
      ++m_lineEnds;
    }
    if (isEmpty) return;
    m_output.append(m_lineEnds, L'\n');
    m_lineEnds = 0;
  }

  std::wstring& m_output;
  TableWalk m_table;
  ListMarks m_marks;
  bool m_inLine = false;
  std::size_t m_lineEnds = 0;  // in the current cell, not yet written
};

}  // namespace

void ShowRtfText(const std::wstring& file, std::wstring& output) {
  Text text(output);
  try {
    ReadRtf(file, text, nullptr);
  } catch (const Failure&) {
    text.EndLine();
    throw;
  }
  text.EndLine();
}

}  // namespace zebreport
