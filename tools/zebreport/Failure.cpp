#include "Failure.h"

#include "Utf8.h"
#include "ZEBReportDocument.h"

#include <cstdio>

namespace zebreport {

namespace {

constexpr int kFontPoolIncomplete = 4010;  // the catalogue's number, which never changes

/// What a user can do about a failure of the XML facility.
const wchar_t* Advice(int xmlErrorCode) {
  switch (xmlErrorCode) {
    case zebxmln::CXMLException::CannotOpen:
      return L"check the path and that you may read the file";
    case zebxmln::CXMLException::NotWellFormed:
      return L"mend the file at that place or take another copy of it";
    case zebxmln::CXMLException::CannotWrite:
      return L"check that the folder exists, that you may write there and that the disk has room";
    case zebxmln::CXMLException::TargetReadOnly:
      return L"make the file writable or choose another name";
    case zebxmln::CXMLException::UnsupportedEncoding:
      return L"save the file as UTF-8";
    case zebxmln::CXMLException::OutOfMemory:
      return L"close other programs or take a smaller file";
    default:
      return L"check the file";
  }
}

/// The text on one line, without the point at its end.
std::wstring OneLine(std::wstring text) {
  for (wchar_t& character : text) {
    if (character == L'\n' || character == L'\r') character = L' ';
  }
  while (!text.empty() && (text.back() == L'.' || text.back() == L' ')) text.pop_back();
  return text;
}

}  // namespace

Failure::Failure(const std::wstring& sentence) : std::runtime_error(ToUtf8(sentence)) {}

UsageFailure::UsageFailure(const std::wstring& sentence) : std::runtime_error(ToUtf8(sentence)) {}

void Warn(const std::wstring& sentence) {
  std::fprintf(stderr, "zebreport: warning: %s\n", ToUtf8(sentence).c_str());
}

Failure LibraryFailure(const std::wstring& file, const CKXException& exception) {
  const std::wstring message = OneLine(exception.GetErrorMessage());
  if (dynamic_cast<const CKXXMLException*>(&exception) != nullptr) {
    // The message names the file.
    return Failure(message + L"; " + Advice(exception.GetErrorNr()) + L".");
  }
  if (exception.GetErrorNr() == -1) {
    return Failure(file +
                   L": the library failed and its error catalogue does not say why; name the catalogue's " +
                   L"folder with --catalogue.");
  }
  const std::wstring advice = exception.GetErrorNr() == kFontPoolIncomplete
                                  ? L"install the font or name a font pool that has it with --fonts"
                                  : L"look at what the file says there";
  return Failure(file + L": " + message + L" (error " + std::to_wstring(exception.GetErrorNr()) + L"); " +
                 advice + L".");
}

}  // namespace zebreport
