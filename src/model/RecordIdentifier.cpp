#include "model/RecordIdentifier.h"

#include "foundation/XMLNode.h"

namespace zeb {

std::optional<int> ReadRecordIdentifier(zebxmln::CXMLNode* record, IdentifierPlace place, ElementName name) {
  if (place == IdentifierPlace::FirstChildOfFirstChild) record = record->GetFirstChildNode();
  if (record == nullptr) return std::nullopt;
  RecordReader reader(record);
  int id = 0;
  if (!reader.Read(name, id)) return std::nullopt;
  return id;
}

}  // namespace zeb
