#include "placement/TiedHeights.h"

#include <cstddef>
#include <utility>

namespace zeb {

void TiedHeights::Join(Number element, Number reference) {
  EntryOf(m_Stops, element);
  EntryOf(m_Stops, reference);
  const int ofElement = m_Stops[element].group;
  const int ofReference = m_Stops[reference].group;
  if (ofElement == ofReference && ofElement != HeightGroupIndex::kNoGroup) return;

  if (ofElement == ofReference) {
    m_rIndex.AddGroup(m_rGroups);
    const int group = static_cast<int>(m_rGroups.size()) - 1;
    Enter(group, element);
    if (reference != element) Enter(group, reference);
  } else if (ofReference == HeightGroupIndex::kNoGroup ||
             (ofElement != HeightGroupIndex::kNoGroup && ofElement < ofReference)) {
    Enter(ofElement, reference);
  } else {
    Enter(ofReference, element);
  }
}

void TiedHeights::GoOn(Number element, Number reference, bool adjustHeight) {
  EntryOf(m_Stops, reference);
  Stop& stop = EntryOf(m_Stops, element);
  stop.goesTo = reference;
  stop.adjustHeight = adjustHeight;
  if (!m_bUnevenPossible) return;
  // The object has not been followed yet, so that it is a splay tree of its own.
  EntryOf(m_Nodes, reference);
  EntryOf(m_Nodes, element).parent = reference;
}

void TiedHeights::EndWithJoining(Number element, Number reference) {
  EntryOf(m_Stops, element).joinedAtEnd = reference;
}

void TiedHeights::FollowAgain(Number start) {
  if (!m_bUnevenPossible || start >= m_Nodes.size()) return;
  Number stop = start;
  for (;;) {
    Expose(stop);
    const Number uneven = FirstUneven(stop);
    if (uneven == kNone) break;
    Splay(uneven);
    // Joining may make the tie in front of this one uneven: that one has been passed.
    stop = m_Stops[uneven].goesTo;
    Join(uneven, stop);
  }
  const Number end = EndOf(stop);
  if (m_Stops[end].joinedAtEnd != kNone) Join(end, m_Stops[end].joinedAtEnd);
}

void TiedHeights::Enter(int group, Number object) {
  HeightGroupIndex::AddNewElement(*m_rGroups[static_cast<std::size_t>(group)], m_rNumbers.Object(object));
  const bool comesFromAnother = m_Stops[object].group != HeightGroupIndex::kNoGroup;
  if (comesFromAnother && !m_bUnevenPossible) BeginSearching();
  m_Stops[object].group = group;
  if (!m_bUnevenPossible) return;
  EntryOf(m_Nodes, object);
  Splay(object);
  Update(object);
}

// Until now no road had to be searched: each object is a splay tree of its own.
void TiedHeights::BeginSearching() {
  m_bUnevenPossible = true;
  m_Nodes.resize(m_Stops.size());
  for (std::size_t i = 0; i < m_Stops.size(); ++i) m_Nodes[i].parent = m_Stops[i].goesTo;
}

TiedHeights::Number TiedHeights::EndOf(Number root) const {
  const Number last = m_Nodes[root].last;
  return last == kNone ? root : last;
}

TiedHeights::Number TiedHeights::StartOf(Number root) const {
  const Number first = m_Nodes[root].first;
  return first == kNone ? root : first;
}

bool TiedHeights::IsRoot(Number stop) const {
  const Number parent = m_Nodes[stop].parent;
  return parent == kNone || (m_Nodes[parent].left != stop && m_Nodes[parent].right != stop);
}

bool TiedHeights::IsUneven(Number stop, Number reference) const {
  return m_Stops[stop].adjustHeight && m_Stops[stop].group != m_Stops[reference].group;
}

// Of the uneven ties in the tree of the root, the one nearest to the start of the road, as the object that is tied.
TiedHeights::Number TiedHeights::FirstUneven(Number root) const {
  Number stop = root;
  for (;;) {
    const Node& entry = m_Nodes[stop];
    if (entry.right != kNone) {
      const bool inside = m_Nodes[entry.right].uneven;
      const Number end = EndOf(entry.right);
      if (!inside && IsUneven(end, stop)) return end;
      if (inside) {
        stop = entry.right;
        continue;
      }
    }
    if (entry.left == kNone) return kNone;
    if (IsUneven(stop, StartOf(entry.left))) return stop;
    if (!m_Nodes[entry.left].uneven) return kNone;
    stop = entry.left;
  }
}

// Makes the road from the stop to its end one splay tree, with the stop as its root.
void TiedHeights::Expose(Number stop) {
  Number behind = kNone;
  for (Number at = stop; at != kNone; at = m_Nodes[at].parent) {
    Splay(at);
    m_Nodes[at].right = behind;
    Update(at);
    behind = at;
  }
  Splay(stop);
}

void TiedHeights::Splay(Number stop) {
  while (!IsRoot(stop)) {
    const Number parent = m_Nodes[stop].parent;
    if (!IsRoot(parent)) {
      const Number grandparent = m_Nodes[parent].parent;
      const bool sameSide = (m_Nodes[grandparent].left == parent) == (m_Nodes[parent].left == stop);
      Rotate(sameSide ? parent : stop);
    }
    Rotate(stop);
  }
}

void TiedHeights::Rotate(Number stop) {
  const Number parent = m_Nodes[stop].parent;
  const Number grandparent = m_Nodes[parent].parent;
  if (!IsRoot(parent)) {
    (m_Nodes[grandparent].left == parent ? m_Nodes[grandparent].left : m_Nodes[grandparent].right) = stop;
  }
  const bool fromLeft = m_Nodes[parent].left == stop;
  Number& inner = fromLeft ? m_Nodes[stop].right : m_Nodes[stop].left;
  (fromLeft ? m_Nodes[parent].left : m_Nodes[parent].right) = inner;
  if (inner != kNone) m_Nodes[inner].parent = parent;
  inner = parent;
  m_Nodes[parent].parent = stop;
  m_Nodes[stop].parent = grandparent;
  Update(parent);
  Update(stop);
}

void TiedHeights::Update(Number stop) {
  Node& entry = m_Nodes[stop];
  entry.last = stop;
  entry.first = stop;
  entry.uneven = false;
  if (entry.left != kNone) {
    entry.last = EndOf(entry.left);
    entry.uneven = m_Nodes[entry.left].uneven || IsUneven(stop, StartOf(entry.left));
  }
  if (entry.right != kNone) {
    entry.first = StartOf(entry.right);
    entry.uneven = entry.uneven || m_Nodes[entry.right].uneven || IsUneven(EndOf(entry.right), stop);
  }
}

}  // namespace zeb
