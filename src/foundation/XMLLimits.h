#pragma once

#include <cstddef>
#include <cstdint>

// What the XML facility takes at most of a single file, so that a hostile one cannot use time or memory out of
// proportion to its length. Depth, number of elements and length of texts have no limit of their own.
namespace zeb {

/// Entities that a document type may declare. Entities within entities are expanded by recursion.
inline constexpr int kMaxXMLEntities = 1000;

/// Attributes that a document type may declare: each costs time at every element that may have it.
inline constexpr int kMaxXMLDeclaredAttributes = 200;

/// How many times its own length a file may grow by its entities, once what they gave has reached the threshold. The
/// parser's own limit, which is more generous, stays on.
inline constexpr std::uint64_t kMaxXMLAmplification = 10;
inline constexpr std::uint64_t kXMLAmplificationThreshold = 1048576;

/// Levels up to which nested elements are indented on writing: the indentation of a document grows with the square of
/// its depth.
inline constexpr std::size_t kMaxXMLIndentation = 32;

}  // namespace zeb
