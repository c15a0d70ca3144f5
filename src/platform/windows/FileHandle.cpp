#include "platform/FileHandle.h"

#include <io.h>

#include <cstdio>

namespace zeb {

long long BytesLeftInFile(int handle) {
  const long long position = _telli64(handle);
  if (position < 0) return 0;
  const long long end = _lseeki64(handle, 0, SEEK_END);
  if (_lseeki64(handle, position, SEEK_SET) < 0 || end < position) return 0;
  return end - position;
}

int ReadFromFile(int handle, void* buffer, int count) {
  int done = 0;
  while (done < count) {
    const int now = _read(handle, static_cast<char*>(buffer) + done, static_cast<unsigned>(count - done));
    if (now <= 0) break;
    done += now;
  }
  return done;
}

}  // namespace zeb
