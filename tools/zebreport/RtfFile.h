#pragma once

#include "ZEBReportDocument.h"

#include <string>

namespace zebreport {

/// Reads a rich text file and hands it to `handler`, run by run.
/// @param pictureHandler may be null
/// @throws Failure if the file cannot be read, or is broken; the handler has then got what stands before that place
void ReadRtf(const std::wstring& file, CContextChangedHandler& handler,
             CPictureConvertHandler* pictureHandler);

}  // namespace zebreport
