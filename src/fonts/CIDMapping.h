#pragma once

#include "platform/Export.h"

#include <map>
#include <string>

/// Answers in both directions between the character codes and the CIDs of an Adobe CMap resource.
///
/// It understands the parts of the CMap language that a PDF writer needs: names, code space, CID ranges, and
/// the bf sections, which count as CID ranges. It runs no PostScript and never fails: what is malformed is
/// passed over. Its memory grows with the number of ranges in the data, never with their width.
class ZEB_EXPORT CIDMapping {
 public:
  CIDMapping();
  CIDMapping(const CIDMapping& other);
  virtual ~CIDMapping();
  CIDMapping& operator=(const CIDMapping& other);

  /// Parses a CMap and adds to what was read before. A used CMap is not loaded: see GetUsedCMap.
  /// @param length of the data in bytes
  void LoadCMap(unsigned char* data, int length);
  /// Maps the codes from `low` to `high` to CIDs from `cid` upwards. In each direction by itself, the first
  /// mapping of a key stays. What would exceed the largest `int` is left out.
  void AddCIDs(int low, int high, int cid);
  /// The CID of a code, -1 if there is none.
  int GetCIDFromCode(int code) const;
  /// The code of a CID, -1 if there is none.
  int GetCodeFromCID(int cid) const;

  const char* GetCMapName() const;
  const char* GetRegistry() const;
  const char* GetOrdering() const;
  /// The name of the CMap that the data builds on; empty if there is none. The caller loads it with LoadCMap.
  const char* GetUsedCMap() const;
  /// 0 for horizontal writing, 1 for vertical.
  int GetWMode() const;
  /// The last code space range that was read.
  int GetCodeSpaceLow() const;
  int GetCodeSpaceHigh() const;

 private:
  class CMapLoader;

  /// One direction: an ordered map from int to int that keeps runs of successive keys and values together.
  class RunMap {
   public:
    /// Maps the keys from `first` to `last` to values from `value` upwards; keys that are there stay.
    void Add(int first, int last, int value);
    /// The value of a key, -1 if there is none.
    int Find(int key) const;

   private:
    struct Run {
      int last;
      int value;
    };

    std::map<int, Run> m_Runs;     // first key to last key and first value; runs do not overlap
    std::map<int, int> m_Covered;  // first key to last key of what is mapped, in as few pieces as needed
  };

  std::string m_strCMapName;
  std::string m_strRegistry;
  std::string m_strOrdering;
  std::string m_strUsedCMap;
  int m_iWMode;
  RunMap m_CodeToCID;
  RunMap m_CIDToCode;
  int m_iCodeSpaceLow;
  int m_iCodeSpaceHigh;
};
