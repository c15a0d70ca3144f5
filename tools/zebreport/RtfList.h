#pragma once

#include "ZEBReportDocument.h"

#include <map>
#include <string>

namespace zebreport {

/// Finds the number or bullet in front of each paragraph of a document.
///
/// The reader gives the text of a mark to the level in force where it stands. Mostly that is in front of the list's
/// number, so that the mark is found in the level of the record before. It is taken away where it was found, as levels and
/// lists stay in force behind their paragraphs.
class ListMarks {
 public:
  /// Takes every record of a document in turn.
  /// @param startsParagraph whether the text of the record begins a paragraph
  /// @return the mark with the tab or blank behind it; empty if the paragraph is in no list
  std::wstring Next(const std::wstring& text, const CRTFContext& context, bool startsParagraph);

 private:
  std::wstring TakeMark(CRTFListLevelEntry* current);
  /// The mark of a paragraph in front of which no level was in force, so that the reader has dropped it.
  std::wstring LostMark(const CRTFContext& context);

  CRTFListLevelEntry* m_previous = nullptr;          // observer; in force at the record before
  std::map<const CRTFListLevelEntry*, int> m_cLost;  // lost numbers of each level
};

}  // namespace zebreport
