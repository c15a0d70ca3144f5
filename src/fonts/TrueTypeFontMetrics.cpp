#include "fonts/TrueTypeFontMetrics.h"

#include "fonts/TrueTypeFile.h"

CTrueTypeFontMetrics::CTrueTypeFontMetrics() = default;

CTrueTypeFontMetrics::CTrueTypeFontMetrics(const CTrueTypeFontMetrics& other) = default;

CTrueTypeFontMetrics::~CTrueTypeFontMetrics() { delete m_pTTFile; }

CTrueTypeFontMetrics& CTrueTypeFontMetrics::operator=(const CTrueTypeFontMetrics& other) = default;

CTrueTypeFile* CTrueTypeFontMetrics::GetTTFile() { return m_pTTFile; }
