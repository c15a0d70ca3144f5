#pragma once

#include "platform/Export.h"

#include <vector>

class CGlobalFontHandler;
class CIDManager;
class CLayoutPage;
namespace zebxmln {
class CXMLNode;
}

/// The layout file in memory: one to three page templates, the fonts and encodings that they need, and the
/// two switches that say which template serves which page. Owns all of them.
class ZEB_EXPORT CReportLayout {
 public:
  /// A layout of one empty page.
  CReportLayout();
  /// Copies member by member: the copy shares pages and font handler with its source.
  CReportLayout(const CReportLayout& other);
  virtual ~CReportLayout();

  /// Reads the root element of a layout file, in its current and in its old form (version below 3).
  /// Errors of fonts: "FontPoolIncomplete" with the name of a TrueType font whose program is nowhere;
  /// "NoMoreMemoryLeft" for too many programs from the operating system; those of CFontInformation::ReadTT.
  /// @throws zebxmln::CXMLException if a program comes from the operating system and the font pool cannot write its file
  /// @return true
  virtual bool Load(zebxmln::CXMLNode* node, CIDManager& ids);
  /// Fills the root element of a layout file, and adds the programs of its fonts to the font pool.
  /// @throws zebxmln::CXMLException if the font pool cannot write its file
  /// @return true
  virtual bool Save(zebxmln::CXMLNode* node, CIDManager& ids);

  /// As the copy constructor. What this object held is not freed.
  CReportLayout& operator=(const CReportLayout& other);

  int GetPageCount() const;
  /// The page at the index, which is not checked.
  CLayoutPage* GetPageAt(int index) const;

  /// Whether the first page has a template of its own.
  bool GetFirstPageIndependent() const;
  /// Stores the switch; true also appends a new page.
  // Fixed behaviour: setting true twice appends two pages, and setting false removes none.
  void SetFirstPageIndependent(bool independent);
  /// Whether even and odd pages have different templates.
  bool GetEvenOddPagesIndependent() const;
  /// As SetFirstPageIndependent.
  void SetEvenOddPagesIndependent(bool independent);

  // The templates by purpose; null where the switches give that purpose no template.
  CLayoutPage* GetFirstPage() const;
  CLayoutPage* GetNormalPage() const;
  CLayoutPage* GetEvenPage() const;
  CLayoutPage* GetOddPage() const;

  /// The fonts and encodings of the layout; owned by the layout.
  CGlobalFontHandler* GetFontHandler() const;

  /// Version of the layout: 3 is the current one.
  int GetVersionNr() const;
  /// Declares the layout to be of the current version.
  void SetCurrentVersionNr();

 private:
  void LocalizeFontNames();

  CGlobalFontHandler* m_pFontHandler;  // owned, shared by copies
  int m_iVersionNr = 3;
  bool m_bFirstPageIndependent = false;
  bool m_bEvenOddPagesIndependent = false;
  std::vector<CLayoutPage*> m_rgpPages;  // owned, shared by copies
};
