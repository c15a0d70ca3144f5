#pragma once

#include "fonts/ByteReader.h"

#include <cstdint>
#include <memory>

class CTrueTypeFile;

namespace zeb {

/// Reads the table directory of the font that begins at an offset of the file.
/// @return the file with its entries and no tables; null if the directory does not lie within the file
std::unique_ptr<CTrueTypeFile> ReadDirectory(const ByteReader& file, std::uint32_t offset);

/// Finds a font of a collection by its full name, in US English or in the system's language, case ignored. One leading
/// `@` is dropped. A font whose directory or names cannot be read is passed over.
/// @return where the font begins, 0 if the collection has no such font, -1 if the file is no collection
std::int64_t FindCollectionFont(const wchar_t* faceName, const ByteReader& file,
                                std::uint16_t systemLanguage);

}  // namespace zeb
