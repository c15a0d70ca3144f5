#pragma once

#include <filesystem>
#include <string>

namespace zebbench {

/// A folder for the files of a benchmark, removed with this object.
class ScratchFolder {
 public:
  ScratchFolder();
  ~ScratchFolder();
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  const std::filesystem::path& Path() const { return m_Path; }

 private:
  std::filesystem::path m_Path;
};

/// Memory that is freed stays with this process, as in a program that lives on. Otherwise the allocator gives back what
/// lies at the end after each round, and the next round waits for the system to give it again: what is measured then
/// depends on sizes that have nothing to do with the work.
void KeepFreedMemory();

/// The most memory that this process ever had resident, in MB; 0 where the system does not tell.
double PeakMegabytes();

/// Seconds of the processor that this process has used. What else the machine does plays no part.
double ProcessorSeconds();

/// Starts this program once more with `arguments` and gives the number that it prints: how a measurement gets a process
/// of its own, so that none sees the memory of another.
double RunAlone(const std::string& arguments);

}  // namespace zebbench
