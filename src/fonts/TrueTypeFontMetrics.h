#pragma once

#include "fonts/FontMetrics.h"
#include "platform/Export.h"

class CFontInformation;

/// Metrics of a TrueType font. The reader is reached through CFontInformation.
class ZEB_EXPORT CTrueTypeFontMetrics : public CFontMetrics {
 public:
  CTrueTypeFontMetrics();
  /// The copy shares the parsed file.
  CTrueTypeFontMetrics(const CTrueTypeFontMetrics& other);
  /// Frees the parsed file.
  ~CTrueTypeFontMetrics() override;
  /// As the copy constructor. The parsed file that this object held is not freed.
  CTrueTypeFontMetrics& operator=(const CTrueTypeFontMetrics& other);

  CTrueTypeFile* GetTTFile() override;

 private:
  friend class CFontInformation;

  CTrueTypeFile* m_pTTFile;  // owned, shared by copies
  unsigned int m_uCFFOffset;
  unsigned int m_uCFFLength;
};
