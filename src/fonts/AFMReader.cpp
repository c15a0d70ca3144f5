#include "fonts/FontCharMetricsInfo.h"
#include "fonts/FontErrors.h"
#include "fonts/FontFile.h"
#include "fonts/PostscriptFontMetrics.h"
#include "fonts/TextCursor.h"
#include "foundation/ErrorKeys.h"
#include "foundation/ValueConversion.h"

#include <algorithm>
#include <climits>
#include <cwchar>
#include <map>
#include <memory>
#include <span>
#include <string_view>

// The reader of Adobe Font Metrics files.
//
// The file is in memory and all characters come from one cursor, which cannot leave it. Every token moves the cursor
// on, so every loop ends at the end of the file. Tokens and lines are cut at the size of their buffers. The number of
// records that a file announces is believed only as far as its bytes could hold so many.

namespace {

/// The keys of AFMKeys that mean something here.
enum Key : int {
  Ascender = 0,
  Box = 1,
  Code = 2,
  CapHeight = 4,
  CharWidth = 5,
  Characters = 6,
  CharacterSet = 7,
  Comment = 8,
  Descender = 9,
  EncodingScheme = 10,
  EndCharMetrics = 11,
  EndComposites = 12,
  EndFontMetrics = 13,
  EndKernData = 14,
  EndKernPairs = 15,
  EndTrackKern = 16,
  FamilyName = 17,
  FontBBox = 18,
  FontName = 19,
  FullName = 20,
  IsFixedPitch = 21,
  ItalicAngle = 22,
  Ligature = 25,
  Name = 26,
  Notice = 27,
  StartCharMetrics = 29,
  StartComposites = 30,
  StartFontMetrics = 31,
  StartKernData = 32,
  StartKernPairs = 33,
  StartTrackKern = 34,
  StdHW = 35,
  StdVW = 36,
  UnderlinePosition = 38,
  UnderlineThickness = 39,
  Version = 40,
  Width = 41,
  WidthX = 42,
  Weight = 43,
  XHeight = 44,
};

/// What ReadKey gives at the end of the file.
constexpr int kNoMoreKeys = -2;

/// Words behind which an integer stands.
struct IntegerField {
  int Word;
  void (CFontMetrics::*Set)(int);
};
constexpr IntegerField kIntegers[] = {
    {Ascender, &CFontMetrics::SetAscender},
    {CapHeight, &CFontMetrics::SetCapHeight},
    {Descender, &CFontMetrics::SetDescender},
    {StdHW, &CFontMetrics::SetStemHW},
    {StdVW, &CFontMetrics::SetStemVW},
    {UnderlinePosition, &CFontMetrics::SetUnderlinePosition},
    {UnderlineThickness, &CFontMetrics::SetUnderlineThickness},
    {XHeight, &CFontMetrics::SetXHeight},
};

/// Bytes of the shortest character in a file: its word, something that ends it, and a code.
constexpr std::size_t kShortestCharacter = 3;

constexpr int kDefaultWidth = 250;

/// The width of vertical stems of a weight, for files that do not tell it.
struct WeightStem {
  std::wstring_view Weight;
  int Stem;
};
constexpr WeightStem kWeightStems[] = {
    {L"Light", 71}, {L"SemiBold", 135}, {L"Bold", 165}, {L"ExtraBold", 201}, {L"Black", 241},
};
constexpr int kOtherStem = 109;

int StemOfWeight(std::wstring_view weight) {
  const auto* const found = std::ranges::find(kWeightStems, weight, &WeightStem::Weight);
  return found == std::end(kWeightStems) ? kOtherStem : found->Stem;
}

/// The integer that a token begins with; beyond `int` the limits.
int ToInt(const wchar_t* token) {
  return static_cast<int>(std::clamp<long long>(std::wcstoll(token, nullptr, 10), INT_MIN, INT_MAX));
}

bool IsBlank(unsigned char character) { return character == ' ' || character == '\t'; }

bool IsLineEnd(unsigned char character) { return character == '\r' || character == '\n'; }

bool IsSeparator(unsigned char character) {
  return IsBlank(character) || IsLineEnd(character) || character == ',' || character == ';';
}

/// Fixed behaviour: a comma does not end a token, a colon does.
bool EndsToken(unsigned char character) {
  return IsBlank(character) || IsLineEnd(character) || character == ':' || character == ';';
}

/// A terminated text in a buffer of fixed size; what does not fit is dropped.
class BoundedText {
 public:
  explicit BoundedText(std::span<wchar_t> buffer) : m_Buffer(buffer) { m_Buffer[0] = L'\0'; }

  void Append(unsigned char character) {
    if (m_uLength + 1 >= m_Buffer.size()) return;
    m_Buffer[m_uLength++] = static_cast<wchar_t>(character);
    m_Buffer[m_uLength] = L'\0';
  }
  bool IsEmpty() const { return m_uLength == 0; }

 private:
  std::span<wchar_t> m_Buffer;
  std::size_t m_uLength = 0;
};

/// Gives the metrics a cursor for a scope, so that none outlives the bytes behind it.
class CursorScope {
 public:
  CursorScope(zeb::TextCursor*& member, zeb::TextCursor& cursor) : m_Member(member) { m_Member = &cursor; }
  CursorScope(const CursorScope&) = delete;
  CursorScope& operator=(const CursorScope&) = delete;
  ~CursorScope() { m_Member = nullptr; }

 private:
  zeb::TextCursor*& m_Member;
};

/// The word that ends a section which begins with a count, beside EndFontMetrics and EndKernData.
struct Section {
  int Start;
  int End;
  bool EndsWithKernData;
};
constexpr Section kSections[] = {
    {StartComposites, EndComposites, false},
    {StartKernPairs, EndKernPairs, true},
    {StartTrackKern, EndTrackKern, true},
};

bool Ends(const Section& section, int key) {
  return key == section.End || key == EndFontMetrics || (section.EndsWithKernData && key == EndKernData);
}

}  // namespace

bool CPostscriptFontMetrics::ReadToken() {
  BoundedText token(m_rgwcToken);
  unsigned char character = 0;
  bool more = m_pCursor->Next(character);
  while (more && IsSeparator(character)) more = m_pCursor->Next(character);
  for (; more && !EndsToken(character); more = m_pCursor->Next(character)) token.Append(character);
  if (!more) return !token.IsEmpty();
  if (token.IsEmpty()) {
    token.Append(character);
  } else if (character != ':') {
    m_pCursor->StepBack();
  }
  return true;
}

bool CPostscriptFontMetrics::ReadRestOfLine() {
  BoundedText line(m_rgwcLine);
  unsigned char character = 0;
  bool more = m_pCursor->Next(character);
  while (more && IsBlank(character)) more = m_pCursor->Next(character);
  for (; more && !IsLineEnd(character); more = m_pCursor->Next(character)) line.Append(character);
  if (more) m_pCursor->StepBack();
  return more;
}

int CPostscriptFontMetrics::ReadInt() {
  ReadToken();
  return ToInt(m_rgwcToken);
}

float CPostscriptFontMetrics::ReadFloat() {
  ReadToken();
  return StringToFloat(m_rgwcToken);
}

int CPostscriptFontMetrics::ReadKey() { return ReadToken() ? m_AFMKeys.FindKey(m_rgwcToken) : kNoMoreKeys; }

void CPostscriptFontMetrics::ReadGlobalMetrics() {
  std::wstring weight;
  for (int key = ReadKey(); key != kNoMoreKeys; key = ReadKey()) {
    if (key == EndFontMetrics || key == StartCharMetrics) {
      if (m_iStemVW == 0) m_iStemVW = StemOfWeight(weight);
      return;
    }
    if (key == Weight) {
      ReadRestOfLine();
      weight = m_rgwcLine;
    } else if (!ReadGlobalNumber(key)) {
      ReadGlobalText(key);
    }
  }
}

bool CPostscriptFontMetrics::ReadGlobalNumber(int key) {
  const auto* const integer = std::ranges::find(kIntegers, key, &IntegerField::Word);
  if (integer != std::end(kIntegers)) {
    (this->*integer->Set)(ReadInt());
  } else if (key == ItalicAngle) {
    m_fItalicAngle = ReadFloat();
  } else if (key == FontBBox) {
    m_fBBoxLLX = ReadFloat();
    m_fBBoxLLY = ReadFloat();
    m_fBBoxURX = ReadFloat();
    m_fBBoxURY = ReadFloat();
  } else {
    return false;
  }
  return true;
}

void CPostscriptFontMetrics::ReadGlobalText(int key) {
  switch (key) {
    case CharWidth:
      ReadToken();
      ReadToken();
      m_bFixedPitch = true;
      break;
    case Characters:
    case CharacterSet:
    case StartFontMetrics:
      ReadToken();
      break;
    case Comment:
    case FamilyName:
    case FullName:
    case Notice:
    case Version:
      ReadRestOfLine();
      break;
    case EncodingScheme:
      ReadToken();
      m_strEncodingScheme = m_rgwcToken;
      if (m_strEncodingScheme == L"StandardEncoding") m_strEncodingScheme = L"AdobeStandardEncoding";
      break;
    case FontName:
      ReadToken();
      m_strBaseFont = m_rgwcToken;
      break;
    case IsFixedPitch:
      ReadToken();
      // Fixed behaviour: whatever is not exactly "false" is true.
      m_bFixedPitch = std::wstring_view(m_rgwcToken) != L"false";
      break;
    default:
      zeb::ThrowFontError(zeb::ErrorKeys::WrongGlobalIndentifier);
  }
}

void CPostscriptFontMetrics::MakeRecords(int count) {
  const std::size_t most = m_pCursor->Left() / kShortestCharacter + 1;
  const std::size_t wanted = std::min(static_cast<std::size_t>(count), most);
  for (std::size_t made = 0; made < wanted; ++made) {
    auto record = std::make_unique<CFontCharMetricsInfo>();
    AddFontCharMetricsInfo(record.get());
    static_cast<void>(record.release());
  }
}

CFontCharMetricsInfo* CPostscriptFontMetrics::NextRecord(std::size_t& next) const {
  while (next < m_rgpCharMetrics.size()) {
    if (CFontCharMetricsInfo* record = m_rgpCharMetrics[next++]) return record;
  }
  return nullptr;
}

void CPostscriptFontMetrics::ReadCharMetrics() {
  // Fixed behaviour: filling begins at the first record of the object, even if an earlier file made that one.
  std::size_t next = 0;
  CFontCharMetricsInfo* record = NextRecord(next);
  next = 0;
  for (int key = ReadKey(); key != kNoMoreKeys && key != EndCharMetrics && key != EndFontMetrics;
       key = ReadKey()) {
    if (key == Code) {
      record = NextRecord(next);
      if (record == nullptr) zeb::ThrowFontError(zeb::ErrorKeys::TooManyCharacterCodes);
      record->SetCode(ReadInt());
    } else if (key == Comment) {
      ReadRestOfLine();
    } else {
      ReadCharValue(key, *record);
    }
  }
}

void CPostscriptFontMetrics::ReadCharValue(int key, CFontCharMetricsInfo& record) {
  switch (key) {
    case WidthX:
      record.SetWX(ReadInt());
      break;
    case Width:
      record.SetWX(ReadInt());
      record.SetWY(ReadInt());
      break;
    case Name:
      ReadToken();
      record.SetName(m_rgwcToken);
      break;
    case Box:
      record.SetBBoxLLX(static_cast<float>(ReadInt()));
      record.SetBBoxLLY(static_cast<float>(ReadInt()));
      record.SetBBoxURX(static_cast<float>(ReadInt()));
      record.SetBBoxURY(static_cast<float>(ReadInt()));
      break;
    case Ligature:
      ReadLigature(record);
      break;
    default:
      zeb::ThrowFontError(zeb::ErrorKeys::WrongGlobalIndentifier);
  }
}

void CPostscriptFontMetrics::ReadLigature(CFontCharMetricsInfo& record) {
  auto ligature = std::make_unique<CFontLigature>();
  ReadToken();
  ligature->SetSuccessor(m_rgwcToken);
  ReadToken();
  ligature->SetLigature(m_rgwcToken);
  record.AddLigature(ligature.get());
  static_cast<void>(ligature.release());
}

void CPostscriptFontMetrics::SkipSections() {
  for (int key = ReadKey(); key != kNoMoreKeys; key = ReadKey()) {
    if (key == StartKernData || key == EndKernData) continue;
    const auto* const section = std::ranges::find(kSections, key, &Section::Start);
    if (section == std::end(kSections)) return;
    if (ReadInt() < 1) continue;
    for (int inside = ReadKey(); inside != kNoMoreKeys && !Ends(*section, inside);) inside = ReadKey();
  }
}

void CPostscriptFontMetrics::TakeWidthsOfNames() {
  // A tree, since the file chooses the names: chosen for one bucket of a hash table, they would take the square of their
  // number.
  std::map<std::wstring_view, int> widths;
  for (const CFontCharMetricsInfo* record : m_rgpCharMetrics) {
    if (record != nullptr) widths.emplace(record->GetName(), record->GetWX());
  }
  const auto space = widths.find(L"space");
  const int defaultWidth = space == widths.end() ? kDefaultWidth : space->second;
  // Fixed behaviour: widths go by the names of winansi1252, which every reading of a file starts from; the codes of
  // the file do not count.
  for (int code = 0; code < static_cast<int>(m_rgpCharNames.size()); ++code) {
    const wchar_t* const name = GetCharNameAt(code);
    const auto found = *name == L'\0' ? widths.end() : widths.find(name);
    SetWidthAt(code, static_cast<unsigned short>(found == widths.end() ? defaultWidth : found->second));
  }
}

void CPostscriptFontMetrics::ReadAFMFile(const wchar_t* path) {
  const std::vector<unsigned char> content = zeb::ReadFontFile(path, m_iFileHandle);
  zeb::TextCursor cursor(std::as_bytes(std::span(content)));
  const CursorScope scope(m_pCursor, cursor);
  InitFontInformation();
  SetFontType(FontTypeType1);
  ReadGlobalMetrics();
  if (const int count = ReadInt(); count > 0) {
    MakeRecords(count);
    ReadCharMetrics();
  }
  SkipSections();
  if (m_strEncodingScheme.empty()) m_strEncodingScheme = L"FontSpecific";
  if (m_rgpCharMetrics.empty()) zeb::ThrowFontError(zeb::ErrorKeys::NoCharMetrics);
  TakeWidthsOfNames();
  BuildFontDescriptorFlag();
}
