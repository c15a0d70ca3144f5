#include "fonts/Encodings.h"

CEncodings::CEncodings(CGlobalFontHandler* owner) : m_pOwner(owner) {}

CEncodings::CEncodings(const CEncodings& other) = default;

CEncodings::~CEncodings() = default;

CEncodings& CEncodings::operator=(const CEncodings& other) = default;
