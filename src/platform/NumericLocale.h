#pragma once

namespace zeb {

/// Sets the numeric locale category of the process to "C".
void SetNumericLocaleToC();

/// Sets the numeric locale category of the process to the user's default ("").
void SetNumericLocaleToUserDefault();

}  // namespace zeb
