#pragma once

#include "fonts/FontMetrics.h"
#include "platform/Export.h"

#include <string>

class CEncodings;
class CIDManager;

namespace zebxmln {
class CXMLNode;
}

/// One encoding: a single-byte encoding with a Unicode value and an Adobe glyph name for each of 256 codes
/// or, for CID fonts, only the name of a predefined CMap with its character collection.
class ZEB_EXPORT CEncodingInformation {
 public:
  /// @param owner the list that the entry is meant for
  explicit CEncodingInformation(CEncodings* owner);
  /// Copies member by member: the copy shares the two arrays, so only one of the two may be destroyed.
  CEncodingInformation(const CEncodingInformation& other);
  virtual ~CEncodingInformation();
  /// As the copy constructor. The arrays that this object held are not freed.
  CEncodingInformation& operator=(const CEncodingInformation& other);

  /// Reads an `EncodingInformation` element. Of more than 256 codes the first 256 count.
  /// @return true
  virtual bool Load(zebxmln::CXMLNode* node, CIDManager& ids);
  /// Adds an `EncodingInformation` element to the node. A standard encoding writes nothing.
  /// @return true
  virtual bool Save(zebxmln::CXMLNode* node, CIDManager& ids);

  /// The key by which fonts refer to the encoding.
  const wchar_t* GetInternalName() const;
  void SetInternalName(const wchar_t* name);
  /// The name in a PDF /Encoding entry; empty if there is none.
  const wchar_t* GetPDFName() const;
  void SetPDFName(const wchar_t* name);
  /// Only of meaning for CMap entries; no valid collection until it is set. Not saved.
  CFontMetrics::CharColl GetCharColl() const;
  void SetCharColl(CFontMetrics::CharColl collection);
  /// Supplied by the system, never saved. Default false.
  bool GetStandardEncoding() const;
  void SetStandardEncoding(bool standardEncoding);

  /// The Unicode value and the glyph name of a code; 0 and empty until they are set.
  /// @param code 0 to 255, not checked
  unsigned short GetUnicodeAt(int code) const;
  void SetUnicodeAt(int code, unsigned short unicode);
  const wchar_t* GetCharNameAt(int code) const;
  void SetCharNameAt(int code, const wchar_t* name);

 private:
  std::wstring m_strInternalName;
  std::wstring m_strPDFName;
  unsigned short* m_pUnicodes;  // owned array of 256, shared by copies
  std::wstring* m_pCharNames;   // owned array of 256, shared by copies
  CFontMetrics::CharColl m_CharColl;
  CEncodings* m_pOwner;  // observer
  bool m_bStandardEncoding;
};
