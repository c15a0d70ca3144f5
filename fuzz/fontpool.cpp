// A file of the font pool: any bytes are refused or give a font that is stored and read again without change, whatever
// its name is.

#include "fonts/FontPool.h"
#include "fonts/FontData.h"
#include "foundation/RecordReader.h"
#include "foundation/XMLFile.h"
#include "support/Files.h"
#include "support/TempDir.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace {

class Pool : public CFontPool {
 public:
  explicit Pool(const zebtest::TempDir& folder) { SetFontPoolPath(folder.WidePath().c_str()); }

  using CFontPool::ReadAvailableFonts;
  using CFontPool::ReadFontData;
};

/// The name of the font in a file; empty if there is none.
std::wstring FontNameOf(const std::wstring& file) {
  std::wstring name;
  try {
    const zeb::XMLFile document = zeb::XMLFile::Load(file.c_str());
    for (zeb::RecordReader reader(document.Root()); !reader.AtEnd(); reader.Next()) {
      if (reader.Read(L"FontName", name)) break;
    }
  } catch (const zebxmln::CXMLException&) {
    return {};
  }
  return name;
}

bool AreSame(const CFontData& one, const CFontData* other) {
  return other != nullptr && std::equal(one.GetData(), one.GetData() + one.GetLength(), other->GetData(),
                                        other->GetData() + other->GetLength());
}

/// Stores a font in an empty folder and reads it from there.
void CheckStoring(const std::wstring& name, const CFontData& data) {
  const zebtest::TempDir folder;
  try {
    Pool(folder).SetFontData(name.c_str(), L"", 400, false, data.GetData(), data.GetLength(), {name});
  } catch (const zebxmln::CXMLException&) {
    return;  // a name that is too long
  }
  for (const auto& entry : std::filesystem::directory_iterator(folder.Path())) {
    if (!entry.is_regular_file()) std::abort();
  }
  Pool again(folder);
  if (!AreSame(data, again.GetFontData(name.c_str()))) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const zebtest::TempDir folder;
  zebtest::WriteFile(folder.File("font.fd"), std::string(data, data + size));
  const std::wstring file = folder.WideFile("font.fd");
  const std::wstring name = FontNameOf(file);
  Pool pool(folder);
  pool.ReadFontData(file.c_str());
  pool.ReadAvailableFonts();
  pool.FindUniqueName(name.c_str());
  if (const CFontData* font = pool.GetFontData(name.c_str())) CheckStoring(name, *font);
  return 0;
}
