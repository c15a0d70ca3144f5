#include "platform/SingleBytePage.h"

#include "platform/posix/Iconv.h"

#include <map>
#include <optional>

namespace zeb {

namespace {

std::optional<SingleBytePage> MakePage(const std::string& name) {
  if (name.empty()) return std::nullopt;  // would be the encoding of the locale
  const Iconv conversion(name);
  if (!conversion.IsOpen()) return std::nullopt;
  SingleBytePage page = {};
  for (std::size_t byte = 0; byte < page.size(); ++byte) {
    const auto value = static_cast<unsigned char>(byte);
    const std::optional<std::int32_t> codePoint = conversion.Convert({&value, 1});
    if (!codePoint) return std::nullopt;
    page[byte] = *codePoint;
  }
  return page;
}

}  // namespace

const SingleBytePage* FindSingleBytePage(const std::string& name) {
  static std::map<std::string, SingleBytePage> s_Pages;
  const auto known = s_Pages.find(name);
  if (known != s_Pages.end()) return &known->second;
  const std::optional<SingleBytePage> page = MakePage(name);
  return page ? &s_Pages.emplace(name, *page).first->second : nullptr;
}

}  // namespace zeb
