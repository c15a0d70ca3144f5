#pragma once

#include "platform/Export.h"

class CDoubleElement;

/// Base of the objects through which a report gets its data: one object per value that a zone offers. A
/// supplier derives from it, sets the keys and registers the object with the zone
/// (CReportZone::AddAvailableValueHolder). The library itself never asks for a value.
///
/// The texts are to be set before they are read, and a longer one is cut to the room that is there.
class ZEB_EXPORT CAvailableValueHolderBase {
 public:
  CAvailableValueHolderBase();
  CAvailableValueHolderBase(const CAvailableValueHolderBase& other);
  virtual ~CAvailableValueHolderBase();

  /// The value as text; null here.
  virtual const wchar_t* GetValueAsText();
  /// The value as a number: a new object that the caller owns; 0 with two decimals here.
  virtual CDoubleElement* GetValueAsDouble();
  /// For the caller's own use; the library never calls it. Does nothing here.
  virtual void CallGetValue();

  CAvailableValueHolderBase& operator=(const CAvailableValueHolderBase& other);

  /// The key by which the zone finds this object; must not change while the zone holds it.
  const wchar_t* GetInternalKey() const;
  /// Keeps at most 254 characters.
  void SetInternalKey(const wchar_t* key);
  /// The key in the supplier's own system.
  const wchar_t* GetExternalKey() const;
  /// Keeps at most 254 characters.
  void SetExternalKey(const wchar_t* key);
  /// The description for users.
  const wchar_t* GetExternalDescription() const;
  /// Keeps at most 1023 characters.
  void SetExternalDescription(const wchar_t* description);

 protected:
  wchar_t m_szValueText[1024];  // room for a text of a derived class; not used here

 private:
  wchar_t m_szInternalKey[255];
  wchar_t m_szExternalKey[255];
  wchar_t m_szExternalDescription[1024];
};
