#include "Failure.h"
#include "RtfFile.h"
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
    if (step.endsTable) EndLine();
    if (step.ignored) return;
    if (step.startsTable || step.startsRow) {
      EndLine();
    } else if (step.startsCell) {
      m_output += L'\t';
    }
    if (!step.place.has_value() && !m_inLine) m_output += ListMark(*context);
    m_inLine = true;
    m_output += text;
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
  std::wstring& m_output;
  TableWalk m_table;
  bool m_inLine = false;
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
