#include "model/Picture.h"

#include "foundation/ErrorKeys.h"
#include "foundation/KXExceptionHandler.h"
#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"
#include "foundation/XMLNode.h"
#include "model/ElementNames.h"
#include "model/ModelLimits.h"
#include "model/ObjectReference.h"
#include "platform/File.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <span>
#include <string>

namespace {

constexpr zeb::ElementName kPictureDataLength = L"PictureDataLength";
constexpr zeb::ElementName kPictureData = L"PictureData";
constexpr zeb::ElementName kPictureScaling = L"PictureScaling";

[[noreturn]] void Throw(const wchar_t* key) {
  CKXExceptionHandler::GetInstance().ThrowException(key);
  std::abort();
}

/// Zero bytes, to be freed with free; null if there is no memory.
unsigned char* AllocateBlock(int length) {
  return static_cast<unsigned char*>(std::calloc(static_cast<std::size_t>(length), 1));
}

/// Whether a picture may claim more bytes than the file holds of it.
bool IsClaimSane(int length, int available, CIDManager& ids) {
  if (length > zeb::kGreatestUnbackedPicture) return false;
  return zeb::IDBinding(ids).AddClaimedBytes(length - available) <= zeb::kGreatestUnbackedPicture;
}

}  // namespace

CPicture::CPicture() = default;
CPicture::CPicture(const CPicture& other) = default;
CPicture::~CPicture() { std::free(m_pPictureData); }
CPicture& CPicture::operator=(const CPicture& other) = default;

bool CPicture::Load(zebxmln::CXMLNode* node, CIDManager& idManager) {
  zeb::RecordReader reader(node);
  zeb::ReadOwnID(reader, zeb::Elements::PicID, idManager, this);
  if (auto* const placeable = reader.Take(zeb::Elements::Placeable)) CPlaceable::Load(placeable, idManager);
  if (int length = 0; reader.Read(kPictureDataLength, length)) {
    // A present block that is shorter would be read beyond its end.
    if (length > m_iPictureLength) TakeBlock(nullptr, length);
    m_iPictureLength = length;
  }
  if (auto* const data = reader.Take(kPictureData)) {
    if (auto* const content = dynamic_cast<zebxmln::CXMLBinNode*>(data->GetFirstChildNode()))
      ReadContent(*content, idManager);
  }
  // Fixed behaviour: an element of old files, accepted and not kept.
  reader.StepOver(kPictureScaling);
  return true;
}

void CPicture::ReadContent(zebxmln::CXMLBinNode& content, CIDManager& ids) {
  void* bytes = nullptr;
  int available = 0;
  content.GetBinaryData(&bytes, &available);
  if (bytes == nullptr) available = 0;
  const int length = m_iPictureLength;
  TakeBlock(nullptr, 0);
  if (length == 0) return;
  // Only bytes that exist justify any size; what the length claims beyond them has a limit.
  const bool isSane = length > 0 && (length <= available || IsClaimSane(length, available, ids));
  unsigned char* const block = isSane ? AllocateBlock(length) : nullptr;
  if (block == nullptr) Throw(zeb::ErrorKeys::NoMoreMemoryLeft);
  // Fixed behaviour: a length below that of the content cuts it. Behind the content stand zero bytes.
  const int count = std::min(length, available);
  if (count > 0) std::memcpy(block, bytes, static_cast<std::size_t>(count));
  TakeBlock(block, length);
}

bool CPicture::Save(zebxmln::CXMLNode* node, CIDManager& idManager) {
  zeb::RecordWriter writer(node, zeb::Elements::Picture);
  zeb::WriteID(writer, zeb::Elements::PicID, idManager, this);
  CPlaceable::Save(writer.Node(), idManager);
  writer.Write(kPictureDataLength, m_iPictureLength);
  // A reading may have left a length without a block.
  const int length = m_pPictureData == nullptr ? 0 : std::max(m_iPictureLength, 0);
  writer.Add(kPictureData)->CreateBinNode()->SetBinaryData(m_pPictureData, length);
  return true;
}

void CPicture::LoadPicture(const wchar_t* path) {
  if (path == nullptr || *path == L'\0') Throw(zeb::ErrorKeys::WrongParameter);
  zeb::InputFile file;
  if (file.Open(path) != zeb::FileStatus::Ok) Throw(zeb::ErrorKeys::ReadFileFailure);
  if (file.Size() > std::numeric_limits<int>::max()) Throw(zeb::ErrorKeys::ReadFileFailure);
  TakeBlock(nullptr, 0);
  const int length = static_cast<int>(file.Size());
  if (length == 0) return;
  unsigned char* const block = AllocateBlock(length);
  if (block == nullptr) Throw(zeb::ErrorKeys::NoMoreMemoryLeft);
  TakeBlock(block, length);
  std::size_t count = 0;
  const std::span<unsigned char> bytes(block, static_cast<std::size_t>(length));
  const zeb::FileStatus status = file.Read(std::as_writable_bytes(bytes), count);
  // Fixed behaviour: after a short reading block and length stay.
  if (status != zeb::FileStatus::Ok || count != bytes.size()) Throw(zeb::ErrorKeys::ReadFileFailure);
}

void CPicture::LoadPictureFromMem(unsigned char* data, int length) {
  if (data == nullptr || length < 1) Throw(zeb::ErrorKeys::WrongParameter);
  // The bytes may be part of the present block, which is therefore freed last.
  unsigned char* const block = AllocateBlock(length);
  if (block != nullptr) std::memcpy(block, data, static_cast<std::size_t>(length));
  TakeBlock(block, block == nullptr ? 0 : length);
  if (block == nullptr) Throw(zeb::ErrorKeys::NoMoreMemoryLeft);
}

void CPicture::TakeBlock(unsigned char* block, int length) {
  std::free(m_pPictureData);
  m_pPictureData = block;
  m_iPictureLength = length;
}
