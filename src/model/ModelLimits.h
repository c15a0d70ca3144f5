#pragma once

// Limits to what the file of a report can make the library do. What lies beyond fails, or is cut, as the
// comment says; nothing beyond a limit crashes, hangs or uses memory out of proportion to the file.
namespace zeb {

/// The greatest length of a picture of which the file does not hold every byte, and the bytes that all pictures of a
/// file together may claim without bringing them. Above: "NoMoreMemoryLeft".
inline constexpr int kGreatestUnbackedPicture = 64 * 1024 * 1024;

}  // namespace zeb
