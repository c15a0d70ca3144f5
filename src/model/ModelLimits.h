#pragma once

// Limits to what the file of a report can make the library do. What lies beyond fails, or is cut, as the
// comment says; nothing beyond a limit crashes, hangs or uses memory out of proportion to the file.
namespace zeb {

/// Bytes that the length of a picture may claim beyond what the file holds of it. Above: "NoMoreMemoryLeft".
inline constexpr int kGreatestUnbackedPicture = 64 * 1024 * 1024;

}  // namespace zeb
