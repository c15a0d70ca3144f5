#pragma once

#include <vector>

namespace zeb {

/// Reads the file of a font whole. It is closed again before this returns, however it ends.
/// Errors: "WrongParameter" if the path is null or empty, or if the reader has a file open already; "ReadFileFailure";
/// "NoMoreMemoryLeft", also for a file of more bytes than an `int` can count.
/// @param openHandle the file handle of the reader's metrics, -1 if none is open
std::vector<unsigned char> ReadFontFile(const wchar_t* path, int openHandle);

}  // namespace zeb
