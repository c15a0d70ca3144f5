#pragma once

#include "foundation/ErrorKeys.h"
#include "foundation/KXException.h"
#include "foundation/KXExceptionHandler.h"
#include "support/WidePath.h"

#include <map>
#include <string>

namespace zebtest {

/// The key of a failure, from the number that the shipped catalogue gives it.
inline std::wstring KeyOfNumber(int number) {
  static const auto keys = [] {
    CKXExceptionHandler& handler = CKXExceptionHandler::GetInstance();
    handler.SetExceptionPathName(Widen(ZEB_SHARE).c_str());
    std::map<int, std::wstring> all;
    for (const wchar_t* const key : zeb::ErrorKeys::All) {
      try {
        handler.ThrowException(key);
      } catch (const CKXException& exception) {
        all[exception.GetErrorNr()] = key;
      }
    }
    return all;
  }();
  const auto found = keys.find(number);
  return found == keys.end() ? L"no key of number " + std::to_wstring(number) : found->second;
}

/// What an action raises: its key and message, both empty if it raises nothing.
struct Raised {
  std::wstring Key;
  std::wstring Message;
};

template <class Action>
Raised RaisedBy(Action act) {
  KeyOfNumber(0);  // the catalogue is read before anything is raised
  try {
    act();
  } catch (const CKXException& exception) {
    return {KeyOfNumber(exception.GetErrorNr()), exception.GetErrorMessage()};
  }
  return {};
}

/// The key that an action raises, empty if it raises nothing.
template <class Action>
std::wstring RaisedKey(Action act) {
  return RaisedBy(act).Key;
}

}  // namespace zebtest
