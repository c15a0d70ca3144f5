#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace zebbench {

/// One way to hold a report file: what is loaded from it can be walked and saved.
struct Library {
  std::string Name;
  std::function<std::shared_ptr<void>(const std::filesystem::path&)> Load;
  std::function<std::size_t(void*)> Walk;  // null if the library is not measured at it
  std::function<void(void*, const std::filesystem::path&)> Save;
};

/// The bare trees of libxml2 and pugixml, as far as they are installed.
std::vector<Library> PeerLibraries();

/// Ends the program with a message if something that is to be measured does not work.
void Check(bool succeeded, const char* what);

/// The main function of a program that measures `ours` and the peers at generated reports of these numbers of objects:
/// `Load`, `LoadAndWalk` and `Save`.
///
/// `peak_MB` is the most memory that a process needs which does the same once and nothing else.
int MeasureLibraries(int argc, char** argv, const Library& ours, const std::vector<int>& objects);

}  // namespace zebbench
