#include "support/ReportGenerator.h"

#include <array>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace zebbench {

namespace {

/// A kind of placed object and how many of it stand in each zone.
struct Kind {
  std::string_view Record;
  std::string_view ID;         // in the zone's record, and in its own
  std::string_view RelatedID;  // in the relations of other objects
  int PerZone;
};

constexpr int kTexts = 41;
constexpr int kCells = 8;  // each holds one of the texts

// In the order in which their records stand in a file.
constexpr std::array<Kind, 10> kKinds = {{
    {"ValueHolder", "VHID", "VHID", 25},
    {"FormulaValueHolder", "FormulaVHID", "VHID", 8},
    {"SumValueHolder", "SumVHID", "VHID", 2},
    {"DynValueHolder", "DynVHID", "VHID", 2},
    {"CopyValueHolder", "CopyVHID", "VHID", 2},
    {"Text", "TxID", "TxID", kTexts},
    {"Picture", "PicID", "PicID", 2},
    {"Rectangle", "RectID", "RectID", 6},
    {"Line", "LineID", "LineID", 4},
    {"TableCell", "TableCellID", "TableCellID", kCells},
}};

constexpr std::string_view kText = "TxID";
constexpr std::string_view kTableCell = "TableCellID";

constexpr int OffsetOf(std::string_view id) {
  int offset = 0;
  for (const Kind& kind : kKinds) {
    if (kind.ID == id) return offset;
    offset += kind.PerZone;
  }
  return offset;
}

constexpr int kPerZone = 100;

class Generator {
 public:
  Generator(const std::filesystem::path& path, int objects)
      : m_Out(path, std::ios::binary), m_iZones((objects + kPerZone - 1) / kPerZone) {}

  void Run();

 private:
  void Open(std::string_view name);
  void Close(std::string_view name);
  void Leaf(std::string_view name, std::string_view text);
  void Leaf(std::string_view name, int number) { Leaf(name, std::to_string(number)); }

  void Document();
  void Zone(int zone);
  void Record(const Kind& kind, int id);
  void Placeable(int id, bool hasColor);
  void Text(int id, std::string_view content);
  void ValueHolder(int id);
  void SpecialValueHolder(const Kind& kind, int id);
  void Formula();
  void Picture();
  void TableCell(int id);
  void Color(std::string_view name);
  void Relation(int zone, int id, std::string_view idOfPrevious);

  /// Identifiers: the zones from 1, then the objects zone by zone, then a relation for each, then what stands for each
  /// zone in relations.
  int ZoneID(int zone) const { return 1 + zone; }
  int FirstOf(int zone) const { return 1 + m_iZones + zone * kPerZone; }
  int RelationOf(int id) const { return id + m_iZones * kPerZone; }
  int PlaceholderOf(int zone) const { return RelationOf(FirstOf(m_iZones)) + zone; }

  std::ofstream m_Out;
  int m_iZones;
  std::string m_strIndent;
};

void Generator::Open(std::string_view name) {
  m_Out << m_strIndent << '<' << name << ">\n";
  m_strIndent += "  ";
}

void Generator::Close(std::string_view name) {
  m_strIndent.resize(m_strIndent.size() - 2);
  m_Out << m_strIndent << "</" << name << ">\n";
}

void Generator::Leaf(std::string_view name, std::string_view text) {
  m_Out << m_strIndent << '<' << name << '>' << text << "</" << name << ">\n";
}

void Generator::Run() {
  m_Out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
  Open("ReportRootElement");
  Leaf("VersionNr", 1);
  Leaf("ReportType", "Rechnung");
  Document();
  for (int zone = 0; zone < m_iZones; ++zone) Zone(zone);
  int offset = 0;
  for (const Kind& kind : kKinds) {
    for (int zone = 0; zone < m_iZones; ++zone) {
      for (int i = 0; i < kind.PerZone; ++i) Record(kind, FirstOf(zone) + offset + i);
    }
    offset += kind.PerZone;
  }
  for (int zone = 0; zone < m_iZones; ++zone) {
    int id = FirstOf(zone);
    std::string_view previous;
    for (const Kind& kind : kKinds) {
      for (int i = 0; i < kind.PerZone; ++i) {
        Relation(zone, id++, previous);
        previous = kind.RelatedID;
      }
    }
  }
  Close("ReportRootElement");
}

void Generator::Document() {
  Open("ReportDocument");
  Leaf("VersionNr", 2);
  Leaf("ReportDocumentID", 0);
  for (int zone = 0; zone < m_iZones; ++zone) Leaf("ZoneID", ZoneID(zone));
  Leaf("ReportLayoutName", "layout.xml");
  Close("ReportDocument");
}

void Generator::Zone(int zone) {
  Open("ReportZone");
  Leaf("ZoneID", ZoneID(zone));
  Leaf("InternalName", "Zone" + std::to_string(zone));
  const int firstText = FirstOf(zone) + OffsetOf(kText);
  const int firstCell = FirstOf(zone) + OffsetOf(kTableCell);
  for (int id = firstText + kCells; id < firstText + kTexts; ++id) Leaf(kText, id);
  int id = FirstOf(zone);
  for (const Kind& kind : kKinds) {
    for (int i = 0; i < kind.PerZone; ++i, ++id) {
      if (kind.ID != kText && kind.ID != kTableCell) Leaf(kind.ID, id);
    }
  }
  for (int i = 0; i < kCells; ++i) {
    Leaf(kTableCell, firstCell + i);
    Leaf(kText, firstText + i);
  }
  Leaf("ZoneCanBreak", 0);
  Close("ReportZone");
}

void Generator::Record(const Kind& kind, int id) {
  Open(kind.Record);
  if (kind.Record == "Text") {
    Leaf("TxID", id);
    Placeable(id, id % 5 == 0);
    Text(id,
         "Lieferung frei Haus &amp; inkl. Verpackung, Stra\xC3\x9F"
         "e");
  } else if (kind.Record == "ValueHolder") {
    ValueHolder(id);
  } else if (kind.RelatedID == "VHID") {
    Open("ValueHolder");
    ValueHolder(id);
    Close("ValueHolder");
    SpecialValueHolder(kind, id);
  } else {
    Leaf(kind.ID, id);
    Placeable(id, true);
    if (kind.Record == "Picture") Picture();
    if (kind.Record == "TableCell") TableCell(id);
  }
  Close(kind.Record);
}

void Generator::Placeable(int id, bool hasColor) {
  Open("Placeable");
  Leaf("PlID", id);
  Leaf("PlRelID", RelationOf(id));
  Leaf("Width", std::to_string(40 + id % 400) + ".0");
  Leaf("Height", std::to_string(10 + id % 7) + ".5");
  Open("Border");
  Leaf("BaseUpper", "10.241");
  Leaf("BaseLower", "2.475");
  if (id % 3 == 0) Leaf("LowerWidth", "0.75");
  Close("Border");
  if (hasColor) Color("TextColor");
  if (id % 9 == 0) Color("BackgroundColor");
  Close("Placeable");
}

void Generator::Color(std::string_view name) {
  Open(name);
  Open("Color");
  Leaf("RGBRed", "0.1");
  Leaf("RGBGreen", "0.3");
  Leaf("RGBBlue", "0.5");
  Close("Color");
  Close(name);
}

void Generator::Text(int id, std::string_view content) {
  if (!content.empty()) Leaf("TextContent", content);
  Leaf("FontName", id % 4 == 0 ? "Times-Roman" : "Helvetica");
  Leaf("FontSize", "11.0");
  Leaf("LineSpacing", "12.716001");
}

void Generator::ValueHolder(int id) {
  Leaf("VHID", id);
  Open("Text");
  Leaf("TxID", id);
  Placeable(id, false);
  Text(id, {});
  Close("Text");
  Leaf("InternalKey", "KO.Feld" + std::to_string(id % 500));
  Leaf("VHType", 1 + id % 3);
}

void Generator::Formula() {
  Open("FormulaData");
  Leaf("Name", "Nettobetrag");
  Leaf("Formula",
       "roundk(Menge * Preis; 2) - wenn(Rabatt &gt; 0; roundk(Menge * Preis * Rabatt / 100; 2); 0)");
  Leaf("RoundVHKey", "PL.Nks2");
  for (const std::string_view key : {"Menge", "Preis", "Rabatt"}) {
    Open("KeyToType");
    Leaf("InternalKey", key);
    Leaf("VHType", 2);
    Close("KeyToType");
  }
  Close("FormulaData");
  Open("FormulaOptions");
  Leaf("InternalDecimalPlaces", -1);
  Leaf("ResultIsEmptyIfVHEmpty", 0);
  Leaf("ResultIsEmptyIfNull", 0);
  Leaf("ResultIsBool", 0);
  Close("FormulaOptions");
}

void Generator::SpecialValueHolder(const Kind& kind, int id) {
  if (kind.Record == "FormulaValueHolder") {
    Formula();
  } else if (kind.Record == "SumValueHolder") {
    Leaf("Name", "Summe");
    Leaf("SumKey", "Betrag");
  } else if (kind.Record == "DynValueHolder") {
    Leaf("Name", "Merkmal" + std::to_string(id % 20));
  } else {
    Leaf("RefZoneID", "Zone0");
    Leaf("RefVHID", "KO.Feld" + std::to_string(id % 500));
  }
}

void Generator::Picture() {
  Leaf("PictureDataLength", 300);
  Open("PictureData");
  Leaf("BinaryData", std::string(400, 'Q'));
  Close("PictureData");
}

void Generator::TableCell(int id) {
  Leaf("TableID", 1);
  Leaf("RowIndex", id / 4 % 2);
  Leaf("ColIndex", id % 4);
}

void Generator::Relation(int zone, int id, std::string_view idOfPrevious) {
  Open("PlRel");
  Leaf("PlRelID", RelationOf(id));
  if (idOfPrevious.empty()) {
    Leaf("ZoneID", PlaceholderOf(zone));
  } else {
    Leaf(idOfPrevious, id - 1);
    Open("DestRelPt");
    Leaf("RelPt", 2);
    Close("DestRelPt");
  }
  Open("RefOffsetPt");
  Open("SimplePt");
  Leaf("PtX", std::to_string(id % 50) + ".0");
  Leaf("PtY", std::to_string(-1 - id % 20) + ".25");
  Close("SimplePt");
  Close("RefOffsetPt");
  Close("PlRel");
}

}  // namespace

void WriteReport(const std::filesystem::path& path, int objects) { Generator(path, objects).Run(); }

}  // namespace zebbench
