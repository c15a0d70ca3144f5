#pragma once

#include "ZEBReportDocument.h"

#include <map>
#include <string>

namespace zebreport {

/// What kind of object it is: "text", "field", "formula", "cell", ...
std::wstring KindOf(const CPlaceable& object);

/// Names the objects of a report so that a person can tell them apart: by kind and by key, text or number.
/// Objects of one zone or page that would have the same name are counted: `text "x" (2)`.
class Names {
 public:
  explicit Names(const CReportRootElement& report);

  /// The object's name as seen from the zone or page `place`; objects of another one say where they are.
  std::wstring Of(const CPlaceable* object, const std::wstring& place) const;

  static std::wstring OfZone(const CReportZone& zone);
  /// @param index index of the template in the layout
  static std::wstring OfPage(int index);

 private:
  struct Entry {
    std::wstring name;
    std::wstring place;
  };

  void AddZone(CReportZone& zone);
  void AddPage(CLayoutPage& page, int index);
  void Add(const CPlaceable* object, const std::wstring& place);
  void AddCell(CTableCell* cell, const std::wstring& place);

  std::map<const CPlaceable*, Entry> m_entries;
  /// How often a name was given in a place.
  std::map<std::wstring, int> m_used;
};

}  // namespace zebreport
