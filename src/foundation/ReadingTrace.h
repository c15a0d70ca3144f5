#pragma once

#include "foundation/ReadingFindings.h"
#include "foundation/ReadingNotes.h"

#include <deque>
#include <optional>
#include <vector>

namespace zeb {

/// One walk over an element's children, as RecordReader reports it.
class RecordWalk {
 public:
  RecordWalk(ReadingNotes& notes, const zebxmln::CXMLNode& record);

  void Ask(ElementName name, zebxmln::CXMLNode** place, bool isThere);
  void Take(ElementName name, const zebxmln::CXMLNode& element);
  /// The cursor moves on without a name. What was just asked for and found there is taken.
  void Pass(zebxmln::CXMLNode** place);
  /// Nothing more of the record is read because the name is not there.
  void Miss(ElementName name, zebxmln::CXMLNode** place);

 private:
  ReadingNotes& m_Notes;                         // observer
  WalkedRecord& m_Record;                        // observer: in the notes
  unsigned int m_uiNumber;                       // among the walks over the record
  ElementName m_Found;                           // the last name that was asked for and found
  zebxmln::CXMLNode** m_ppFoundPlace = nullptr;  // observer: where it was found
};

/// Listens while a file is read and tells afterwards which elements were left out, and why.
///
/// A reading steps in silence over what is out of its place; this is how authors of files learn of it. Nothing is known
/// here of the formats: what counts are the names that the readings asked for, in the order of asking. The first
/// document that is loaded in the lifetime of a trace is the one that it listens to. One trace at a time; without one,
/// each step of a reading costs a test for null.
class ReadingTrace {
 public:
  ReadingTrace();
  ~ReadingTrace();
  ReadingTrace(const ReadingTrace&) = delete;
  ReadingTrace& operator=(const ReadingTrace&) = delete;

  /// The one that listens, null if none does.
  static ReadingTrace* Active() { return s_pActive; }

  /// What was left out, in file order. Complete once the document has ended. Of a document that an exception has ended,
  /// what was left out up to the last element that was looked at.
  /// @throws std::bad_alloc if there was no memory to collect it
  const std::vector<ReadingFinding>& Findings() const;

  void BeginDocument(const zebxmln::CXMLNode* root);
  /// The document is about to end.
  void EndDocument(const zebxmln::CXMLNode* root) noexcept;

  /// @return null if the record is not of the document that is listened to
  RecordWalk* BeginWalk(const zebxmln::CXMLNode& record);
  /// The element's children or bytes are looked at.
  void NoteLook(const zebxmln::CXMLNode& element);
  /// The element's text is read.
  void NoteText(const zebxmln::CXMLNode& element);

  /// A record has this identifier for its own.
  void NoteRecord(int id) { m_Notes.RecordIDs.insert(id); }
  /// A zone defines the formula of this identifier. A file has its record once for each list that names it.
  void NoteDefinedFormula(int id) { m_Notes.DefinedFormulas.insert(id); }
  /// A record was read into the object of its identifier.
  void NoteLoadedRecord(const zebxmln::CXMLNode& record, int id);
  /// A record was left out because no object of its class has its identifier.
  /// @param id nothing if the record does not begin with the identifier
  void NoteRefusedRecord(const zebxmln::CXMLNode& record, ElementName identifier, std::optional<int> id);
  /// The element that was read last refers to an object whose record has to follow.
  void NoteReference(int id);
  /// The element that was read last refers to an object of another class.
  void NoteWrongReference(int id);
  /// The element that was read last refers to an object that has an owner already.
  void NoteSecondReference(int id);

 private:
  bool IsListenedTo(const zebxmln::CXMLNode& node) const;
  void AddIdentifierNote(const zebxmln::CXMLNode* element, IdentifierNote note);

  static ReadingTrace* s_pActive;  // observer

  int m_iExceptions;  // on their way when the trace began
  bool m_bHasBegun = false;
  bool m_bOutOfMemory = false;
  const zebxmln::CXMLNode* m_pRoot = nullptr;  // observer: as long as the document lives
  const zebxmln::CXMLNode* m_pRead = nullptr;  // observer: the element whose text was read last
  ReadingNotes m_Notes;
  std::deque<RecordWalk> m_rgWalks;
  std::vector<ReadingFinding> m_rgFindings;
};

}  // namespace zeb
