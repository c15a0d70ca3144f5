#pragma once

#include "platform/Export.h"

#include <vector>

class CTrueTypeTabCFF;
class CTrueTypeTabCMap;
class CTrueTypeTabGlyf;
class CTrueTypeTabHMtx;
class CTrueTypeTabHead;
class CTrueTypeTabHhea;
class CTrueTypeTabLoca;
class CTrueTypeTabMaxp;
class CTrueTypeTabName;
class CTrueTypeTabOS2;
class CTrueTypeTabPCLT;
class CTrueTypeTabPost;

/// One entry of the table directory of a font file.
class ZEB_EXPORT CTrueTypeDirEnt {
 public:
  /// @param tag four characters; shorter tags are filled up with zeros
  /// @param offset of the table in the file, in bytes
  /// @param length of the table in bytes, without padding
  CTrueTypeDirEnt(const char* tag, unsigned int checkSum, unsigned int offset, unsigned int length);

  /// Four characters and a terminator.
  const char* GetTag() const;
  unsigned int GetCheckSum() const;
  unsigned int GetOffset() const;
  unsigned int GetLength() const;

 private:
  char m_rgcTag[5];
  unsigned int m_uCheckSum;
  unsigned int m_uOffset;
  unsigned int m_uLength;
};

/// A TrueType font file as parsed: its table directory and the tables that are read, as records. The metrics of a font
/// own it for as long as they live; the subset is built with its help.
///
/// The object owns its entries and tables.
class ZEB_EXPORT CTrueTypeFile {
 public:
  CTrueTypeFile();
  /// Copies the pointers: the copy shares entries and tables, and only one of the two may be destroyed.
  CTrueTypeFile(const CTrueTypeFile& other);
  /// Frees the entries and the tables.
  virtual ~CTrueTypeFile();
  /// As the copy constructor. What this object held is not freed.
  CTrueTypeFile& operator=(const CTrueTypeFile& other);

  /// Appends an entry and takes ownership.
  void AddDirEnt(CTrueTypeDirEnt* entry);
  /// @param index 0 up to the count less one, not checked
  CTrueTypeDirEnt* GetDirEntAt(int index) const;
  int GetDirEntCount() const;
  /// The first entry of that tag in file order; null if there is none.
  CTrueTypeDirEnt* FindDirEnt(const char* tag) const;

  // One getter and one setter a table. The getter gives null for a table that is absent; the setter takes ownership
  // and frees what it replaces.
  CTrueTypeTabCMap* GetTabCMap() const;
  void SetTabCMap(CTrueTypeTabCMap* table);
  CTrueTypeTabHead* GetTabHead() const;
  void SetTabHead(CTrueTypeTabHead* table);
  CTrueTypeTabHhea* GetTabHhea() const;
  void SetTabHhea(CTrueTypeTabHhea* table);
  CTrueTypeTabHMtx* GetTabHMtx() const;
  void SetTabHMtx(CTrueTypeTabHMtx* table);
  CTrueTypeTabMaxp* GetTabMaxp() const;
  void SetTabMaxp(CTrueTypeTabMaxp* table);
  CTrueTypeTabName* GetTabName() const;
  void SetTabName(CTrueTypeTabName* table);
  CTrueTypeTabPost* GetTabPost() const;
  void SetTabPost(CTrueTypeTabPost* table);
  CTrueTypeTabOS2* GetTabOS2() const;
  void SetTabOS2(CTrueTypeTabOS2* table);
  CTrueTypeTabCFF* GetTabCFF() const;
  void SetTabCFF(CTrueTypeTabCFF* table);
  CTrueTypeTabLoca* GetTabLoca() const;
  void SetTabLoca(CTrueTypeTabLoca* table);
  CTrueTypeTabGlyf* GetTabGlyf() const;
  void SetTabGlyf(CTrueTypeTabGlyf* table);
  CTrueTypeTabPCLT* GetTabPCLT() const;
  void SetTabPCLT(CTrueTypeTabPCLT* table);

 private:
  std::vector<CTrueTypeDirEnt*> m_rgpDirEnts;  // owned, shared by copies
  CTrueTypeTabCMap* m_pTabCMap = nullptr;      // owned, shared by copies; so are all tables
  CTrueTypeTabHead* m_pTabHead = nullptr;
  CTrueTypeTabHhea* m_pTabHhea = nullptr;
  CTrueTypeTabHMtx* m_pTabHMtx = nullptr;
  CTrueTypeTabMaxp* m_pTabMaxp = nullptr;
  CTrueTypeTabName* m_pTabName = nullptr;
  CTrueTypeTabPost* m_pTabPost = nullptr;
  CTrueTypeTabOS2* m_pTabOS2 = nullptr;
  CTrueTypeTabCFF* m_pTabCFF = nullptr;
  CTrueTypeTabLoca* m_pTabLoca = nullptr;
  CTrueTypeTabGlyf* m_pTabGlyf = nullptr;
  CTrueTypeTabPCLT* m_pTabPCLT = nullptr;
};
