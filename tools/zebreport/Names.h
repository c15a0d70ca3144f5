#pragma once

#include "ZEBReportDocument.h"

#include <map>
#include <string>
#include <utility>

namespace zebreport {

/// What kind of object it is: "text", "field", "formula", "cell", ...
std::wstring KindOf(const CPlaceable& object);

/// Names the objects of a report so that a person can tell them apart: by kind and by key, text or number.
/// Objects of one zone or page that would have the same name are counted: `text "x" (2)`.
class Names {
 public:
  /// How a key or the name of a zone is shown.
  using Shape = std::wstring (*)(const std::wstring& name);

  explicit Names(const CReportRootElement& report);
  /// @param shape makes long names short
  Names(const CReportRootElement& report, Shape shape);

  /// The object's name as seen from the zone or page `place`; objects of another one say where they are.
  std::wstring Of(const CPlaceable* object, const std::wstring& place) const;

  static std::wstring OfZone(const CReportZone& zone);
  /// @param index index of the template in the layout
  static std::wstring OfPage(int index);

 private:
  /// A zone or page: its whole name, and how it is shown.
  using Place = std::pair<const std::wstring, std::wstring>;

  struct Entry {
    std::wstring name;
    const Place* place;  // observer: in m_places
  };

  void AddZone(CReportZone& zone);
  void AddPage(CLayoutPage& page, int index);
  void Add(const CPlaceable* object, const Place& place);
  void AddCell(CTableCell* cell, const Place& place);

  Shape m_shape;
  std::map<std::wstring, std::wstring> m_places;
  std::map<const CPlaceable*, Entry> m_entries;
  /// How often a name was given in a place.
  std::map<std::pair<const Place*, std::wstring>, int> m_used;
};

}  // namespace zebreport
