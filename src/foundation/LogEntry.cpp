#include "foundation/LogEntry.h"

CLogEntry::CLogEntry(int level, const wchar_t* text) : m_iLevel(level), m_strText(text) {}

CLogEntry::CLogEntry(const CLogEntry& other) = default;

CLogEntry::~CLogEntry() = default;

CLogEntry& CLogEntry::operator=(const CLogEntry& other) = default;

int CLogEntry::GetLevel() const { return m_iLevel; }

const wchar_t* CLogEntry::GetText() const { return m_strText.c_str(); }
