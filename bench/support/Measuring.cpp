#include "support/Measuring.h"

#include <malloc.h>
#include <unistd.h>

#include <cstdio>
#include <ctime>
#include <fstream>
#include <memory>

namespace zebbench {

namespace fs = std::filesystem;

ScratchFolder::ScratchFolder()
    : m_Path(fs::temp_directory_path() / ("zebbench-" + std::to_string(getpid()))) {
  fs::create_directory(m_Path);
}

ScratchFolder::~ScratchFolder() {
  std::error_code ignored;
  fs::remove_all(m_Path, ignored);
}

void KeepFreedMemory() {
#ifdef __GLIBC__
  mallopt(M_TRIM_THRESHOLD, 1 << 30);
  mallopt(M_MMAP_THRESHOLD, 32 << 20);  // the greatest that it takes
#endif
}

double PeakMegabytes() {
  // Not getrusage: its peak is inherited from the process that started this one.
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    double kilobytes = 0;
    if (word == "VmHWM:" && status >> kilobytes) return kilobytes / 1024;
  }
  return 0;
}

double ProcessorSeconds() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

double RunAlone(const std::string& arguments) {
  const std::string command = fs::read_symlink("/proc/self/exe").string() + " " + arguments;
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> output(popen(command.c_str(), "r"), &pclose);
  double number = 0;
  return output != nullptr && std::fscanf(output.get(), "%lf", &number) == 1 ? number : 0;
}

}  // namespace zebbench
