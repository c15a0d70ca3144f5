#include "rtf/RTFParserWrapper.h"

#include "rtf/RTFParser.h"

CRTFParserWrapper::CRTFParserWrapper(unsigned char* data, int length, CContextChangedHandler* handler,
                                     CPictureConvertHandler* pictureHandler)
    : m_pParser(new CRTFParser(data, length, handler, pictureHandler)) {}

CRTFParserWrapper::CRTFParserWrapper(const CRTFParserWrapper& other) = default;
CRTFParserWrapper& CRTFParserWrapper::operator=(const CRTFParserWrapper& other) = default;

// Fixed behaviour: the parser stays; copies and callers may still use it.
CRTFParserWrapper::~CRTFParserWrapper() = default;

int CRTFParserWrapper::RtfParse() { return m_pParser->RtfParse(); }
