#pragma once

#include "model/Placeable.h"

namespace zebxmln {
class CXMLBinNode;
}

/// A placed picture: the bytes of an image file as they are, whatever their format.
///
/// Owns the block of bytes. A copy shares it with its source, so that only one of the two may be destroyed.
class ZEB_EXPORT CPicture : public CPlaceable {
 public:
  CPicture();
  CPicture(const CPicture& other);
  ~CPicture() override;

  /// Reads the record from `node`, which is the `Picture` element. Always true.
  /// @throws "NoMoreMemoryLeft"
  bool Load(zebxmln::CXMLNode* node, CIDManager& idManager) override;
  /// Adds a `Picture` element to `node`. Always true.
  bool Save(zebxmln::CXMLNode* node, CIDManager& idManager) override;

  CPicture& operator=(const CPicture& other);

  /// The block, which the object keeps; null if there is none.
  unsigned char* GetPictureData() const { return m_pPictureData; }
  /// Length of the block in bytes.
  int GetPictureLength() const { return m_iPictureLength; }

  /// Reads a whole file, in place of the present block.
  /// @throws "WrongParameter" if the path is null or empty, "ReadFileFailure" if the file cannot be read,
  ///   "NoMoreMemoryLeft"
  void LoadPicture(const wchar_t* path);
  /// Takes a copy of `length` bytes, in place of the present block.
  /// @throws "WrongParameter" if the block is null or the length below 1, "NoMoreMemoryLeft"
  void LoadPictureFromMem(unsigned char* data, int length);

 private:
  void ReadContent(zebxmln::CXMLBinNode& content, CIDManager& ids);
  /// Frees the present block and puts another in its place.
  void TakeBlock(unsigned char* block, int length);

  unsigned char* m_pPictureData = nullptr;  // owned (malloc, free), shared by copies
  int m_iPictureLength = 0;
};
