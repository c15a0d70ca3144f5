#include "fonts/Fonts.h"

#include "fonts/BuiltInFonts.h"
#include "fonts/Encodings.h"
#include "fonts/FontInformation.h"
#include "fonts/FontPool.h"
#include "fonts/GlobalFontHandler.h"
#include "fonts/NameComparison.h"
#include "foundation/KXException.h"

namespace {

using Cache = std::map<std::wstring, std::wstring>;

const wchar_t* FindIn(const Cache& cache, const wchar_t* name) {
  const auto found = cache.find(name);
  return found == cache.end() ? nullptr : found->second.c_str();
}

/// A name that is answered already keeps its answer.
const wchar_t* StoreIn(Cache& cache, const wchar_t* name, const wchar_t* answer) {
  return cache.try_emplace(name, answer).first->second.c_str();
}

bool Contains(std::wstring_view text, std::wstring_view part) {
  return text.find(part) != std::wstring_view::npos;
}

/// The first localized name that says more than the name; null if there is none.
const wchar_t* OtherLocalizedName(const CFontMetrics& metrics, std::wstring_view name) {
  for (int index = 0; index < metrics.GetLocalizedFontNameCount(); ++index) {
    const wchar_t* const localized = metrics.GetLocalizedFontNameAt(index);
    if (!Contains(localized, name)) return localized;
  }
  return nullptr;
}

}  // namespace

CFonts::CFonts(CGlobalFontHandler* owner)
    : m_pBuiltInFonts(std::make_shared<zeb::BuiltInFonts>(this)), m_pOwner(owner) {
  AddBase14FontInformations();
  AddCJKFontInformations();
}

CFonts::CFonts(const CFonts& other) = default;

CFonts::~CFonts() {
  for (const Entry& entry : m_Fonts) {
    delete MadeFontOf(entry);
  }
}

CFonts& CFonts::operator=(const CFonts& other) = default;

void CFonts::AddBase14FontInformations() {
  if (m_bBase14Added) return;
  m_bBase14Added = true;
  AddBuiltIn(0, zeb::kStandardFontCount);
}

void CFonts::AddCJKFontInformations() {
  if (m_bCJKAdded) return;
  m_bCJKAdded = true;
  AddBuiltIn(zeb::kStandardFontCount, zeb::kCJKFontCount);
}

void CFonts::AddBuiltIn(std::size_t first, std::size_t count) {
  for (std::size_t number = first; number < first + count; ++number) m_Fonts.push_back({nullptr, number});
}

void CFonts::AddFont(CFontInformation* font) { m_Fonts.push_back({font, zeb::BuiltInFonts::kCount}); }

void CFonts::RemoveFontAt(int index) { m_Fonts.erase(m_Fonts.begin() + index); }

CFontInformation* CFonts::GetFontAt(int index) const {
  return FontOf(m_Fonts[static_cast<std::size_t>(index)]);
}

int CFonts::GetFontCount() const { return static_cast<int>(m_Fonts.size()); }

bool CFonts::IsBuiltIn(const Entry& entry) { return entry.m_uBuiltIn < zeb::BuiltInFonts::kCount; }

CFontInformation* CFonts::FontOf(const Entry& entry) const {
  return IsBuiltIn(entry) ? m_pBuiltInFonts->At(entry.m_uBuiltIn) : entry.m_pFont;
}

CFontInformation* CFonts::MadeFontOf(const Entry& entry) const {
  return IsBuiltIn(entry) ? m_pBuiltInFonts->MadeAt(entry.m_uBuiltIn) : entry.m_pFont;
}

const CFontMetrics* CFonts::MetricsOf(const Entry& entry) const {
  const CFontInformation* const font = MadeFontOf(entry);
  return font == nullptr ? nullptr : font->GetFontMetrics();
}

bool CFonts::IsNeverEmbedded(const Entry& entry) const {
  const CFontMetrics* const metrics = MetricsOf(entry);
  return metrics == nullptr ? IsBuiltIn(entry) : metrics->GetBase14Font() || metrics->GetCJKFont();
}

bool CFonts::IsNamed(const Entry& entry, std::wstring_view name, int bold, bool italic) const {
  using zeb::AreEqualIgnoringCase;
  const CFontMetrics* const metrics = MetricsOf(entry);
  if (metrics == nullptr) {
    return IsBuiltIn(entry) && AreEqualIgnoringCase(zeb::BuiltInFonts::NameAt(entry.m_uBuiltIn), name);
  }
  const bool isFamily = AreEqualIgnoringCase(metrics->GetFontFamilyName(), name);
  // Fixed behaviour: a font found by its unique name may have any style.
  if (!isFamily) return AreEqualIgnoringCase(metrics->GetBaseFont(), name);
  return metrics->GetBold() == bold && metrics->GetItalic() == italic;
}

const CFonts::Entry* CFonts::Find(const wchar_t* name, int bold, bool italic) const {
  if (name == nullptr) return nullptr;
  const std::wstring bare(zeb::WithoutVerticalMark(name));
  if (bare.empty()) return nullptr;
  for (const Entry& entry : m_Fonts) {
    if (IsNamed(entry, bare, bold, italic)) return &entry;
  }
  for (const Entry& entry : m_Fonts) {
    const CFontMetrics* const metrics = MetricsOf(entry);
    if (metrics != nullptr && metrics->FindLocalizedFontName(bare.c_str()) >= 0) return &entry;
  }
  return nullptr;
}

CFontInformation* CFonts::FindFont(const wchar_t* name, int bold, bool italic) const {
  const Entry* const found = Find(name, bold, italic);
  return found == nullptr ? nullptr : FontOf(*found);
}

const wchar_t* CFonts::GetLocalizedFontName(const wchar_t* name, int bold, bool italic) {
  if (name == nullptr) return nullptr;
  if (const wchar_t* known = FindIn(m_LocalizedNames, name)) return known;
  if (const Entry* found = Find(name, bold, italic)) {
    if (IsNeverEmbedded(*found)) return StoreIn(m_LocalizedNames, name, name);
    const wchar_t* const other = OtherLocalizedName(*MetricsOf(*found), zeb::WithoutVerticalMark(name));
    if (other != nullptr) return StoreIn(m_LocalizedNames, name, other);
  }
  if (const wchar_t* unique = CFontPool::GetInstance().FindUniqueName(name)) {
    return StoreIn(m_LocalizedNames, name, unique);
  }
  // Fixed behaviour: the first question for a name without another gives null, the next one the name.
  StoreIn(m_LocalizedNames, name, name);
  return nullptr;
}

const wchar_t* CFonts::GetUniqueFontName(const wchar_t* name, int bold, bool italic) {
  if (name == nullptr) return nullptr;
  if (const wchar_t* known = FindIn(m_UniqueNames, name)) return known;
  if (const Entry* found = Find(name, bold, italic)) {
    if (IsNeverEmbedded(*found) || MetricsOf(*found)->GetLocalizedFontNameCount() == 0) {
      return StoreIn(m_UniqueNames, name, name);
    }
    const wchar_t* uniqueName = nullptr;
    if (AnswerFromNames(*MetricsOf(*found), name, uniqueName)) return uniqueName;
  }
  const wchar_t* const unique = CFontPool::GetInstance().FindUniqueName(name);
  return unique == nullptr ? LearnUniqueName(name, bold, italic) : StoreIn(m_UniqueNames, name, unique);
}

const wchar_t* CFonts::LearnUniqueName(const wchar_t* name, int bold, bool italic) {
  try {
    CFontInformation font(this);
    font.ReadTT(name, nullptr, nullptr, true, false, bold, italic);
    return StoreIn(m_UniqueNames, name, font.GetFontMetrics()->GetBaseFont());
  } catch (const CKXException&) {
    // Fixed behaviour: the next question for the name asks the system again.
    return nullptr;
  }
}

bool CFonts::AnswerFromNames(const CFontMetrics& metrics, const wchar_t* name, const wchar_t*& uniqueName) {
  const std::wstring_view bare = zeb::WithoutVerticalMark(name);
  bool isContained = false;
  for (int index = 0; index < metrics.GetLocalizedFontNameCount() && uniqueName == nullptr; ++index) {
    const std::wstring_view localized = metrics.GetLocalizedFontNameAt(index);
    isContained = isContained || Contains(localized, bare);
    if (zeb::AreEqualIgnoringCase(localized, bare)) {
      uniqueName = StoreIn(m_UniqueNames, name, metrics.GetBaseFont());
    }
  }
  // Fixed behaviour: a name that is only a part of a localized one has no unique name now, and is its own from the next
  // question on.
  if (isContained) StoreIn(m_UniqueNames, name, name);
  return isContained || uniqueName != nullptr;
}

void CFonts::TakeMissingFonts(CFonts& other) {
  // Fixed behaviour: the index rises although a font left, so the one behind it is passed over.
  for (std::size_t index = 0; index < other.m_Fonts.size(); ++index) {
    const Entry entry = other.m_Fonts[index];
    const CFontMetrics* const metrics = other.MetricsOf(entry);
    if (metrics == nullptr || other.IsNeverEmbedded(entry)) continue;
    if (Find(metrics->GetBaseFont(), metrics->GetBold(), metrics->GetItalic()) != nullptr) continue;
    AddFont(other.FontOf(entry));
    other.RemoveFontAt(static_cast<int>(index));
  }
}

CPDFCharCollName* CFonts::GetCharCollNameAt(CFontMetrics::CharColl collection) const {
  const CEncodings* const encodings = HandlersEncodings();
  return encodings == nullptr ? nullptr : encodings->GetCharCollNameAt(collection);
}

CEncodingInformation* CFonts::GetEncodingInformation(const wchar_t* internalName) const {
  CEncodings* const encodings = HandlersEncodings();
  return encodings == nullptr ? nullptr : encodings->FindEncoding(internalName);
}

CEncodings* CFonts::HandlersEncodings() const {
  return m_pOwner == nullptr ? nullptr : m_pOwner->GetEncodings();
}
