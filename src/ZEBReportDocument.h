#pragma once

// Every exported header of the library: the only include that a caller needs.

#include "foundation/IDManager.h"
#include "foundation/KXException.h"
#include "foundation/KXExceptionHandler.h"
#include "foundation/ValueConversion.h"
#include "foundation/XMLDocument.h"
#include "foundation/XMLManager.h"
#include "foundation/XMLNode.h"
