#include "Html.h"

#include "TextFormat.h"

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <span>

namespace zebreport {

namespace {

constexpr wchar_t kReplacement = 0xFFFD;
constexpr float kTwipsPerPoint = 20.0F;
/// The greatest length that word processors take, 22 inches. Longer ones would push the page out of sight.
constexpr int kLongestTwips = 31680;

bool IsControl(wchar_t character) {
  const std::uint32_t code = std::char_traits<wchar_t>::to_int_type(character);
  return (code < 0x20 && character != L'\t' && character != L'\n') || (code >= 0x7F && code < 0xA0) ||
         code == 0xFFFE || code == 0xFFFF;
}

std::wstring Base64(std::span<const unsigned char> bytes) {
  constexpr wchar_t kDigits[] = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::wstring text;
  text.reserve((bytes.size() + 2) / 3 * 4);
  for (std::size_t i = 0; i < bytes.size(); i += 3) {
    const std::size_t count = std::min<std::size_t>(3, bytes.size() - i);
    std::uint32_t group = 0;
    for (std::size_t j = 0; j < 3; ++j) group = group << 8U | (j < count ? bytes[i + j] : 0U);
    for (unsigned j = 0; j < 4; ++j) text += j <= count ? kDigits[group >> (18U - 6U * j) & 63U] : L'=';
  }
  return text;
}

/// A format that pictures may have. What is stored in a document does not always say it.
struct PictureFormat {
  const wchar_t* name = nullptr;
  const wchar_t* mime = nullptr;  ///< null if browsers do not show it
  std::size_t offset = 0;         ///< where the mark stands
  std::initializer_list<unsigned char> mark;
};

const PictureFormat kFormats[] = {
    {L"PNG", L"image/png", 0, {0x89, 'P', 'N', 'G'}},
    {L"JPEG", L"image/jpeg", 0, {0xFF, 0xD8, 0xFF}},
    {L"GIF", L"image/gif", 0, {'G', 'I', 'F', '8'}},
    {L"BMP", L"image/bmp", 0, {'B', 'M'}},
    {L"WebP", L"image/webp", 8, {'W', 'E', 'B', 'P'}},
    {L"enhanced metafile", nullptr, 40, {' ', 'E', 'M', 'F'}},
    {L"Windows metafile", nullptr, 0, {0x01, 0x00, 0x09, 0x00}},
    {L"Windows metafile", nullptr, 0, {0xD7, 0xCD, 0xC6, 0x9A}},
};

const PictureFormat* FormatOf(std::span<const unsigned char> bytes) {
  for (const PictureFormat& format : kFormats) {
    if (bytes.size() < format.offset + format.mark.size()) continue;
    if (std::equal(format.mark.begin(), format.mark.end(),
                   bytes.begin() + static_cast<std::ptrdiff_t>(format.offset))) {
      return &format;
    }
  }
  return nullptr;
}

/// The wanted length with its scale, 0 if the document does not say it.
int ScaledTwips(int goal, int percent) {
  const long long scaled = static_cast<long long>(goal) * (percent > 0 ? percent : 100) / 100;
  return static_cast<int>(std::clamp<long long>(scaled, 0, kLongestTwips));
}

}  // namespace

std::wstring EscapedHtml(std::wstring_view text) {
  std::wstring escaped;
  escaped.reserve(text.size());
  for (const wchar_t character : text) {
    switch (character) {
      case L'&':
        escaped += L"&amp;";
        break;
      case L'<':
        escaped += L"&lt;";
        break;
      case L'>':
        escaped += L"&gt;";
        break;
      case L'"':
        escaped += L"&quot;";
        break;
      case L'\'':
        escaped += L"&#39;";
        break;
      default:
        escaped += IsControl(character) ? kReplacement : character;
    }
  }
  return escaped;
}

std::wstring StyleString(std::wstring_view text) {
  std::wstring quoted;
  for (const wchar_t character : text) {
    // What could end the string, or the attribute around it, is left out: no name of a font needs it.
    const bool ends = character == L'\'' || character == L'"' || character == L'\\' || character == L'\n';
    if (!ends && !IsControl(character)) quoted += character;
  }
  return L"'" + EscapedHtml(quoted) + L"'";
}

std::wstring StyleLength(int twips) {
  return Number(static_cast<float>(std::clamp(twips, 0, kLongestTwips)) / kTwipsPerPoint) + L"pt";
}

std::wstring StyleColour(const CRTFColor& colour) {
  constexpr wchar_t kDigits[] = L"0123456789abcdef";
  std::wstring text = L"#";
  for (const unsigned part : {colour.GetRed(), colour.GetGreen(), colour.GetBlue()}) {
    text += kDigits[part / 16];
    text += kDigits[part % 16];
  }
  return text;
}

std::wstring HtmlPicture(const CFontData& picture, const CCharacterProperties& props) {
  const std::span<const unsigned char> bytes(picture.GetData(),
                                             static_cast<std::size_t>(picture.GetLength()));
  const PictureFormat* const format = FormatOf(bytes);
  const int width = ScaledTwips(props.PicWidthGoal, props.PicScaleX);
  const int height = ScaledTwips(props.PicHeightGoal, props.PicScaleY);
  std::wstring style;
  if (width > 0) style += L"width:" + StyleLength(width) + L";";
  if (height > 0) style += L"height:" + StyleLength(height) + L";";
  const std::wstring label = std::wstring(format != nullptr ? format->name : L"unknown format") + L", " +
                             std::to_wstring(bytes.size()) + L" bytes";
  if (format != nullptr && format->mime != nullptr) {
    return L"<img style=\"" + style + L"\" alt=\"" + label + L"\" src=\"data:" + format->mime + L";base64," +
           Base64(bytes) + L"\">";
  }
  return L"<span class=\"picture\" style=\"" + style + L"\">picture: " + label + L"</span>";
}

}  // namespace zebreport
