#include "formula/FormulaErrors.h"

#include "foundation/KXException.h"
#include "foundation/KXExceptionHandler.h"

namespace zeb {

void ThrowFormulaError(const wchar_t* key) {
  CKXExceptionHandler::GetInstance().ThrowException(key);
  // The handler is declared as one that may return; a formula cannot go on after an error.
  throw CKXParserException(-1, key);
}

}  // namespace zeb
