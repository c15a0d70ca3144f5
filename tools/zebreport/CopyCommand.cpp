#include "Commands.h"
#include "Failure.h"
#include "LoadedReport.h"
#include "ReportTree.h"
#include "Utf8.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>
#include <utility>

namespace zebreport {

namespace {

namespace fs = std::filesystem;

/// The two files of one report; the layout may be missing.
struct ReportFiles {
  fs::path report;
  fs::path layout;
};

/// The path with the separator that the library looks for when it takes the file name of a layout.
std::wstring ForLayoutName(const fs::path& path) {
  std::wstring text = FromPath(path);
  std::replace(text.begin(), text.end(), L'/', L'\\');
  return text;
}

void Save(const LoadedReport& loaded, const ReportFiles& files) {
  const std::wstring report = FromPath(files.report);
  const std::wstring layout = ForLayoutName(files.layout);
  try {
    loaded.Root().SaveReport(report.c_str(), layout.empty() ? nullptr : layout.c_str());
  } catch (const CKXException& exception) {
    throw LibraryFailure(report, exception);
  }
}

std::string ReadBytes(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw Failure(FromPath(path) + L": the copy could not be read again; check the folder.");
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void RequireEqualBytes(const fs::path& first, const fs::path& second) {
  if (ReadBytes(first) != ReadBytes(second)) {
    throw Failure(FromPath(first) + L": saving the copy again gave other bytes, which are in " +
                  FromPath(second) + L"; compare the two files and report the difference.");
  }
}

void RequireOtherFile(const fs::path& source, const fs::path& copy) {
  std::error_code error;
  if (fs::equivalent(source, copy, error) && !error) {
    throw Failure(FromPath(copy) + L": the copy would overwrite what it is made from; choose another name.");
  }
}

fs::path WithSuffix(fs::path path, const std::string& suffix) { return path += suffix; }

/// The first line in which the texts differ, without its indentation; empty where a text has ended.
std::pair<std::wstring, std::wstring> FirstDifference(const std::wstring& first, const std::wstring& second) {
  std::wistringstream firstLines(first);
  std::wistringstream secondLines(second);
  std::wstring firstLine;
  std::wstring secondLine;
  do {
    if (!std::getline(firstLines, firstLine)) firstLine.clear();
    if (!std::getline(secondLines, secondLine)) secondLine.clear();
  } while (firstLine == secondLine && (firstLines || secondLines));
  const auto trimmed = [](const std::wstring& line) {
    const std::size_t begin = line.find_first_not_of(L' ');
    return begin == std::wstring::npos ? std::wstring() : line.substr(begin);
  };
  return {trimmed(firstLine), trimmed(secondLine)};
}

/// Loads the copy, compares what it says with `tree`, saves it once more beside itself and compares the bytes.
void CheckCopy(const ReportFiles& copy, const std::wstring& tree) {
  LoadedReport loaded;
  loaded.LoadExactly(copy.report, copy.layout);
  const std::wstring copied = ReportTreeAsSaved(loaded.Root()).text;
  if (copied != tree) {
    const auto [source, changed] = FirstDifference(tree, copied);
    throw Failure(FromPath(copy.report) + L": where the source says '" + source + L"' the copy says '" +
                  changed + L"'; files do not keep that value, so set it anew in the copy.");
  }
  // The name of the layout stands in the report, so the second layout has the same name in a folder of its own.
  const fs::path folder = WithSuffix(copy.report, ".again");
  std::error_code error;
  fs::create_directory(folder, error);
  const ReportFiles again{folder / copy.report.filename(),
                          copy.layout.empty() ? fs::path() : folder / copy.layout.filename()};
  Save(loaded, again);
  RequireEqualBytes(copy.report, again.report);
  if (!copy.layout.empty()) RequireEqualBytes(copy.layout, again.layout);
  fs::remove_all(folder, error);
}

/// Loads, prints and saves the source. It has ended when the copy is loaded.
/// @return what the source says
SavedTree MakeCopy(const ReportFiles& source, const ReportFiles& copy) {
  LoadedReport loaded;
  loaded.LoadExactly(source.report, source.layout);
  SavedTree tree = ReportTreeAsSaved(loaded.Root());
  Save(loaded, copy);
  return tree;
}

}  // namespace

int RunCopy(ArgumentReader& arguments, std::wstring& output) {
  const auto layouts = arguments.TakeOption(L"--layout", 2);
  const std::vector<std::wstring> names = arguments.TakeRest({L"report file", L"name of the copy"});
  ReportFiles source{ToPath(names[0]), {}};
  ReportFiles copy{ToPath(names[1]), {}};
  if (layouts.has_value()) {
    source.layout = ToPath(layouts->at(0));
    copy.layout = ToPath(layouts->at(1));
    RequireOtherFile(source.layout, copy.layout);
  }
  RequireOtherFile(source.report, copy.report);

  const SavedTree tree = MakeCopy(source, copy);
  CheckCopy(copy, tree.text);

  output += FromPath(source.report) + (layouts.has_value() ? L" and its layout were" : L" was") +
            L" copied to " + FromPath(copy.report) +
            L"; loaded again, the copy says the same and is saved with the same bytes.\n";
  if (tree.unsavedTies > 0) {
    output += L"Layout files keep no ties of table cells on pages; ties that the copy lacks: " +
              std::to_wstring(tree.unsavedTies) + L".\n";
  }
  return 0;
}

}  // namespace zebreport
