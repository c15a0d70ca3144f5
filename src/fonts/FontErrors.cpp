#include "fonts/FontErrors.h"

#include "foundation/KXException.h"
#include "foundation/KXExceptionHandler.h"

namespace zeb {

// The handler is declared as one that may return; a reader cannot go on after a failure.

void ThrowFontError(const wchar_t* key) {
  CKXExceptionHandler::GetInstance().ThrowException(key);
  throw CKXException(-1, key);
}

void ThrowFontError(const wchar_t* key, const wchar_t* additionalText) {
  CKXExceptionHandler::GetInstance().ThrowException(key, additionalText);
  throw CKXException(-1, key);
}

}  // namespace zeb
