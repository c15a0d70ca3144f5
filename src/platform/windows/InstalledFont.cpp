#include "platform/InstalledFont.h"

#include "platform/windows/Windows.h"

#include <algorithm>

namespace zeb {

namespace {

constexpr DWORD kCollectionTable = 0x66637474;  // "ttcf" as GetFontData takes tags
constexpr DWORD kWholeFile = 0;
constexpr DWORD kCentralEuropeanPage = 1250;

BYTE CharacterSet(bool centralEuropean) {
  CHARSETINFO info = {};
  // The call takes the number of the code page in place of a pointer.
  auto* const page = reinterpret_cast<DWORD*>(static_cast<DWORD_PTR>(kCentralEuropeanPage));
  if (!centralEuropean || TranslateCharsetInfo(page, &info, TCI_SRCCODEPAGE) == 0) return DEFAULT_CHARSET;
  return static_cast<BYTE>(info.ciCharset);
}

}  // namespace

/// A screen context with the font selected.
struct InstalledFont::State {
  HFONT Font = nullptr;
  HDC Context = nullptr;
  HGDIOBJ Before = nullptr;
  DWORD Table = kWholeFile;
  DWORD Length = 0;

  ~State() { Release(); }

  void Release() {
    if (Before != nullptr) SelectObject(Context, Before);
    if (Context != nullptr) ReleaseDC(nullptr, Context);
    if (Font != nullptr) DeleteObject(Font);
    Before = nullptr;
    Context = nullptr;
    Font = nullptr;
    Length = 0;
  }

  bool Select(const LOGFONTW& description) {
    Font = CreateFontIndirectW(&description);
    Context = Font != nullptr ? GetDC(nullptr) : nullptr;
    Before = Context != nullptr ? SelectObject(Context, Font) : nullptr;
    // The latter is the value of HGDI_ERROR, whose definition warns.
    return Before != nullptr && Before != INVALID_HANDLE_VALUE;
  }

  bool Measure(DWORD table) {
    const DWORD length = ::GetFontData(Context, table, 0, nullptr, 0);
    if (length == GDI_ERROR) return false;
    Table = table;
    Length = length;
    return true;
  }
};

InstalledFont::InstalledFont() : m_pState(std::make_unique<State>()) {}

InstalledFont::~InstalledFont() = default;

bool InstalledFont::Open(const InstalledFontRequest& request) {
  m_pState->Release();
  LOGFONTW description = {};
  description.lfWeight = request.weight;
  description.lfItalic = static_cast<BYTE>(request.italic ? TRUE : FALSE);
  description.lfCharSet = CharacterSet(request.centralEuropean);
  const std::size_t length = std::min<std::size_t>(request.faceName.size(), LF_FACESIZE - 1);
  std::copy_n(request.faceName.begin(), length, description.lfFaceName);
  if (!m_pState->Select(description)) return false;
  return m_pState->Measure(kCollectionTable) || m_pState->Measure(kWholeFile);
}

std::uint64_t InstalledFont::Size() const { return m_pState->Length; }

std::shared_ptr<FileMapping> InstalledFont::Map(std::size_t /*zeros*/) const { return nullptr; }

bool InstalledFont::Read(std::span<std::byte> bytes) {
  const auto length = static_cast<DWORD>(bytes.size());
  return ::GetFontData(m_pState->Context, m_pState->Table, 0, bytes.data(), length) == length;
}

}  // namespace zeb
