#pragma once

#include "platform/Export.h"

#include <string>
#include <vector>

class CDynamicValueHolderItem;
class CReportDescription;
namespace zebxmln {
class CXMLNode;
}

/// The catalogue of an installation's reports, with the configuration of the kinds of dynamic value holder that
/// they may offer. Owns both. The file has two generations of element names: both are read, the newer is written.
class ZEB_EXPORT CReportDescriptions {
 public:
  CReportDescriptions();
  /// Copies the texts and shares entries and items: the copy is for reading only while the source lives.
  CReportDescriptions(const CReportDescriptions& other);
  virtual ~CReportDescriptions();
  /// As the copy constructor. What this object held is not freed.
  CReportDescriptions& operator=(const CReportDescriptions& other);

  /// Reads a catalogue. Entries and items are appended to those that are there.
  /// @throws CKXXMLException the file is missing or malformed
  void LoadReportDescriptions(const wchar_t* fileName);
  /// Writes a catalogue.
  // Fixed behaviour: the version number is written as it was read, though the names are always the newest.
  /// @throws CKXXMLException the file cannot be written
  void SaveReportDescriptions(const wchar_t* fileName);

  /// Appends and takes ownership.
  void AddReportDescription(CReportDescription* description);
  /// The entry at the index, which is not checked.
  CReportDescription* GetReportDescriptionAt(int index) const;
  int GetReportDescriptionsCount();

  /// Appends and takes ownership.
  void AddDynamicVHItem(CDynamicValueHolderItem* item);
  /// The item at the index, which is not checked.
  CDynamicValueHolderItem* GetDynamicVHItemAt(int index);
  int GetDynamicVHItemCount() const;

  /// Name of the group of products that the catalogue belongs to.
  const wchar_t* GetProductFamily() const;
  void SetProductFamily(const wchar_t* productFamily);
  /// The catalogue's own version, -1 if the file names none.
  int GetReportDescriptionVersionNr() const;

 private:
  void Load(const wchar_t* fileName);
  void LoadConfig(zebxmln::CXMLNode* node);
  void Save(const wchar_t* fileName) const;

  std::vector<CReportDescription*> m_rgpReportDescriptions;  // owned, shared by copies
  std::wstring m_strFileName;
  std::wstring m_strProductFamily;
  int m_iVersionNr = 2;
  int m_iReportDescriptionVersionNr = -1;
  std::vector<CDynamicValueHolderItem*> m_rgpDynamicVHItems;  // owned, shared by copies
};
