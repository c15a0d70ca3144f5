#pragma once

class CFontMetrics;
class CTrueTypeFontMetrics;

namespace zeb {

/// How far a line of a font reaches from its base line, in thousandths of the em.
struct LineExtent {
  float above;
  float below;
};

/// By the tables of a TrueType font: the Windows extent, and above it what the gap between lines leaves over.
/// That of the box if the tables are not there.
LineExtent ExtentByTables(CTrueTypeFontMetrics& metrics);

/// By the bounding box of any font.
LineExtent ExtentByBox(const CFontMetrics& metrics);

}  // namespace zeb
