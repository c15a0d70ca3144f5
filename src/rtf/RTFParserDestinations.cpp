#include "rtf/RTFParser.h"

#include <array>
#include <cstddef>

namespace {

using Parser = CRTFParser;

constexpr int kFromAny = -1;

/// The destination that a keyword leads to, and the only one that it leads away from.
struct Change {
  int m_iFrom;  // an RDS or kFromAny
  Parser::RDS m_To;
};

// By IDEST.
constexpr std::array<Change, 19> kChanges = {{
    {kFromAny, Parser::rdsPicture},
    {kFromAny, Parser::rdsSkip},
    {kFromAny, Parser::rdsFontTable},
    {Parser::rdsFontTable, Parser::rdsFontEntry},
    {kFromAny, Parser::rdsStyleSheet},
    {Parser::rdsStyleSheet, Parser::rdsStyleEntry},
    {kFromAny, Parser::rdsColorTable},
    {Parser::rdsNorm, Parser::rdsPn},
    {Parser::rdsNorm, Parser::rdsBookmarkStart},
    {Parser::rdsNorm, Parser::rdsBookmarkEnd},
    {Parser::rdsNorm, Parser::rdsPnText},
    {Parser::rdsNorm, Parser::rdsPnTextBefore},
    {Parser::rdsNorm, Parser::rdsPnTextAfter},
    {kFromAny, Parser::rdsListTable},
    {kFromAny, Parser::rdsListLevel},
    {Parser::rdsListLevel, Parser::rdsLevelText},
    {Parser::rdsListLevel, Parser::rdsLevelNumbers},
    {kFromAny, Parser::rdsListOverrideTable},
    {Parser::rdsNorm, Parser::rdsListText},
}};
static_assert(kChanges.size() == Parser::idestListText + 1);

}  // namespace

int CRTFParser::ChangeDest(IDEST dest) {
  if (m_rds == rdsSkip) return rtfOK;
  if (dest < 0 || static_cast<std::size_t>(dest) >= kChanges.size()) return rtfBadTable;
  const Change& change = kChanges[static_cast<std::size_t>(dest)];
  if (change.m_iFrom != kFromAny && change.m_iFrom != m_rds) return rtfOK;
  m_rds = change.m_To;
  switch (m_rds) {
    case rdsFontEntry:
      BeginFontEntry();
      break;
    case rdsStyleEntry:
      BeginStyleEntry();
      break;
    case rdsColorTable:
      BeginColorTable();
      break;
    case rdsPnText:
      m_CharProps.PnText = 1;
      break;
    case rdsListLevel:
      BeginListLevel();
      break;
    default:
      break;
  }
  return rtfOK;
}

int CRTFParser::EndGroupAction(RDS dest) {
  switch (dest) {
    case rdsFontEntry:
      EndFontEntry();
      break;
    case rdsStyleEntry:
      EndStyleEntry();
      break;
    case rdsColorTable:
      EndColorTable();
      break;
    case rdsListTable:
      EndListTable();
      break;
    case rdsListLevel:
      EndListLevel();
      break;
    case rdsLevelText:
      EndLevelText();
      break;
    case rdsLevelNumbers:
      EndLevelNumbers();
      break;
    case rdsListOverrideTable:
      EndListOverrideTable();
      break;
    case rdsListText:
      EndListText();
      break;
    case rdsBookmarkStart:
      EndBookmarkStart();
      break;
    case rdsBookmarkEnd:
      EndBookmarkEnd();
      break;
    default:
      break;
  }
  m_rds = rdsNorm;
  return rtfOK;
}
