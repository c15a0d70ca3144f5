#include "platform/posix/LocaleLanguage.h"

#include "platform/posix/LanguageTable.h"

#include <algorithm>
#include <string>

namespace zeb {
namespace {

const LanguageRow* Find(std::string_view name) {
  const auto row =
      std::lower_bound(kLanguages.begin(), kLanguages.end(), name,
                       [](const LanguageRow& left, std::string_view right) { return left.name < right; });
  return row != kLanguages.end() && row->name == name ? &*row : nullptr;
}

}  // namespace

LocaleLanguage LanguageOfLocale(std::string_view localeName) {
  const std::string_view territorial = localeName.substr(0, localeName.find_first_of(".@"));
  const std::string_view language = territorial.substr(0, territorial.find('_'));
  const std::size_t at = localeName.find('@');
  const std::string modifier(at == std::string_view::npos ? std::string_view() : localeName.substr(at));
  for (const std::string& name : {std::string(territorial) + modifier, std::string(language) + modifier,
                                  std::string(territorial), std::string(language)}) {
    if (const LanguageRow* const row = Find(name)) return {row->number, row->codePage};
  }
  return {};
}

}  // namespace zeb
