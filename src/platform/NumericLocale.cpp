#include "platform/NumericLocale.h"

#include <clocale>

namespace zeb {

void SetNumericLocaleToC() { std::setlocale(LC_NUMERIC, "C"); }

void SetNumericLocaleToUserDefault() { std::setlocale(LC_NUMERIC, ""); }

}  // namespace zeb
