#pragma once

#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"
#include "model/ElementNames.h"

#include <map>
#include <string>
#include <utility>

// The table of keys and value types that formula fields and conditions keep: one `KeyToType` element per key.
namespace zeb {

inline constexpr ElementName kKeyToType = L"KeyToType";

/// Reads the elements that stand at the cursor. An element without a key is dropped, one without a type has type 1;
/// a key that is in the table keeps its first type.
template <class Type>
void ReadKeyToType(RecordReader& reader, std::map<std::wstring, Type>& keyToType) {
  while (auto* const element = reader.Take(kKeyToType)) {
    RecordReader fields(element);
    std::wstring key;
    int type = 1;
    const bool hasKey = fields.Read(Elements::InternalKey, key);
    fields.Read(Elements::VHType, type);
    if (hasKey) keyToType.emplace(std::move(key), static_cast<Type>(type));
  }
}

/// Adds one element per key, in key order.
template <class Type>
void WriteKeyToType(RecordWriter& writer, const std::map<std::wstring, Type>& keyToType) {
  for (const auto& [key, type] : keyToType) {
    RecordWriter element(writer.Node(), kKeyToType);
    element.Write(Elements::InternalKey, key);
    element.Write(Elements::VHType, static_cast<int>(type));
  }
}

}  // namespace zeb
