#include "fonts/FontInformation.h"

#include "fonts/PostscriptFontMetrics.h"
#include "fonts/TrueTypeFontMetrics.h"
#include "fonts/TrueTypeStatus.h"
#include "foundation/ErrorKeys.h"
#include "foundation/KXExceptionHandler.h"

#include <memory>
#include <utility>

namespace {

const wchar_t* KeyOfStatus(int status) {
  switch (status) {
    case zeb::kTrueTypeBadArguments:
      return zeb::ErrorKeys::WrongParameter;
    case zeb::kTrueTypeUnreadableFile:
      return zeb::ErrorKeys::ReadFileFailure;
    case zeb::kTrueTypeNotThere:
      return zeb::ErrorKeys::TrueTypeCreationFailed;
    case zeb::kTrueTypeNoMemory:
      return zeb::ErrorKeys::NoMoreMemoryLeft;
    case zeb::kTrueTypeIncorrect:
      return zeb::ErrorKeys::IncorrectTrueTypeFile;
    case zeb::kTrueTypeBitmapFont:
      return zeb::ErrorKeys::BitmapMACFontUnsupported;
    case zeb::kTrueTypeEmbeddingForbidden:
      return zeb::ErrorKeys::FontEmbeddingNotAllowed;
    default:
      return zeb::ErrorKeys::UnknownException;
  }
}

}  // namespace

CTrueTypeFontMetrics& CFontInformation::UseTrueTypeMetrics() {
  if (m_pTrueTypeMetrics == nullptr) m_pTrueTypeMetrics = new CTrueTypeFontMetrics();
  m_pMetrics = m_pTrueTypeMetrics;
  delete std::exchange(m_pPostscriptMetrics, nullptr);
  return *m_pTrueTypeMetrics;
}

void CFontInformation::ReadTT(const wchar_t* faceName, const wchar_t* filePath, const wchar_t* encoding,
                              bool unicode, bool reuseData, int bold, bool italic) {
  // Made first, so that nothing changes if there is no memory for them.
  if (m_pTrueTypeMetrics == nullptr) m_pTrueTypeMetrics = new CTrueTypeFontMetrics();
  // The face may be named by the PostScript metrics that end here.
  const std::unique_ptr<CPostscriptFontMetrics> before(std::exchange(m_pPostscriptMetrics, nullptr));
  // They are gone also if the font is refused, so the others become current before that.
  const int status =
      UseTrueTypeMetrics().ReadTrueTypeFont(faceName, filePath, encoding, unicode, reuseData, bold, italic);
  if (status != zeb::kTrueTypeDone) CKXExceptionHandler::GetInstance().ThrowException(KeyOfStatus(status));
}
