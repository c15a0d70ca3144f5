#pragma once

#include "foundation/RecordReader.h"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>

namespace zeb {

/// Why the reading of a file did not take an element.
enum class ReadingFault {
  UnknownName,
  OutOfOrder,
  SecondOccurrence,
  IdentifierWithoutObject,
  NotReached,  ///< another element has ended the reading of the record
};

/// What the walks over an element's children asked under one name. Events are numbered from 1 in each element.
struct AskedName {
  zebxmln::CXMLNode** FirstPlace = nullptr;  // observer: the cursor when the name was asked for first
  zebxmln::CXMLNode** LastPlace = nullptr;   // observer: and last
  unsigned int LastAsk = 0;
  unsigned int LastAskWalk = 0;
  unsigned int LastTaking = 0;  // 0 if it was never taken
  unsigned int LastTakingWalk = 0;
};

/// What a reading did with an element. There is one for each, so it is small.
struct ReadElement {
  unsigned int TakenAt = 0;   // the event of the parent that took it by its name, 0 if none did
  unsigned int PassedAt = 0;  // the event of the parent that passed it whatever its name, 0 if none did
  bool IsText = false;        // its text was read
  bool IsLookedInto = false;  // its text, bytes or children were read
  bool IsRefused = false;     // it was left out after a look at its identifier
};

/// What the walks over an element's children asked for.
struct WalkedRecord {
  unsigned int Walks = 0;
  unsigned int Events = 0;  // of all of them
  std::map<ElementName, AskedName> Asked;
  ElementName Missing;  // the child without which nothing else is read; empty if none is missing
  zebxmln::CXMLNode** MissingPlace = nullptr;  // observer: where it should stand
};

/// What was noticed of an element's identifier.
struct IdentifierNote {
  ReadingFault Fault = ReadingFault::IdentifierWithoutObject;
  std::wstring Text;
  std::optional<int> Awaited;  // the identifier whose record makes the note void
};

/// All that was noted while one document was read.
struct ReadingNotes {
  std::unordered_map<const zebxmln::CXMLNode*, ReadElement> Elements;
  std::unordered_map<const zebxmln::CXMLNode*, WalkedRecord> Records;
  std::unordered_map<const zebxmln::CXMLNode*, IdentifierNote> Identifiers;
  std::set<int> RecordIDs;                                // of the objects whose records were read
  std::set<int> DefinedFormulas;                          // the identifiers of formulas that zones define
  std::map<int, const zebxmln::CXMLNode*> LoadedRecords;  // by the identifiers with which they begin

  const ReadElement* Find(const zebxmln::CXMLNode* node) const {
    const auto found = Elements.find(node);
    return found == Elements.end() ? nullptr : &found->second;
  }
};

}  // namespace zeb
