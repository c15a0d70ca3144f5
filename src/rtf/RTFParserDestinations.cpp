#include "rtf/RTFParser.h"

void CRTFParser::EnterFrom(RDS from, RDS to) {
  if (m_rds == from) m_rds = to;
}

int CRTFParser::ChangeDest(IDEST dest) {
  if (m_rds == rdsSkip) return rtfOK;
  switch (dest) {
    case idestPict:
      m_rds = rdsPicture;
      break;
    case idestSkip:
      m_rds = rdsSkip;
      break;
    case idestFontTable:
      m_rds = rdsFontTable;
      break;
    case idestFontEntry:
      if (m_rds != rdsFontTable) break;
      m_rds = rdsFontEntry;
      BeginFontEntry();
      break;
    case idestStyleSheet:
      m_rds = rdsStyleSheet;
      break;
    case idestStyleEntry:
      if (m_rds != rdsStyleSheet) break;
      m_rds = rdsStyleEntry;
      BeginStyleEntry();
      break;
    case idestColorTable:
      m_rds = rdsColorTable;
      BeginColorTable();
      break;
    case idestPn:
      EnterFrom(rdsNorm, rdsPn);
      break;
    case idestBookmarkStart:
      EnterFrom(rdsNorm, rdsBookmarkStart);
      break;
    case idestBookmarkEnd:
      EnterFrom(rdsNorm, rdsBookmarkEnd);
      break;
    case idestPnText:
      if (m_rds == rdsNorm) m_CharProps.PnText = 1;
      EnterFrom(rdsNorm, rdsPnText);
      break;
    case idestPnTextBefore:
      EnterFrom(rdsNorm, rdsPnTextBefore);
      break;
    case idestPnTextAfter:
      EnterFrom(rdsNorm, rdsPnTextAfter);
      break;
    case idestListTable:
      m_rds = rdsListTable;
      break;
    case idestListLevel:
      m_rds = rdsListLevel;
      BeginListLevel();
      break;
    case idestLevelText:
      EnterFrom(rdsListLevel, rdsLevelText);
      break;
    case idestLevelNumbers:
      EnterFrom(rdsListLevel, rdsLevelNumbers);
      break;
    case idestListOverrideTable:
      m_rds = rdsListOverrideTable;
      break;
    case idestListText:
      EnterFrom(rdsNorm, rdsListText);
      break;
    default:
      return rtfBadTable;
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
