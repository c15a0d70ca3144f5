#include "fonts/PostscriptFontMetrics.h"

CPostscriptFontMetrics::CPostscriptFontMetrics() : m_rgwcToken{}, m_rgwcLine{}, m_pCursor(nullptr) {}

CPostscriptFontMetrics::CPostscriptFontMetrics(const CPostscriptFontMetrics& other) = default;

CPostscriptFontMetrics::~CPostscriptFontMetrics() = default;

CPostscriptFontMetrics& CPostscriptFontMetrics::operator=(const CPostscriptFontMetrics& other) = default;
