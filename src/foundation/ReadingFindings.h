#pragma once

#include "foundation/ReadingNotes.h"

#include <string>
#include <vector>

namespace zeb {

/// An element that was left out when a file was read.
struct ReadingFinding {
  unsigned int Line = 0;    // of its start tag, from 1
  unsigned int Column = 0;  // in characters, from 1
  std::wstring Path;        // from the root; elements that have brothers of their name have a number from 1
  ReadingFault Fault = ReadingFault::UnknownName;
  std::wstring
      Text;  // why, as the rest of a sentence that begins with the fault and a colon; without its point
};

/// What the notes of a reading say about the elements of its document, in file order. Of an element that was left out,
/// only it is told and not what is in it. Long names of elements are cut.
/// @param isComplete whether the reading went through: of one that was broken off, nothing is said of elements behind the
///   last one that it looked at, nor of records that may be there
std::vector<ReadingFinding> FindUnread(const zebxmln::CXMLNode& root, const ReadingNotes& notes,
                                       bool isComplete);

}  // namespace zeb
