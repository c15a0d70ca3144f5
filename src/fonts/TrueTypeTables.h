#pragma once

#include "platform/Export.h"

#include <array>
#include <string>
#include <vector>

// The tables of a TrueType file that are plain records. Fields have the names of the table's published description
// and are in font units where they are lengths.

/// The table `head`.
class ZEB_EXPORT CTrueTypeTabHead {
 public:
  unsigned int version = 0;  ///< 16.16
  unsigned int fontRevision = 0;
  unsigned int checkSumAdjustment = 0;
  unsigned int magicNumber = 0;
  unsigned short flags = 0;
  unsigned short unitsPerEm = 0;
  std::array<unsigned int, 2> created = {};  ///< seconds since 1904, high half first
  std::array<unsigned int, 2> modified = {};
  short xMin = 0;
  short yMin = 0;
  short xMax = 0;
  short yMax = 0;
  unsigned short macStyle = 0;
  unsigned short lowestRecPPEM = 0;
  short fontDirectionHint = 0;
  short indexToLocFormat = 0;  ///< 1: `loca` has 32-bit offsets
  short glyphDataFormat = 0;
};

/// The table `hhea`.
class ZEB_EXPORT CTrueTypeTabHhea {
 public:
  unsigned int version = 0;
  short ascender = 0;
  short descender = 0;
  short lineGap = 0;
  unsigned short advanceWidthMax = 0;
  short minLeftSideBearing = 0;
  short minRightSideBearing = 0;
  short xMaxExtent = 0;
  short caretSlopeRise = 0;
  short caretSlopeRun = 0;
  std::array<short, 5> reserved = {};  ///< the first one is the caret offset of later descriptions
  short metricDataFormat = 0;
  unsigned short numberOfHMetrics = 0;
};

/// The table `maxp`. A table of version 0.5 has only the first two fields.
class ZEB_EXPORT CTrueTypeTabMaxp {
 public:
  unsigned int version = 0;
  unsigned short numGlyphs = 0;
  unsigned short maxPoints = 0;
  unsigned short maxContours = 0;
  unsigned short maxCompositePoints = 0;
  unsigned short maxCompositeContours = 0;
  unsigned short maxZones = 0;
  unsigned short maxTwilightPoints = 0;
  unsigned short maxStorage = 0;
  unsigned short maxFunctionDefs = 0;
  unsigned short maxInstructionDefs = 0;
  unsigned short maxStackElements = 0;
  unsigned short maxSizeOfInstructions = 0;
  unsigned short maxComponentElements = 0;
  unsigned short maxComponentDepth = 0;
};

/// The table `name`: the names of the face in two languages, from the Windows records, indexed by name id.
class ZEB_EXPORT CTrueTypeTabName {
 public:
  /// Name ids 0 to 6: copyright, family, style, identification, full name, version, PostScript name.
  static constexpr int kNameCount = 7;

  unsigned short format = 0;
  unsigned short count = 0;
  unsigned short stringOffset = 0;
  std::array<std::wstring, kNameCount> englishNames;  ///< US English, language 1033
  std::array<std::wstring, kNameCount> systemNames;   ///< the system's language
};

/// The table `post`. The names of the glyphs are in the entries of `hmtx`.
class ZEB_EXPORT CTrueTypeTabPost {
 public:
  unsigned int version = 0;  ///< 16.16
  double italicAngle = 0;    ///< degrees, negative leans right
  short underlinePosition = 0;
  short underlineThickness = 0;
  unsigned int isFixedPitch = 0;
  unsigned int minMemType42 = 0;
  unsigned int maxMemType42 = 0;
  unsigned int minMemType1 = 0;
  unsigned int maxMemType1 = 0;
  std::vector<const wchar_t*>
      standardNames;  ///< of versions 1 and 2: 258 names in Macintosh order; observers
};

/// The table `OS/2`. What the table's version does not have is 0.
class ZEB_EXPORT CTrueTypeTabOS2 {
 public:
  unsigned short version = 0;
  short xAvgCharWidth = 0;
  unsigned short usWeightClass = 0;
  unsigned short usWidthClass = 0;
  unsigned short fsType = 0;
  short ySubscriptXSize = 0;
  short ySubscriptYSize = 0;
  short ySubscriptXOffset = 0;
  short ySubscriptYOffset = 0;
  short ySuperscriptXSize = 0;
  short ySuperscriptYSize = 0;
  short ySuperscriptXOffset = 0;
  short ySuperscriptYOffset = 0;
  short yStrikeoutSize = 0;
  short yStrikeoutPosition = 0;
  short sFamilyClass = 0;
  std::array<unsigned char, 10> panose = {};
  std::array<unsigned int, 4> ulUnicodeRange = {};
  std::array<unsigned char, 4> achVendID = {};
  unsigned short fsSelection = 0;
  unsigned short usFirstCharIndex = 0;
  unsigned short usLastCharIndex = 0;
  short sTypoAscender = 0;
  short sTypoDescender = 0;
  short sTypoLineGap = 0;
  unsigned short usWinAscent = 0;
  unsigned short usWinDescent = 0;
  std::array<unsigned int, 2> ulCodePageRange = {};  ///< from version 1 on
  short sxHeight = 0;                                ///< from version 2 on, as all below
  short sCapHeight = 0;
  unsigned short usDefaultChar = 0;
  unsigned short usBreakChar = 0;
  unsigned short usMaxContext = 0;
};

/// The table `CFF `: only where it lies, in bytes.
class ZEB_EXPORT CTrueTypeTabCFF {
 public:
  unsigned int offset = 0;
  unsigned int length = 0;
};

/// The table `loca`: what the entries of `hmtx` leave over of it.
class ZEB_EXPORT CTrueTypeTabLoca {
 public:
  unsigned int endOffset = 0;  ///< where the last glyph ends in `glyf`, in bytes
};

/// The table `glyf`: only where it lies, in bytes. The headers of the glyphs are in the entries of `hmtx`.
class ZEB_EXPORT CTrueTypeTabGlyf {
 public:
  unsigned int offset = 0;
  unsigned int length = 0;
};

/// The table `PCLT`, as far as it is read.
class ZEB_EXPORT CTrueTypeTabPCLT {
 public:
  unsigned short xHeight = 0;
  unsigned short capHeight = 0;
  unsigned char serifStyle = 0;
  bool serif = false;  ///< set unless `serifStyle >> 6` is 1 (sans serif)
};
