#include "fonts/TrueTypeFontMetrics.h"

#include "fonts/TrueTypeFile.h"
#include "fonts/TrueTypeReader.h"

#include <new>

CTrueTypeFontMetrics::CTrueTypeFontMetrics() = default;

CTrueTypeFontMetrics::CTrueTypeFontMetrics(const CTrueTypeFontMetrics& other) = default;

CTrueTypeFontMetrics::~CTrueTypeFontMetrics() { delete m_pTTFile; }

CTrueTypeFontMetrics& CTrueTypeFontMetrics::operator=(const CTrueTypeFontMetrics& other) = default;

CTrueTypeFile* CTrueTypeFontMetrics::GetTTFile() { return m_pTTFile; }

int CTrueTypeFontMetrics::ReadTrueTypeFont(const wchar_t* faceName, const wchar_t* filePath,
                                           const wchar_t* encoding, bool unicode, bool reuseData, int bold,
                                           bool italic) {
  try {
    return zeb::TrueTypeReader(*this, {faceName, filePath, encoding, unicode, reuseData, bold, italic})
        .Read();
  } catch (const std::bad_alloc&) {
    return zeb::kTrueTypeNoMemory;
  }
}
