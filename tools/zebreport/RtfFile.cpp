#include "RtfFile.h"

#include "Failure.h"
#include "Utf8.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>
#include <system_error>
#include <vector>

namespace zebreport {

namespace {

std::vector<unsigned char> ReadBytes(const std::wstring& path) {
  const std::filesystem::path name = ToPath(path);
  std::error_code error;
  if (std::filesystem::is_directory(name, error)) throw Failure(path + L": this is a folder; name a file.");
  std::ifstream file(name, std::ios::binary);
  if (!file) throw Failure(path + L": the file cannot be opened; check its name.");
  std::vector<unsigned char> bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  if (bytes.size() > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
    throw Failure(path + L": the file is larger than 2 GiB; split it.");
  }
  return bytes;
}

/// What a result of the reader says, and what to do.
const wchar_t* Explain(int result) {
  switch (result) {
    case 1:
      return L"a closing brace has no opening one; remove it.";
    case 2:
      return L"there is too little memory for the nesting of its groups.";
    case 3:
      return L"the file ends inside of a group; it is not complete.";
    case 4:
      return L"\\' is not followed by two hexadecimal digits; correct them.";
    case 5:
      return L"a keyword cannot be used where it stands, such as a list number that no list has or a colour "
             L"outside of the colour table.";
    case 7:
      return L"the file ends inside of a keyword; it is not complete.";
    default:
      return L"the reader came into a state that it does not know.";
  }
}

}  // namespace

void ReadRtf(const std::wstring& file, CContextChangedHandler& handler,
             CPictureConvertHandler* pictureHandler) {
  std::vector<unsigned char> bytes = ReadBytes(file);
  CRTFParser parser(bytes.data(), static_cast<int>(bytes.size()), &handler, pictureHandler);
  const int result = parser.RtfParse();
  if (result != 0) {
    throw Failure(file + L": the rich text is broken (code " + std::to_wstring(result) + L"): " +
                  Explain(result));
  }
}

}  // namespace zebreport
