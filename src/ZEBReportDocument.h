#pragma once

// Every exported header of the library: the only include that a caller needs.

#include "fonts/Encodings.h"
#include "fonts/Fonts.h"
#include "fonts/GlobalFontHandler.h"
#include "foundation/IDManager.h"
#include "foundation/KXException.h"
#include "foundation/KXExceptionHandler.h"
#include "foundation/ValueConversion.h"
#include "foundation/XMLDocument.h"
#include "foundation/XMLManager.h"
#include "foundation/XMLNode.h"
#include "model/LayoutPage.h"
#include "model/ReportDocument.h"
#include "model/ReportLayout.h"
#include "model/ReportRootElement.h"
#include "model/ReportZone.h"
#include "reporttypes/AvailableValueHolderBase.h"
#include "reporttypes/DoubleElement.h"
