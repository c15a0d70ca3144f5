#pragma once

namespace zeb {

/// Bytes between the position of an open file and its end; 0 if the file cannot tell.
long long BytesLeftInFile(int handle);

/// Reads up to `count` bytes from the position of an open file on.
/// @return how many bytes were read; fewer than `count` only at the end of the file or on a failure
int ReadFromFile(int handle, void* buffer, int count);

}  // namespace zeb
