#pragma once

#include "placement/ReportOrderedElement.h"
#include "platform/Export.h"

class CReportDocument;
class CReportRootElement;
class CReportZone;
class CValueHolder;

/// A report as its data supplier sees it: loads a report file and answers, zone by zone and by plain indexes and texts,
/// which value holders, formulas, sums and texts it holds, and in which order. Owns the report.
///
/// A zone is addressed by its index in the report. All questions but GetRootElement expect a loaded report and indexes
/// that exist; nothing is checked except where it is said. Texts belong to the report and live as long as it does.
class ZEB_EXPORT CReportValueHolders {
 public:
  CReportValueHolders();
  /// Shares the report with its source: only one of the two may be destroyed or load another report.
  CReportValueHolders(const CReportValueHolders& other);
  virtual ~CReportValueHolders();
  /// As the copy constructor. The report that this object held is not freed.
  CReportValueHolders& operator=(const CReportValueHolders& other);

  /// Loads a report file without its layout and finds the keys that its formulas read. A report that was loaded before
  /// is freed first, also if this one then fails.
  /// @param reportFile path of the report file
  /// @param fontPoolPath folder of the font pool, for the whole process
  /// @param exceptionPath folder of the error catalogue, for the whole process
  /// @throws CKXXMLException the file is missing or malformed, or the font pool cannot write the file of a font from the
  ///   operating system
  /// @throws CKXException of the key "FontPoolIncomplete": the program of a font is nowhere; "IncorrectTrueTypeFile" or
  ///   any other key of reading a font or a picture. After a failure of either kind no question may be asked before a
  ///   load succeeds
  void LoadReport(const wchar_t* reportFile, const wchar_t* fontPoolPath, const wchar_t* exceptionPath);
  /// The report, for callers that need more; null before the first load. Owned by this object.
  CReportRootElement* GetRootElement() const;

  /// The number of zones.
  int GetReportZoneCount() const;
  const wchar_t* GetReportZoneInternalName(int zone) const;
  /// The index of the first zone of exactly this internal name, -1 if there is none.
  int GetReportZoneNr(const wchar_t* name);

  /// The number of fixed texts of the zone, without those in table cells.
  int GetReportZoneTextCount(int zone) const;
  const wchar_t* GetReportZoneTextAt(int zone, int index) const;

  /// The number of keys that the zone's formulas and conditions read; see CReportZone::IdentifyFormulaValueHolderKeys.
  int GetReportZoneFormulaValueHolderKeyCount(int zone) const;
  const wchar_t* GetReportZoneFormulaValueHolderKeyAt(int zone, int index);

  /// The number of elements in the zone's order of placing, which is computed once.
  /// @throws CKXException of the key "OrderVectorNotSortable": objects are tied to each other in a circle
  int GetReportZoneOrderedElementCount(int zone) const;
  /// An element in the order of placing. There is one answer object: the next call overwrites it.
  // Fixed behaviour: an element that is null leaves the answer as the call before made it.
  /// @throws CKXException of the key "OrderVectorNotSortable"
  const CReportOrderedElement& GetReportZoneOrderedElementAt(int zone, int index);

  /// The number of value holders of the zone. One index runs over the zone's own value holders, then those in its
  /// table cells, then the formulas in its table cells.
  int GetReportZoneValueHolderCount(int zone) const;
  /// The value holder's key, null past the end.
  const wchar_t* GetReportZoneValueHolderInternalNameAt(int zone, int index) const;
  /// The name of a dynamic value holder, null for any other and past the end.
  const wchar_t* GetReportZoneValueHolderDynNameAt(int zone, int index) const;
  /// The name of a formula value holder, null for any other and past the end.
  const wchar_t* GetReportZoneValueHolderFormulaNameAt(int zone, int index) const;
  /// The formula of a formula value holder, null for any other and past the end.
  const wchar_t* GetReportZoneValueHolderFormulaAt(int zone, int index) const;
  /// The name of a sum value holder, null for any other and past the end.
  const wchar_t* GetReportZoneValueHolderSumNameAt(int zone, int index) const;
  /// The options of a formula value holder, 0 for any other and past the end: the sum of 1 if the result is empty if a
  /// value holder is empty, 2 if it is empty if null, 4 if it is a truth value.
  int GetReportZoneValueHolderFormulaOptionsAt(int zone, int index) const;
  /// Whether the value holder's number is printed in words; false past the end.
  bool GetReportZoneValueHolderNumberToText(int zone, int index) const;

  /// The size, in the caller's unit, of the first graphic of exactly this key among the zone's own value holders. Those in table
  /// cells do not count.
  /// @param width untouched if there is none
  /// @param height untouched if there is none
  /// @return whether there is one
  bool GetGraphicValueHolderDimensions(int zone, const wchar_t* key, float& width, float& height);

 private:
  CReportZone& Zone(int zone) const;
  /// By the one index over the three lists; null past the end.
  CValueHolder* GetValueHolder(CReportZone* zone, int index) const;

  CReportRootElement* m_pRootElement = nullptr;  // owned, shared by copies
  CReportDocument* m_pReportDocument = nullptr;  // observer
  CReportOrderedElement m_orderedElement;        // the one answer object
};
