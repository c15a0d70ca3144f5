#pragma once

#include "rtf/RTFParser.h"
#include "rtf/RTFState.h"
#include "rtf/RecordingHandler.h"

#include <string>
#include <string_view>

namespace zebtest {

/// A document and a handler, made before the parser that uses them.
struct ProbeParts {
  explicit ProbeParts(std::string_view data) : m_strData(data) {}

  std::string m_strData;
  RecordingHandler m_Handler;
};

/// A parser whose protected side is open. With a recording handler unless it is made without one.
class ParserProbe : private ProbeParts, public CRTFParser {
 public:
  explicit ParserProbe(std::string_view data = {}, bool hasHandler = true)
      : ProbeParts(data),
        CRTFParser(reinterpret_cast<unsigned char*>(m_strData.data()), static_cast<int>(m_strData.size()),
                   hasHandler ? &m_Handler : nullptr, nullptr) {}

  const RecordingHandler& Handler() const { return m_Handler; }
  const std::string& Data() const { return m_strData; }
  int OffsetOfCursor() const { return static_cast<int>(m_Size - (m_pEnd - m_pCur)); }

  using CRTFParser::ApplyPropChange;
  using CRTFParser::ChangeDest;
  using CRTFParser::ContextHasChanged;
  using CRTFParser::EndGroupAction;
  using CRTFParser::GetChar;
  using CRTFParser::ParseChar;
  using CRTFParser::ParseMultiByteCharacter;
  using CRTFParser::ParseRtfKeyword;
  using CRTFParser::ParseSpecialKeyword;
  using CRTFParser::ParseSpecialProperty;
  using CRTFParser::ParseUnicodeChar;
  using CRTFParser::PopRtfState;
  using CRTFParser::PrintChar;
  using CRTFParser::PrintUnicodeChar;
  using CRTFParser::PropCanChangeContext;
  using CRTFParser::PushRtfState;
  using CRTFParser::TranslateKeyword;
  using CRTFParser::UnGetChar;

  using CRTFParser::m_BookmarkBuffer;
  using CRTFParser::m_bSkipDestIfUnknown;
  using CRTFParser::m_cbBin;
  using CRTFParser::m_cGroup;
  using CRTFParser::m_CharProps;
  using CRTFParser::m_Colors;
  using CRTFParser::m_cSkip;
  using CRTFParser::m_DocProps;
  using CRTFParser::m_FontProps;
  using CRTFParser::m_Fonts;
  using CRTFParser::m_InRow;
  using CRTFParser::m_KeywordCount;
  using CRTFParser::m_ListOverrides;
  using CRTFParser::m_Lists;
  using CRTFParser::m_lParam;
  using CRTFParser::m_NameBuffer;
  using CRTFParser::m_ParProps;
  using CRTFParser::m_pCurColor;
  using CRTFParser::m_pCurFont;
  using CRTFParser::m_pCurLevel;
  using CRTFParser::m_pCurList;
  using CRTFParser::m_pCurStyle;
  using CRTFParser::m_pKeywordTable;
  using CRTFParser::m_PnAfter;
  using CRTFParser::m_PnBefore;
  using CRTFParser::m_pPropTable;
  using CRTFParser::m_pStack;
  using CRTFParser::m_rds;
  using CRTFParser::m_ris;
  using CRTFParser::m_SecProps;
  using CRTFParser::m_StyleSheets;
  using CRTFParser::m_TextBuffer;
};

}  // namespace zebtest
