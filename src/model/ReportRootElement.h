#pragma once

#include "platform/Export.h"

#include <string>
#include <vector>

class CIDManager;
class CPlaceable;
class CReportDocument;
class CReportLayout;

/// The entry of the report model: one report in memory, that is a report file (the content) and a layout file
/// (the pages). Either file can be loaded or saved without the other. Owns the document and the layout.
///
/// All file operations switch the process's numeric locale (see CSetLocaleSwitch), so they must not run
/// beside other threads that format numbers. One report at a time is the design: the list of deletable
/// objects is one for the process.
class ZEB_EXPORT CReportRootElement {
 public:
  CReportRootElement();
  /// Copies member by member: both root elements then claim the same document and layout, and only one of
  /// them may be destroyed.
  CReportRootElement(const CReportRootElement& other);
  /// Deletes document and layout, then calls ClearDeletedObjects.
  virtual ~CReportRootElement();
  /// As the copy constructor. What this object held is not freed.
  CReportRootElement& operator=(const CReportRootElement& other);

  /// Loads a report file, a layout file, or both. An earlier document or layout is overwritten, not freed.
  /// Afterwards the model is of the current version, whatever was read.
  /// @param reportFile null to load no report file
  /// @param layoutFile null to load no layout file
  /// @throws CKXXMLException with number and message of the XML facility: a file is missing or not well-formed, or the font
  ///   pool cannot write the file of a font from the operating system
  /// @throws CKXException of the key "FontPoolIncomplete": the program of a font is nowhere; "IncorrectTrueTypeFile" or
  ///   any other key of reading a font or a picture. What was built so far stays, after a failure of either kind
  void LoadReport(const wchar_t* reportFile, const wchar_t* layoutFile);
  /// Loads a report file and, if asked, the layout file that it names, from the layout path.
  /// @throws as LoadReport
  void LoadReportDocument(const wchar_t* reportFile, bool loadLayout);
  /// Loads a layout file. With a document and a layout present, the present layout is deleted first.
  // Fixed behaviour: without a document the earlier layout is overwritten undeleted.
  /// @throws as LoadReport
  void LoadReportLayout(const wchar_t* layoutFile);

  /// Saves a report file, a layout file (which is written first), or both. Text objects hold the unique font
  /// name afterwards. A document must be present if there is a report path.
  /// @param reportFile null to save no report file
  /// @param layoutFile null to save no layout file
  /// @throws CKXException of the key "FileReadOnly" if the report file is read-only; CKXXMLException
  /// otherwise
  void SaveReport(const wchar_t* reportFile, const wchar_t* layoutFile);
  void SaveReportDocument(const wchar_t* reportFile);
  void SaveReportLayout(const wchar_t* layoutFile);
  /// Writes the list of the zones' value holder keys. The library does not read this file. A document must be
  /// present.
  /// @throws CKXXMLException
  void SaveValueHolders(const wchar_t* file);

  CReportDocument* GetReportDocument() const;
  /// Stores the pointer and takes ownership; the earlier document is not freed.
  void SetReportDocument(CReportDocument* document);
  CReportLayout* GetReportLayout() const;
  /// Stores the pointer and takes ownership; the earlier layout is not freed.
  void SetReportLayout(CReportLayout* layout);

  /// The report file that was last loaded or saved.
  const wchar_t* GetReportFile() const;
  /// The layout file that was last loaded or saved.
  const wchar_t* GetLayoutFile() const;
  /// Name of the report type.
  const wchar_t* GetReportType() const;
  void SetReportType(const wchar_t* reportType);
  /// Folder that is put in front of the report's layout name; ends in a backslash once set.
  const wchar_t* GetLayoutPath() const;
  /// Stores the folder and appends a backslash unless it ends in one. An empty text is not allowed for.
  void SetLayoutPath(const wchar_t* path);
  /// Folder of the print templates; ends in a backslash once set.
  const wchar_t* GetPrintTemplatesPath() const;
  /// As SetLayoutPath.
  void SetPrintTemplatesPath(const wchar_t* path);

  /// Hands an object that no zone and no page owns to the process-wide list, which then owns it.
  static void AddDeletableObject(CPlaceable* object);
  /// Deletes the objects of the process-wide list and empties it.
  // Fixed behaviour: frees the placeholders of every report of the process, not only of the one that ends.
  static void ClearDeletedObjects();

 private:
  void ReadFiles(const wchar_t* reportFile, const wchar_t* layoutFile);
  void ReadLayoutFile(const wchar_t* layoutFile, CIDManager& ids);
  void WriteLayoutFile(const wchar_t* layoutFile);
  void WriteReportFile(const wchar_t* reportFile);

  CReportDocument* m_pReportDocument = nullptr;  // owned, shared by copies
  CReportLayout* m_pReportLayout = nullptr;      // owned, shared by copies
  std::wstring m_strReportFile;
  std::wstring m_strLayoutFile;
  std::wstring m_strReportType;
  std::wstring m_strPrintTemplatesPath;
  std::wstring m_strLayoutPath;
  int m_iVersionNr = 1;
  int m_iValueHolderVersionNr = 1;

  static std::vector<CPlaceable*> m_rgpDeletableObjects;  // owned
};
