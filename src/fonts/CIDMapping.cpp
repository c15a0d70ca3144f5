#include "fonts/CIDMapping.h"

#include "fonts/CMapTokenizer.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <climits>
#include <iterator>
#include <string_view>
#include <system_error>

namespace {

constexpr std::string_view kWhiteSpace = " \t\n\v\f\r";

/// Drops what both number formats allow in front of a number. A token can begin with a vertical tab, which separates no
/// tokens.
void DropWhiteSpace(std::string_view& token) {
  token.remove_prefix(std::min(token.find_first_not_of(kWhiteSpace), token.size()));
}

/// The integer that a token begins with as `atoi` reads it: white space and one sign may come first, 0 if there is none;
/// saturated.
int ToInt(std::string_view token) {
  DropWhiteSpace(token);
  if (token.starts_with('+')) {
    token.remove_prefix(1);
    if (token.starts_with('-')) return 0;
  }
  int value = 0;
  const auto result = std::from_chars(token.data(), token.data() + token.size(), value);
  if (result.ec == std::errc::result_out_of_range) return token.starts_with('-') ? INT_MIN : INT_MAX;
  return value;
}

/// What `%x` reads from a hex string: white space, a sign and `0x` may come first; of more than eight digits the last
/// eight count.
int HexToInt(std::string_view token) {
  if (token.starts_with('<')) token.remove_prefix(1);
  DropWhiteSpace(token);
  const bool negative = token.starts_with('-');
  if (negative || token.starts_with('+')) token.remove_prefix(1);
  if (token.starts_with("0x") || token.starts_with("0X")) token.remove_prefix(2);
  unsigned int value = 0;
  for (const char& character : token) {
    unsigned int digit = 0;
    if (std::from_chars(&character, &character + 1, digit, 16).ec != std::errc()) break;
    value = value << 4U | digit;
  }
  return static_cast<int>(negative ? 0U - value : value);
}

/// Whether two tokens are hex strings of as many whole bytes each.
bool IsCodePair(std::string_view first, std::string_view second) {
  return first.starts_with('<') && second.starts_with('<') && first.size() == second.size() &&
         first.size() % 2 == 0 && first.size() >= 4;
}

}  // namespace

/// One run over the tokens of a CMap. It looks at the current token and the one before it.
class CIDMapping::CMapLoader {
 public:
  CMapLoader(CIDMapping& mapping, const zeb::TextCursor& text) : m_Mapping(mapping), m_Tokenizer(text) {}

  void Run();

 private:
  bool TakeName();
  bool TakeSection();
  template <std::size_t Tokens, typename Use>
  void ReadSection(std::string_view end, Use use);
  void StoreString(std::string& value) const;

  CIDMapping& m_Mapping;
  zeb::CMapTokenizer m_Tokenizer;
  std::string m_strPrevious;
  std::string m_strCurrent;
};

void CIDMapping::CMapLoader::Run() {
  m_Tokenizer.NextToken(m_strPrevious);
  while (m_Tokenizer.NextToken(m_strCurrent)) {
    if (m_strCurrent == "usecmap") {
      if (m_strPrevious.starts_with('/')) m_Mapping.m_strUsedCMap = m_strPrevious.substr(1);
    } else if (m_strPrevious == "/WMode") {
      m_Mapping.m_iWMode = ToInt(m_strCurrent);
    } else if (!TakeSection() && !TakeName()) {
      m_strPrevious.swap(m_strCurrent);
      continue;
    }
    m_Tokenizer.NextToken(m_strPrevious);
  }
}

bool CIDMapping::CMapLoader::TakeSection() {
  using Pair = std::array<std::string, 2>;
  using Triple = std::array<std::string, 3>;
  CIDMapping& mapping = m_Mapping;
  if (m_strCurrent == "begincodespacerange") {
    ReadSection<2>("endcodespacerange", [&mapping](const Pair& group) {
      mapping.m_iCodeSpaceLow = HexToInt(group[0]);
      mapping.m_iCodeSpaceHigh = HexToInt(group[1]);
    });
  } else if (m_strCurrent == "begincidrange") {
    ReadSection<3>("endcidrange", [&mapping](const Triple& group) {
      mapping.AddCIDs(HexToInt(group[0]), HexToInt(group[1]), ToInt(group[2]));
    });
  } else if (m_strCurrent == "beginbfrange") {
    // Fixed behaviour: an array of values counts as 0, and what it holds is read as further groups.
    ReadSection<3>("endbfrange", [&mapping](const Triple& group) {
      const int value = group[2].starts_with('<') ? HexToInt(group[2]) : ToInt(group[2]);
      mapping.AddCIDs(HexToInt(group[0]), HexToInt(group[1]), value);
    });
  } else if (m_strCurrent == "beginbfchar") {
    // Fixed behaviour: a code with a value of another length is passed over, one byte with two bytes too.
    ReadSection<2>("endbfchar", [&mapping](const Pair& group) {
      const int code = HexToInt(group[0]);
      mapping.AddCIDs(code, code, HexToInt(group[1]));
    });
  } else {
    return false;
  }
  return true;
}

template <std::size_t Tokens, typename Use>
void CIDMapping::CMapLoader::ReadSection(std::string_view end, Use use) {
  std::array<std::string, Tokens> group;
  for (;;) {
    for (std::string& token : group) {
      if (!m_Tokenizer.NextToken(token) || token == end) return;
    }
    if (IsCodePair(group[0], group[1])) use(group);
  }
}

bool CIDMapping::CMapLoader::TakeName() {
  if (m_strPrevious == "/Registry") {
    StoreString(m_Mapping.m_strRegistry);
  } else if (m_strPrevious == "/Ordering") {
    StoreString(m_Mapping.m_strOrdering);
  } else if (m_strPrevious == "/CMapName") {
    if (m_strCurrent.starts_with('/')) m_Mapping.m_strCMapName = m_strCurrent.substr(1);
  } else {
    return false;
  }
  return true;
}

void CIDMapping::CMapLoader::StoreString(std::string& value) const {
  if (m_strCurrent.size() < 2 || !m_strCurrent.starts_with('(') || !m_strCurrent.ends_with(')')) return;
  value = m_strCurrent.substr(1, m_strCurrent.size() - 2);
}

void CIDMapping::RunMap::Add(int first, int last, int value) {
  // The pieces that the new keys touch become one, so that no later call walks over them again: the work of all
  // calls together grows with their number. Only what was not covered gets a run.
  auto piece = m_Covered.upper_bound(first);
  if (piece != m_Covered.begin() && std::prev(piece)->second >= first) --piece;
  int begin = first;
  int end = last;
  long long next = first;
  while (piece != m_Covered.end() && piece->first <= last) {
    if (next < piece->first) {
      m_Runs[static_cast<int>(next)] = {piece->first - 1, static_cast<int>(value + (next - first))};
    }
    next = piece->second + 1LL;
    begin = std::min(begin, piece->first);
    end = std::max(end, piece->second);
    piece = m_Covered.erase(piece);
  }
  if (next <= last) m_Runs[static_cast<int>(next)] = {last, static_cast<int>(value + (next - first))};
  m_Covered[begin] = end;
}

int CIDMapping::RunMap::Find(int key) const {
  auto run = m_Runs.upper_bound(key);
  if (run == m_Runs.begin()) return -1;
  --run;
  if (key > run->second.last) return -1;
  return static_cast<int>(run->second.value + (static_cast<long long>(key) - run->first));
}

CIDMapping::CIDMapping() : m_iWMode(0), m_iCodeSpaceLow(0), m_iCodeSpaceHigh(0) {}

CIDMapping::CIDMapping(const CIDMapping& other) = default;

CIDMapping::~CIDMapping() = default;

CIDMapping& CIDMapping::operator=(const CIDMapping& other) = default;

void CIDMapping::LoadCMap(unsigned char* data, int length) {
  if (data == nullptr) return;
  CMapLoader(*this, zeb::TextCursor(data, length)).Run();
}

void CIDMapping::AddCIDs(int low, int high, int cid) {
  if (low > high) return;
  const long long count = std::min(static_cast<long long>(high) - low, static_cast<long long>(INT_MAX) - cid);
  m_CodeToCID.Add(low, static_cast<int>(low + count), cid);
  m_CIDToCode.Add(cid, static_cast<int>(cid + count), low);
}

int CIDMapping::GetCIDFromCode(int code) const { return m_CodeToCID.Find(code); }
int CIDMapping::GetCodeFromCID(int cid) const { return m_CIDToCode.Find(cid); }

const char* CIDMapping::GetCMapName() const { return m_strCMapName.c_str(); }
const char* CIDMapping::GetRegistry() const { return m_strRegistry.c_str(); }
const char* CIDMapping::GetOrdering() const { return m_strOrdering.c_str(); }
const char* CIDMapping::GetUsedCMap() const { return m_strUsedCMap.c_str(); }
int CIDMapping::GetWMode() const { return m_iWMode; }
int CIDMapping::GetCodeSpaceLow() const { return m_iCodeSpaceLow; }
int CIDMapping::GetCodeSpaceHigh() const { return m_iCodeSpaceHigh; }
