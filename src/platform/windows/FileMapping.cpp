#include "platform/FileMapping.h"

namespace zeb {

std::shared_ptr<FileMapping> FileMapping::Open(const std::wstring& /*path*/, std::size_t /*zeros*/) {
  return nullptr;
}

FileMapping::~FileMapping() = default;

}  // namespace zeb
