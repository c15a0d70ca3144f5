#include "TypeCheck.h"

#include "CatalogueFiles.h"
#include "FormulaText.h"
#include "JsonWriter.h"
#include "LoadedReport.h"
#include "Names.h"
#include "TextFormat.h"
#include "Utf8.h"

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <vector>

namespace zebreport {

namespace {

using Keys = std::set<std::wstring>;

constexpr int kSomethingNotOffered = 1;

std::wstring Shown(const std::wstring& name) { return QuotedIfNeeded(CutName(name)); }

/// One thing that the report type does not offer.
struct Finding {
  std::wstring zone;     ///< internal name, cut; empty if the whole report is meant
  std::wstring subject;  ///< the object, with its kind; empty if the zone or the whole report is meant
  std::wstring text;     ///< what is wrong, and what to do
};

/// Calls `visit` once for every object of a zone: those that it places, those in its cells and the formulas that it
/// defines.
void VisitObjects(CReportZone& zone, const std::function<void(const CPlaceable&)>& visit) {
  std::set<const CPlaceable*> visited;  // a formula may be placed and defined
  const auto visitOne = [&](const CPlaceable* object) {
    if (object != nullptr && visited.insert(object).second) visit(*object);
  };
  for (int i = 0; i < zone.GetTextElementCount(); ++i) visitOne(zone.GetTextElementAt(i));
  for (int i = 0; i < zone.GetValueHolderCount(); ++i) visitOne(zone.GetValueHolderAt(i));
  for (int i = 0; i < zone.GetPictureElementCount(); ++i) visitOne(zone.GetPictureElementAt(i));
  for (int i = 0; i < zone.GetRectangleElementCount(); ++i) visitOne(zone.GetRectangleElementAt(i));
  for (int i = 0; i < zone.GetLineElementCount(); ++i) visitOne(zone.GetLineElementAt(i));
  for (int i = 0; i < zone.GetTableCellCount(); ++i) {
    const CTableCell* cell = zone.GetTableCellAt(i);
    visitOne(cell);
    for (int j = 0; cell != nullptr && j < cell->GetCellElementCount(); ++j)
      visitOne(cell->GetCellElementAt(j));
  }
  for (int i = 0; i < zone.GetDefinedFormulaValueHoldersCount(); ++i) {
    visitOne(zone.GetDefinedFormulaValueHolderAt(i));
  }
}

/// What a report type offers, by the internal names of its zones and their other names.
class Offer {
 public:
  explicit Offer(const CReportType& type) {
    for (int i = 0; i < type.GetReportTypeZonesCount(); ++i) AddZone(*type.GetReportTypeZoneAt(i));
  }

  bool HasZone(const std::wstring& zone) const { return m_zones.contains(zone); }
  bool Has(const std::wstring& zone, const std::wstring& key) const {
    const auto found = m_zones.find(zone);
    return found != m_zones.end() && found->second->contains(key);
  }
  bool HasAnywhere(const std::wstring& key) const { return m_anywhere.contains(key); }

 private:
  // The first zone of a name counts.
  void AddZone(const CReportTypeZone& zone) {
    auto keys = std::make_shared<Keys>();
    for (int i = 0; i < zone.GetAvailableValueHolderCount(); ++i) {
      keys->insert(zone.GetAvailableValueHolderAt(i)->GetInternalName());
    }
    m_anywhere.insert(keys->begin(), keys->end());
    m_zones.emplace(zone.GetInternalName(), keys);
    for (int i = 0; i < zone.GetEquivalentInternalNameCount(); ++i) {
      m_zones.emplace(zone.GetEquivalentInternalNameAt(i), keys);
    }
  }

  std::map<std::wstring, std::shared_ptr<const Keys>> m_zones;  // shared by the names of a zone
  Keys m_anywhere;
};

class TypeChecker {
 public:
  TypeChecker(const CReportRootElement& report, const CReportType& type)
      : m_report(report), m_type(type.GetReportType()), m_offer(type), m_names(report, CutName) {
    for (int i = 0; i < Document().GetReportZoneCount(); ++i) {
      if (CReportZone* zone = Document().GetReportZoneAt(i)) CollectOwnKeys(*zone);
    }
  }

  std::vector<Finding> Check() {
    const std::wstring type = m_report.GetReportType();
    if (type != m_type) {
      m_findings.push_back({L"", L"",
                            L"the report is of type " + Quoted(type) + L", the file tells of " +
                                Quoted(m_type) + L"; name the file of the report's type"});
    }
    for (int i = 0; i < Document().GetReportZoneCount(); ++i) {
      if (CReportZone* zone = Document().GetReportZoneAt(i)) CheckZone(*zone);
    }
    return std::move(m_findings);
  }

 private:
  CReportDocument& Document() const { return *m_report.GetReportDocument(); }

  /// Keys that the report has of itself: results of formulas and sums, and dynamic fields, which its users name.
  void CollectOwnKeys(CReportZone& zone) {
    VisitObjects(zone, [&](const CPlaceable& object) {
      const auto* field = dynamic_cast<const CValueHolder*>(&object);
      if (field != nullptr && IsOwn(*field)) m_ownKeys.insert(field->GetInternalKey());
    });
  }

  static bool IsOwn(const CValueHolder& field) {
    return field.IsFormulaValueHolder() || field.IsSumValueHolder() || field.IsDynamicValueHolder();
  }

  void CheckZone(CReportZone& zone) {
    m_zone = zone.GetInternalReportZoneName();
    m_place = Names::OfZone(zone);
    if (!m_offer.HasZone(m_zone)) {
      m_findings.push_back(
          {CutName(m_zone), L"", L"the zone is not offered; rename the zone or add it to the type"});
    }
    VisitObjects(zone, [&](const CPlaceable& object) { CheckObject(object); });
  }

  void CheckObject(const CPlaceable& object) {
    const auto* field = dynamic_cast<const CValueHolder*>(&object);
    if (field != nullptr) CheckField(*field);
    if (object.GetCondition() != nullptr) {
      CheckFormula(object, L"has a condition that reads ", object.GetCondition()->GetFormula());
    }
  }

  void CheckField(const CValueHolder& field) {
    if (const auto* formula = dynamic_cast<const CFormulaValueHolder*>(&field)) {
      CheckFormula(field, L"reads ", formula->GetFormula());
    } else if (const auto* sum = dynamic_cast<const CSumValueHolder*>(&field)) {
      const std::wstring key = sum->GetSumKey();
      // A sum adds up what other zones offer.
      if (!m_offer.HasAnywhere(key) && !m_ownKeys.contains(key))
        ComplainOf(field, L"adds up " + Shown(key) + L", which ");
    } else if (const auto* copy = dynamic_cast<const CCopyValueHolder*>(&field)) {
      const std::wstring zone = copy->GetRefZoneID();
      const std::wstring key = copy->GetRefVHID();
      if (!IsThere(zone, key))
        ComplainOf(field, L"copies " + Shown(key) + L" of zone " + Shown(zone) + L", which ");
    } else if (!IsOwn(field) && !IsThere(m_zone, field.GetInternalKey())) {
      ComplainOf(field, L"");
    }
  }

  // A formula that cannot be read reads nothing; that it is bad is not said here.
  void CheckFormula(const CPlaceable& object, const std::wstring& reads, const std::wstring& formula) {
    for (const std::wstring& key : FindVariables(formula).names) {
      if (!IsThere(m_zone, key)) ComplainOf(object, reads + Shown(key) + L", which ");
    }
  }

  bool IsThere(const std::wstring& zone, const std::wstring& key) const {
    return m_offer.Has(zone, key) || m_ownKeys.contains(key);
  }

  void ComplainOf(const CPlaceable& object, const std::wstring& does) {
    m_findings.push_back({CutName(m_zone), m_names.Of(&object, m_place),
                          does + L"is not offered; take another key or add it to the type"});
  }

  const CReportRootElement& m_report;
  std::wstring m_type;
  Offer m_offer;
  Names m_names;
  Keys m_ownKeys;
  std::wstring m_zone;   // internal name of the zone being checked
  std::wstring m_place;  // the same as Names knows it
  std::vector<Finding> m_findings;
};

void WriteText(const std::wstring& file, const std::vector<Finding>& findings, std::wstring& output) {
  for (const Finding& finding : findings) {
    output += file + L": ";
    if (!finding.zone.empty()) output += L"zone " + QuotedIfNeeded(finding.zone) + L": ";
    if (!finding.subject.empty()) output += finding.subject + L" ";
    output += finding.text + L".\n";
  }
}

void WriteJson(const std::wstring& file, const std::vector<Finding>& findings, std::wstring& output) {
  JsonWriter json(output);
  json.BeginObject();
  json.Key(L"file").String(file);
  json.Key(L"findings").BeginArray();
  for (const Finding& finding : findings) {
    json.BeginObject();
    json.Key(L"zone").String(finding.zone);
    json.Key(L"subject").String(finding.subject);
    json.Key(L"text").String(finding.text);
    json.End();
  }
  json.End();
  json.End();
}

}  // namespace

int RunTypeCheck(ArgumentReader& arguments, const std::wstring& typeFile, std::wstring& output) {
  const bool isJson = arguments.TakeOption(L"--json", 0).has_value();
  const std::wstring file = arguments.TakeRest({L"report file"}).front();
  LoadedReport report;
  report.LoadExactly(ToPath(file), {});
  CReportType type;
  LoadReportType(typeFile, type);
  const std::vector<Finding> findings = TypeChecker(report.Root(), type).Check();
  isJson ? WriteJson(file, findings, output) : WriteText(file, findings, output);
  return findings.empty() ? 0 : kSomethingNotOffered;
}

}  // namespace zebreport
