// The private operations that look for fonts in the registry. A system without one answers "not found".

#include "fonts/TrueTypeFontMetrics.h"

#include <gtest/gtest.h>

#include <memory>

#if !defined(_WIN32)

namespace {

/// Names a private member: an explicit instantiation may, where no other code can.
template <class Tag, auto Member>
struct Expose {
  friend constexpr auto MemberOf(Tag /*tag*/) { return Member; }
};

struct EnumValue {
  friend constexpr auto MemberOf(EnumValue tag);
};
struct FindFont {
  friend constexpr auto MemberOf(FindFont tag);
};
struct ReadString {
  friend constexpr auto MemberOf(ReadString tag);
};
struct SpecialFolder {
  friend constexpr auto MemberOf(SpecialFolder tag);
};

template struct Expose<EnumValue, &CTrueTypeFontMetrics::EnumRegistryValue>;
template struct Expose<FindFont, &CTrueTypeFontMetrics::FindFontInRegistry>;
template struct Expose<ReadString, &CTrueTypeFontMetrics::ReadRegistryString>;
template struct Expose<SpecialFolder, &CTrueTypeFontMetrics::GetSpecialFolder>;

TEST(TrueTypeRegistry, NothingIsFoundWhereThereIsNone) {
  const auto metrics = std::make_unique<CTrueTypeFontMetrics>();
  std::wstring name = L"name";
  std::wstring data = L"data";
  EXPECT_FALSE((metrics.get()->*MemberOf(FindFont()))(L"Probe", name, data));
  EXPECT_FALSE((metrics.get()->*MemberOf(ReadString()))(nullptr, L"Software", L"Name", data));
  EXPECT_FALSE((metrics.get()->*MemberOf(SpecialFolder()))(20, data));
  EXPECT_EQ(name, L"name");
  EXPECT_EQ(data, L"data");
}

TEST(TrueTypeRegistry, WalkingCanBeBegunGoneOnWithAndClosed) {
  const auto metrics = std::make_unique<CTrueTypeFontMetrics>();
  const auto walk = MemberOf(EnumValue());
  std::wstring name;
  std::wstring data;
  EXPECT_FALSE((metrics.get()->*walk)(nullptr, L"Software", &name, &data));
  EXPECT_FALSE((metrics.get()->*walk)(nullptr, L"", &name, &data));
  EXPECT_FALSE((metrics.get()->*walk)(nullptr, nullptr, &name, &data));
  EXPECT_FALSE((metrics.get()->*walk)(nullptr, nullptr, nullptr, nullptr));
}

}  // namespace

#endif
