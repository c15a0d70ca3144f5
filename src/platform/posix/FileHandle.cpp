#include "platform/FileHandle.h"

#include <unistd.h>
#include <cerrno>

namespace zeb {

long long BytesLeftInFile(int handle) {
  const off_t position = lseek(handle, 0, SEEK_CUR);
  if (position < 0) return 0;
  const off_t end = lseek(handle, 0, SEEK_END);
  if (lseek(handle, position, SEEK_SET) < 0 || end < position) return 0;
  return end - position;
}

int ReadFromFile(int handle, void* buffer, int count) {
  int done = 0;
  while (done < count) {
    const ssize_t now = read(handle, static_cast<char*>(buffer) + done, static_cast<size_t>(count - done));
    if (now < 0 && errno == EINTR) continue;
    if (now <= 0) break;
    done += static_cast<int>(now);
  }
  return done;
}

}  // namespace zeb
