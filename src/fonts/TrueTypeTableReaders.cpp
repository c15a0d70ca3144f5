#include "fonts/TrueTypeTableReaders.h"

#include "fonts/TrueTypeTables.h"

#include <cstddef>

namespace zeb {

namespace {

template <std::size_t Count>
bool ReadBytes(ByteReader& in, std::array<unsigned char, Count>& bytes) {
  for (unsigned char& byte : bytes) {
    if (!in.ReadU8(byte)) return false;
  }
  return true;
}

template <std::size_t Count>
bool ReadU32s(ByteReader& in, std::array<unsigned int, Count>& numbers) {
  for (unsigned int& number : numbers) {
    if (!in.ReadU32BE(number)) return false;
  }
  return true;
}

bool ReadScriptMetrics(ByteReader& in, CTrueTypeTabOS2& table) {
  return in.ReadS16BE(table.ySubscriptXSize) && in.ReadS16BE(table.ySubscriptYSize) &&
         in.ReadS16BE(table.ySubscriptXOffset) && in.ReadS16BE(table.ySubscriptYOffset) &&
         in.ReadS16BE(table.ySuperscriptXSize) && in.ReadS16BE(table.ySuperscriptYSize) &&
         in.ReadS16BE(table.ySuperscriptXOffset) && in.ReadS16BE(table.ySuperscriptYOffset) &&
         in.ReadS16BE(table.yStrikeoutSize) && in.ReadS16BE(table.yStrikeoutPosition);
}

bool ReadOS2Version0(ByteReader& in, CTrueTypeTabOS2& table) {
  return in.ReadU16BE(table.version) && in.ReadS16BE(table.xAvgCharWidth) &&
         in.ReadU16BE(table.usWeightClass) && in.ReadU16BE(table.usWidthClass) &&
         in.ReadU16BE(table.fsType) && ReadScriptMetrics(in, table) && in.ReadS16BE(table.sFamilyClass) &&
         ReadBytes(in, table.panose) && ReadU32s(in, table.ulUnicodeRange) &&
         ReadBytes(in, table.achVendID) && in.ReadU16BE(table.fsSelection) &&
         in.ReadU16BE(table.usFirstCharIndex) && in.ReadU16BE(table.usLastCharIndex) &&
         in.ReadS16BE(table.sTypoAscender) && in.ReadS16BE(table.sTypoDescender) &&
         in.ReadS16BE(table.sTypoLineGap) && in.ReadU16BE(table.usWinAscent) &&
         in.ReadU16BE(table.usWinDescent);
}

}  // namespace

bool ReadHead(ByteReader in, CTrueTypeTabHead& table) {
  return in.ReadU32BE(table.version) && in.ReadU32BE(table.fontRevision) &&
         in.ReadU32BE(table.checkSumAdjustment) && in.ReadU32BE(table.magicNumber) &&
         in.ReadU16BE(table.flags) && in.ReadU16BE(table.unitsPerEm) && ReadU32s(in, table.created) &&
         ReadU32s(in, table.modified) && in.ReadS16BE(table.xMin) && in.ReadS16BE(table.yMin) &&
         in.ReadS16BE(table.xMax) && in.ReadS16BE(table.yMax) && in.ReadU16BE(table.macStyle) &&
         in.ReadU16BE(table.lowestRecPPEM) && in.ReadS16BE(table.fontDirectionHint) &&
         in.ReadS16BE(table.indexToLocFormat) && in.ReadS16BE(table.glyphDataFormat);
}

bool ReadHhea(ByteReader in, CTrueTypeTabHhea& table) {
  if (!in.ReadU32BE(table.version) || !in.ReadS16BE(table.ascender) || !in.ReadS16BE(table.descender) ||
      !in.ReadS16BE(table.lineGap) || !in.ReadU16BE(table.advanceWidthMax) ||
      !in.ReadS16BE(table.minLeftSideBearing) || !in.ReadS16BE(table.minRightSideBearing) ||
      !in.ReadS16BE(table.xMaxExtent) || !in.ReadS16BE(table.caretSlopeRise) ||
      !in.ReadS16BE(table.caretSlopeRun)) {
    return false;
  }
  for (short& reserved : table.reserved) {
    if (!in.ReadS16BE(reserved)) return false;
  }
  return in.ReadS16BE(table.metricDataFormat) && in.ReadU16BE(table.numberOfHMetrics);
}

bool ReadMaxp(ByteReader in, CTrueTypeTabMaxp& table) {
  if (!in.ReadU32BE(table.version) || !in.ReadU16BE(table.numGlyphs)) return false;
  // Version 0.5 ends here.
  if (table.version < 0x10000) return true;
  return in.ReadU16BE(table.maxPoints) && in.ReadU16BE(table.maxContours) &&
         in.ReadU16BE(table.maxCompositePoints) && in.ReadU16BE(table.maxCompositeContours) &&
         in.ReadU16BE(table.maxZones) && in.ReadU16BE(table.maxTwilightPoints) &&
         in.ReadU16BE(table.maxStorage) && in.ReadU16BE(table.maxFunctionDefs) &&
         in.ReadU16BE(table.maxInstructionDefs) && in.ReadU16BE(table.maxStackElements) &&
         in.ReadU16BE(table.maxSizeOfInstructions) && in.ReadU16BE(table.maxComponentElements) &&
         in.ReadU16BE(table.maxComponentDepth);
}

bool ReadOS2(ByteReader in, CTrueTypeTabOS2& table) {
  if (!ReadOS2Version0(in, table)) return false;
  if (table.version >= 1 && !ReadU32s(in, table.ulCodePageRange)) return false;
  if (table.version < 2) return true;
  return in.ReadS16BE(table.sxHeight) && in.ReadS16BE(table.sCapHeight) &&
         in.ReadU16BE(table.usDefaultChar) && in.ReadU16BE(table.usBreakChar) &&
         in.ReadU16BE(table.usMaxContext);
}

bool ReadPCLT(ByteReader in, CTrueTypeTabPCLT& table) {
  if (!in.Skip(10) || !in.ReadU16BE(table.xHeight) || !in.Skip(4) || !in.ReadU16BE(table.capHeight) ||
      !in.Skip(34) || !in.ReadU8(table.serifStyle)) {
    return false;
  }
  table.serif = table.serifStyle >> 6U != 1;
  return true;
}

}  // namespace zeb
