#pragma once

#include "platform/Export.h"

#include <string>
#include <vector>

class CCopyValueHolderKey;
class CDefinedDynVH;
class CGlobalFontHandler;
class CIDManager;
class CReportZone;
namespace zebxmln {
class CXMLNode;
}

/// The content of a report: its zones in order, the fonts and encodings that it uses, the name of its layout
/// file, and two small tables about value holders. Owns all of them.
class ZEB_EXPORT CReportDocument {
 public:
  CReportDocument();
  /// Copies member by member: the copy shares zones, tables and font handler with its source.
  CReportDocument(const CReportDocument& other);
  virtual ~CReportDocument();

  /// Reads the `ReportDocument` element. The zones are created by their identifiers and are still empty:
  /// their data stand in records of their own.
  /// Errors of fonts: "FontPoolIncomplete" with the name of a TrueType font whose program is nowhere;
  /// "NoMoreMemoryLeft" for too many programs from the operating system; those of CFontInformation::ReadTT.
  /// @throws zebxmln::CXMLException if a program comes from the operating system and the font pool cannot write its file
  /// @return true
  virtual bool Load(zebxmln::CXMLNode* node, CIDManager& ids);
  /// Adds the `ReportDocument` element to `node`, and the programs of its fonts to the font pool.
  /// @throws zebxmln::CXMLException if the font pool cannot write its file
  /// @return true
  virtual bool Save(zebxmln::CXMLNode* node, CIDManager& ids);

  /// As the copy constructor. What this object held is not freed.
  CReportDocument& operator=(const CReportDocument& other);

  /// Appends the zone and takes ownership.
  void AddReportZone(CReportZone* zone);
  int GetReportZoneCount();
  /// The zone at the index, which is not checked.
  CReportZone* GetReportZoneAt(int index) const;
  /// Replaces the pointer at the index, which is not checked; the old zone is not freed.
  void SetReportZoneAt(CReportZone* zone, int index);
  /// The first zone of the internal name, null if there is none.
  CReportZone* FindReportZone(const wchar_t* name) const;

  /// Appends and takes ownership.
  void AddDefinedDynVH(CDefinedDynVH* definedDynVH);
  /// Appends a new entry of that name and type.
  void AddDefinedDynVH(const wchar_t* name, const wchar_t* type);
  int GetDefinedDynVHCount() const;
  /// The entry at the index, which is not checked.
  CDefinedDynVH* GetDefinedDynVHAt(int index) const;

  /// Appends an entry. An equal one may be there already.
  void AddCopyValueHolderKey(const wchar_t* zone, const wchar_t* valueHolder);
  /// Whether an entry of exactly this zone and value holder exists.
  bool FindCopyValueHolderKey(const wchar_t* zone, const wchar_t* valueHolder) const;

  /// The fonts and encodings of the report; owned by the document.
  CGlobalFontHandler* GetFontHandler() const;

  /// File name of the layout, without folders.
  const wchar_t* GetReportLayoutName() const;
  /// Stores what stands behind the last backslash, or all of it if there is none.
  void SetReportLayoutName(const wchar_t* path);

  /// Version of the content: 2 is the current one.
  int GetVersionNr() const;
  /// Declares the content to be of the current version.
  void SetCurrentVersionNr();

 private:
  std::vector<CReportZone*> m_rgpReportZones;  // owned, shared by copies
  CGlobalFontHandler* m_pFontHandler;          // owned, shared by copies
  int m_iVersionNr;
  std::wstring m_strReportLayoutName;
  std::vector<CDefinedDynVH*> m_rgpDefinedDynVHs;              // owned, shared by copies
  std::vector<CCopyValueHolderKey*> m_rgpCopyValueHolderKeys;  // owned, shared by copies
};
