#pragma once

#include "fonts/FontData.h"
#include "rtf/ContextChangedHandler.h"
#include "rtf/RTFContext.h"
#include "rtf/RTFParser.h"
#include "rtf/RTFState.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zebtest {

/// One call of OnContextChanged, with copies of what lives only during the call. Pointers of the record to fonts,
/// colours, lists and levels are the parser's.
struct RTFRun {
  std::wstring m_strText;
  CRTFState m_State;
  CRTFContext m_Context;  // its State and Picture are null
  bool m_bPicture = false;
  std::string m_strPicture;
};

/// Keeps every run and every bookmark.
class RecordingHandler : public CContextChangedHandler {
 public:
  void OnContextChanged(const wchar_t* text, CRTFContext* context) override {
    RTFRun run;
    run.m_strText = text;
    run.m_State = *context->State;
    run.m_Context = *context;
    run.m_Context.State = nullptr;
    run.m_Context.Picture = nullptr;
    if (CFontData* picture = context->Picture) {
      run.m_bPicture = true;
      for (int i = 0; i < picture->GetLength(); ++i) {
        run.m_strPicture += static_cast<char>(picture->GetData()[i]);
      }
    }
    m_Runs.push_back(std::move(run));
  }

  void OnBookmark(std::wstring name, bool start) override {
    m_Bookmarks.emplace_back(std::move(name), start);
  }

  /// The texts of all runs, each in brackets, with P, L and T behind for the end of a paragraph, a line and a table.
  std::wstring Outline() const {
    std::wstring outline;
    for (const RTFRun& run : m_Runs) {
      outline += L'[' + run.m_strText + L']';
      if (run.m_Context.ParagraphEnd != 0) outline += L'P';
      if (run.m_Context.LineBreak != 0) outline += L'L';
      if (run.m_Context.TableEnd != 0) outline += L'T';
    }
    return outline;
  }

  /// The texts of all runs in a row.
  std::wstring Text() const {
    std::wstring text;
    for (const RTFRun& run : m_Runs) text += run.m_strText;
    return text;
  }

  std::vector<RTFRun> m_Runs;
  std::vector<std::pair<std::wstring, bool>> m_Bookmarks;
};

/// A document, the parser that reads it and what it reports. The parser lives as long as this.
class RTFReading {
 public:
  explicit RTFReading(std::string_view data, CPictureConvertHandler* pictureHandler = nullptr)
      : m_Data(data.begin(), data.end()),
        m_Parser(m_Data.data(), static_cast<int>(m_Data.size()), &m_Handler, pictureHandler),
        m_iResult(m_Parser.RtfParse()) {}

  int Result() const { return m_iResult; }
  const CRTFParser& Parser() const { return m_Parser; }
  const std::vector<RTFRun>& Runs() const { return m_Handler.m_Runs; }
  const std::vector<std::pair<std::wstring, bool>>& Bookmarks() const { return m_Handler.m_Bookmarks; }
  std::wstring Outline() const { return m_Handler.Outline(); }
  std::wstring Text() const { return m_Handler.Text(); }

 private:
  std::vector<unsigned char> m_Data;
  RecordingHandler m_Handler;
  CRTFParser m_Parser;
  int m_iResult;
};

}  // namespace zebtest
