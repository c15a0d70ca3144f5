#pragma once

#include "platform/Export.h"

class CContextChangedHandler;
class CPictureConvertHandler;
class CRTFParser;

/// The thin entry to CRTFParser.
class ZEB_EXPORT CRTFParserWrapper {
 public:
  /// Makes a CRTFParser with these arguments.
  /// @param data is not copied: it must live until RtfParse has returned
  /// @param length of the data in bytes; below 0 counts as 0
  /// @param handler takes the runs; may be null, then there is no way to the text
  /// @param pictureHandler converts pictures; may be null
  CRTFParserWrapper(unsigned char* data, int length, CContextChangedHandler* handler,
                    CPictureConvertHandler* pictureHandler);
  /// Shares the parser.
  CRTFParserWrapper(const CRTFParserWrapper& other);
  CRTFParserWrapper& operator=(const CRTFParserWrapper& other);
  /// Does not free the parser.
  virtual ~CRTFParserWrapper();

  /// Reads the data.
  /// @return a CRTFParser::ResultCode
  int RtfParse();

 private:
  CRTFParser* m_pParser;  // shared by copies, freed by no one
};
