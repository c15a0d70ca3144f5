#pragma once

#include "platform/Export.h"
#include "rtf/RTFParser.h"
#include "rtf/RTFProperties.h"

#include <cstddef>

/// The formatting that a parser saves at an opening brace and restores at the closing one. It is a node of a singly
/// linked stack. With every run of text a handler gets one that is part of no stack: in it only the five property
/// objects are filled. List and level of the run stand in CRTFContext.
class ZEB_EXPORT CRTFState {
 public:
  CRTFState* Next = nullptr;  // observer
  CCharacterProperties CharProps;
  CParagraphProperties ParProps;
  CSectionProperties SecProps;
  CDocumentProperties DocProps;
  CFontProperties FontProps;
  CRTFParser::RDS Destination = CRTFParser::rdsNorm;
  int InternalState = CRTFParser::risNorm;
  CRTFListTableEntry* List = nullptr;   // observer
  CRTFListLevelEntry* Level = nullptr;  // observer

 private:
  friend class CRTFParser;

  int m_cGroups = 1;        // how many groups, one directly in the other, this state was saved for
  std::size_t m_cRows = 0;  // rows of the table at saving; a state of the stack keeps no list of them
  int m_iFreedTables = 0;   // how many tables had been freed at saving
};
