#include "foundation/ReadingFindings.h"

#include "foundation/XMLTree.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <string_view>
#include <utility>

namespace zeb {

using zebxmln::CXMLNode;

namespace {

/// Longer names are cut for people: a finding repeats them, and there may be many findings.
constexpr std::size_t kLongestShownName = 60;

std::wstring_view NameOf(const CXMLNode& node) { return XMLTree::NameOf(node).Wide; }

/// The name as a path or a sentence shows it.
std::wstring ShownNameOf(const CXMLNode& node) {
  const std::wstring_view name = NameOf(node);
  std::wstring shown(name.substr(0, kLongestShownName));
  if (name.size() > kLongestShownName) shown += L'\x2026';
  return shown;
}

std::wstring LineOf(const CXMLNode& node) {
  return L"line " + std::to_wstring(XMLTree::PositionOf(node).Line);
}

std::wstring NameAndLine(const CXMLNode& node) { return ShownNameOf(node) + L" in " + LineOf(node); }

/// Elements of one name under one parent.
struct Brothers {
  std::size_t All = 0;
  std::size_t Met = 0;                  // so far
  std::size_t Taken = 0;                // of those met
  std::size_t LookedInto = 0;           // of those met
  const CXMLNode* LastTaken = nullptr;  // observer
  bool IsLastLookedInto = false;
};

/// A fault, and why it is one.
struct Reason {
  ReadingFault Fault;
  std::wstring Text;
};

/// Goes through the children of one element that was read and says which of them were left out.
class ChildrenCheck {
 public:
  ChildrenCheck(const CXMLNode& parent, bool isText, const ReadingNotes& notes)
      : m_Parent(parent),
        m_bIsText(isText),
        m_Record(RecordOf(parent, notes)),
        m_Notes(notes),
        m_ppFirst(XMLTree::ChildrenOf(parent)) {
    for (CXMLNode** child = m_ppFirst; *child != nullptr; ++child) ++m_rgBrothers[NameOf(**child)].All;
  }

  /// Calls `found` with a child, its step in a path and the reason (null if it was taken): for each child that was left
  /// out, and each that was taken and about which there may be more to say.
  template <class Found>
  void Run(Found found) {
    for (CXMLNode** place = m_ppFirst; *place != nullptr; ++place) {
      Brothers& brothers = m_rgBrothers[NameOf(**place)];
      ++brothers.Met;
      const ReadElement* read = m_Notes.Find(*place);
      if (!IsTaken(read)) {
        const Reason reason = ReasonOf(place, brothers);
        found(**place, StepOf(**place, brothers), &reason);
      } else if (IsOneTooMany(*read, brothers)) {
        const Reason reason = TooMany(brothers.LookedInto, brothers.LastTaken);
        found(**place, StepOf(**place, brothers), &reason);
      } else {
        NoteTaken(**place, *read, brothers);
        if (MayHoldMore(**place)) found(**place, StepOf(**place, brothers), nullptr);
      }
    }
  }

 private:
  static const WalkedRecord& RecordOf(const CXMLNode& parent, const ReadingNotes& notes) {
    static const WalkedRecord s_NotWalked;
    const auto found = notes.Records.find(&parent);
    return found == notes.Records.end() ? s_NotWalked : found->second;
  }

  bool MayHoldMore(const CXMLNode& child) const {
    return XMLTree::HasChildren(child) || m_Notes.Identifiers.contains(&child);
  }

  static std::wstring StepOf(const CXMLNode& child, const Brothers& brothers) {
    std::wstring step = L"/" + ShownNameOf(child);
    if (brothers.All > 1) step += L"[" + std::to_wstring(brothers.Met) + L"]";
    return step;
  }

  /// By its name, or whatever its name and then read.
  bool IsTaken(const ReadElement* read) const {
    if (read == nullptr) return false;
    if (m_Record.Walks == 0) return read->IsLookedInto;
    return read->TakenAt > 0 || (read->PassedAt > 0 && read->IsLookedInto);
  }

  /// Taken, but not looked into as others of its name were.
  static bool IsOneTooMany(const ReadElement& read, const Brothers& brothers) {
    return !read.IsLookedInto && brothers.IsLastLookedInto;
  }

  void NoteTaken(const CXMLNode& child, const ReadElement& read, Brothers& brothers) {
    ++brothers.Taken;
    if (read.IsLookedInto) ++brothers.LookedInto;
    brothers.LastTaken = &child;
    brothers.IsLastLookedInto = read.IsLookedInto;
    const unsigned int event = std::max(read.TakenAt, read.PassedAt);
    if (m_rgTaken.empty() || event > m_rgTaken.back().first) m_rgTaken.emplace_back(event, &child);
    m_pLastTaken = &child;
  }

  static Reason TooMany(std::size_t count, const CXMLNode* last) {
    if (count == 1) return {ReadingFault::SecondOccurrence, NameAndLine(*last) + L" is the one that is read"};
    return {ReadingFault::SecondOccurrence,
            L"only " + std::to_wstring(count) + L" of its name are read, the last in " + LineOf(*last)};
  }

  Reason ReasonOf(CXMLNode** place, const Brothers& brothers) const {
    if (m_bIsText) {
      return {ReadingFault::UnknownName, ShownNameOf(m_Parent) + L" is read as a text without elements"};
    }
    const auto asked = m_Record.Asked.find(NameOf(**place));
    if (asked == m_Record.Asked.end()) return ReasonOfUnasked(place);
    if (brothers.Taken > 0 && IsReadAtOneTime(asked->second))
      return TooMany(brothers.Taken, brothers.LastTaken);
    if (m_rgTaken.empty() || asked->second.LastAsk > m_rgTaken.back().first)
      return ReasonOfLate(place, asked->second);
    return ReasonOfEarly(asked->second);
  }

  /// Whether nobody asked for the name again in the walk that has taken it.
  static bool IsReadAtOneTime(const AskedName& asked) {
    return asked.LastTaking > 0 &&
           (asked.LastAskWalk != asked.LastTakingWalk || asked.LastAsk < asked.LastTaking);
  }

  Reason ReasonOfUnasked(CXMLNode** place) const {
    const std::wstring parent = ShownNameOf(m_Parent);
    if (!m_Record.Missing.empty()) {
      const std::wstring missing(m_Record.Missing);
      if (place > m_Record.MissingPlace) {
        return {ReadingFault::NotReached, L"nothing of " + parent + L" is read without a " + missing +
                                              L" in the place of " + NameAndLine(**m_Record.MissingPlace)};
      }
    }
    return {ReadingFault::UnknownName, L"nothing reads " + ShownNameOf(**place) + L" in " + parent};
  }

  /// The name was asked for when all that was taken in front of it had been taken: the cursor stood elsewhere.
  Reason ReasonOfLate(CXMLNode** place, const AskedName& asked) const {
    if (asked.LastPlace < place) {
      return {ReadingFault::NotReached,
              NameAndLine(**asked.LastPlace) + L" ends the reading of " + ShownNameOf(m_Parent)};
    }
    CXMLNode** const behind = (asked.FirstPlace > place ? asked.FirstPlace : asked.LastPlace) - 1;
    if (behind <= place) return {ReadingFault::OutOfOrder, L"its place is further behind"};
    return {ReadingFault::OutOfOrder,
            L"stands before " + NameAndLine(*place[1]) + L", belongs behind " +
                (behind == place + 1 ? std::wstring(L"it") : NameAndLine(**behind))};
  }

  /// The name was asked for the last time before all that stands in front of it had been taken.
  Reason ReasonOfEarly(const AskedName& asked) const {
    const auto later =
        std::upper_bound(m_rgTaken.begin(), m_rgTaken.end(), asked.LastAsk,
                         [](unsigned int event, const auto& taken) { return event < taken.first; });
    return {ReadingFault::OutOfOrder,
            L"stands behind " + NameAndLine(*m_pLastTaken) + L", belongs before " +
                (later->second == m_pLastTaken ? std::wstring(L"it") : NameAndLine(*later->second))};
  }

  const CXMLNode& m_Parent;  // observer
  bool m_bIsText;
  const WalkedRecord& m_Record;  // observer
  const ReadingNotes& m_Notes;   // observer
  CXMLNode** m_ppFirst;          // observer
  std::map<std::wstring_view, Brothers> m_rgBrothers;
  std::vector<std::pair<unsigned int, const CXMLNode*>> m_rgTaken;  // in order of their events, which rise
  const CXMLNode* m_pLastTaken = nullptr;                           // observer
};

/// An element that is to be looked at, and its path.
struct OpenElement {
  const CXMLNode* Node;  // observer
  std::wstring Path;
};

std::pair<unsigned int, unsigned int> PlaceOf(const CXMLNode& node) {
  const XMLPosition position = XMLTree::PositionOf(node);
  return {position.Line, position.Column};
}

/// The place of the last element, in file order, that was looked at: read, or asked for its name.
std::pair<unsigned int, unsigned int> LastPlaceLookedAt(const ReadingNotes& notes) {
  std::pair<unsigned int, unsigned int> last(0, 0);
  for (const auto& [element, read] : notes.Elements) last = std::max(last, PlaceOf(*element));
  for (const auto& [record, walked] : notes.Records) {
    for (const auto& [name, asked] : walked.Asked) {
      if (*asked.LastPlace != nullptr) last = std::max(last, PlaceOf(**asked.LastPlace));
    }
  }
  return last;
}

ReadingFinding MakeFinding(const CXMLNode& node, std::wstring path, ReadingFault fault, std::wstring text) {
  const XMLPosition position = XMLTree::PositionOf(node);
  return {position.Line, position.Column, std::move(path), fault, std::move(text)};
}

}  // namespace

std::vector<ReadingFinding> FindUnread(const CXMLNode& root, const ReadingNotes& notes, bool isComplete) {
  std::vector<ReadingFinding> findings;
  std::vector<OpenElement> open{{&root, L"/" + ShownNameOf(root)}};
  while (!open.empty()) {
    const OpenElement element = std::move(open.back());
    open.pop_back();
    if (const auto note = notes.Identifiers.find(element.Node); note != notes.Identifiers.end()) {
      const IdentifierNote& identifier = note->second;
      // Of a reading that was broken off, the awaited record may be in the part that was not read.
      if (!identifier.Awaited || (isComplete && !notes.RecordIDs.contains(*identifier.Awaited))) {
        findings.push_back(MakeFinding(*element.Node, element.Path, identifier.Fault, identifier.Text));
      }
    }
    // What was accepted without a look has nothing in it that anybody wanted.
    const ReadElement* read = notes.Find(element.Node);
    if (read == nullptr || read->IsRefused || !read->IsLookedInto) continue;
    ChildrenCheck(*element.Node, read->IsText, notes)
        .Run([&](const CXMLNode& child, const std::wstring& step, const Reason* reason) {
          if (reason != nullptr) {
            findings.push_back(MakeFinding(child, element.Path + step, reason->Fault, reason->Text));
          } else {
            open.push_back({&child, element.Path + step});
          }
        });
  }
  if (!isComplete) {
    std::erase_if(findings, [last = LastPlaceLookedAt(notes)](const ReadingFinding& finding) {
      return std::pair(finding.Line, finding.Column) > last;
    });
  }
  std::stable_sort(findings.begin(), findings.end(),
                   [](const ReadingFinding& first, const ReadingFinding& second) {
                     return std::pair(first.Line, first.Column) < std::pair(second.Line, second.Column);
                   });
  return findings;
}

}  // namespace zeb
