#pragma once

#include "fonts/FontMetrics.h"
#include "platform/Export.h"

#include <vector>

class CEncodingInformation;
class CGlobalFontHandler;
class CPDFCharCollName;

/// The encodings and character collections that a report can use for its fonts. Each CGlobalFontHandler has
/// one.
///
/// After construction the list holds the predefined CMaps, then "winansi1252" and "fontspecific". It owns its
/// entries and the names of the character collections.
class ZEB_EXPORT CEncodings {
 public:
  /// @param owner the handler that owns the list
  explicit CEncodings(CGlobalFontHandler* owner);
  /// Copies member by member: the copy shares the entries, so only one of the two may be destroyed.
  CEncodings(const CEncodings& other);
  virtual ~CEncodings();
  /// As the copy constructor. The entries that this object held are not freed.
  CEncodings& operator=(const CEncodings& other);

  /// Appends the entry and takes ownership.
  void AddEncoding(CEncodingInformation* encoding);
  /// Takes the entry out of the list; it is the caller's from then on.
  /// @param index 0 up to GetEncodingCount() - 1, not checked
  void RemoveEncodingAt(int index);
  int GetEncodingCount() const;
  /// The entry at a position. An empty list gets the WinAnsi encoding first, unless it was added before.
  /// @param index 0 up to GetEncodingCount() - 1, not checked
  CEncodingInformation* GetEncodingAt(int index);
  /// The first entry of that internal name, case-sensitively; null if there is none. An empty list gets the
  /// WinAnsi encoding first, unless it was added before.
  CEncodingInformation* FindEncoding(const wchar_t* internalName);
  /// The name of a character collection; null if there is none.
  /// @param collection the collection's value, not a position
  CPDFCharCollName* GetCharCollNameAt(CFontMetrics::CharColl collection) const;

  /// The standard contents. Each adds once; a second call does nothing.
  void AddCMaps();
  void AddCharCollNames();
  void AddWinAnsiEncoding();
  void AddCP1250Encoding();
  void AddFontSpecificEncoding();

 protected:
  std::vector<CEncodingInformation*> m_rgpEncodings;  // owned, shared by copies
  CGlobalFontHandler* m_pOwner;                       // observer
  bool m_bWinAnsiAdded;
  bool m_bCP1250Added;
  bool m_bFontSpecificAdded;
  std::vector<CPDFCharCollName*> m_rgpCharCollNames;  // owned, shared by copies
  bool m_bCharCollNamesAdded;
  bool m_bCMapsAdded;
};
