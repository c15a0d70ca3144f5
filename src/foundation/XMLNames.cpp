#include "foundation/XMLNames.h"

#include "platform/Unicode.h"

#include <string>
#include <type_traits>

namespace zeb {

namespace {

constexpr std::string_view kBinaryData = "BinaryData";

/// FNV-1a over the characters.
template <class Character>
std::size_t Hash(std::basic_string_view<Character> name) {
  std::uint32_t hash = 2166136261U;
  for (const Character character : name) {
    hash = (hash ^ static_cast<std::uint32_t>(static_cast<std::make_unsigned_t<Character>>(character))) *
           16777619U;
  }
  return hash ^ hash >> 15;
}

}  // namespace

const XMLName& XMLNames::Find(std::string_view name) {
  const XMLName*& recent = m_rgpRecent[Hash(name) % kRecent];
  if (recent == nullptr || recent->Utf8 != name) recent = &FindInMap(name);
  return *recent;
}

const XMLName& XMLNames::Find(std::wstring_view name) {
  const XMLName*& recent = m_rgpRecentWide[Hash(name) % kRecent];
  if (recent == nullptr || recent->Wide != name) recent = &FindInMap(WideToUtf8(name));
  return *recent;
}

const XMLName& XMLNames::FindInMap(std::string_view name) {
  const auto known = m_rgpNames.find(name);
  if (known != m_rgpNames.end()) return *known->second;
  const std::string_view utf8(m_Arena.CopyText(name), name.size());
  const std::wstring wide = Utf8ToWide(name);
  const wchar_t* terminated = m_Arena.CopyText(std::wstring_view(wide));
  const XMLName* made =
      m_Arena.Make<XMLName>(XMLName{utf8, {terminated, wide.size()}, &m_Tree, name == kBinaryData});
  m_rgpNames.emplace(utf8, made);
  return *made;
}

}  // namespace zeb
