#pragma once

#include "platform/Export.h"

#include <string>

class CRTFContext;

/// Takes a document from CRTFParser, run by run, while RtfParse is in progress. The parser does not own it.
class ZEB_EXPORT CContextChangedHandler {
 public:
  CContextChangedHandler();
  CContextChangedHandler(const CContextChangedHandler& other);
  CContextChangedHandler& operator=(const CContextChangedHandler& other);

  /// A run of text with one formatting has ended, or a paragraph, line or table, or a picture has been read.
  /// @param text the run, may be empty; valid during the call
  /// @param context formatting and what ended; valid during the call
  virtual void OnContextChanged(const wchar_t* text, CRTFContext* context) = 0;

  /// A bookmark starts or ends here. Does nothing if it is not overridden.
  virtual void OnBookmark(std::wstring name, bool start);

 protected:
  ~CContextChangedHandler() = default;
};
