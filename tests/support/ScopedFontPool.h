#pragma once

#include "fonts/FontPool.h"
#include "support/TempDir.h"

namespace zebtest {

/// Gives the font pool of the process an empty folder for a scope; the pool is empty and off again at its end.
class ScopedFontPool {
 public:
  ScopedFontPool() { CFontPool::GetInstance().SetFontPoolPath(m_folder.WidePath().c_str()); }
  ScopedFontPool(const ScopedFontPool&) = delete;
  ScopedFontPool& operator=(const ScopedFontPool&) = delete;
  ~ScopedFontPool() {
    CFontPool::GetInstance().SetFontPoolPath(L"");
    CFontPool::GetInstance().DeleteFontPool();
  }

  CFontPool* operator->() const { return &CFontPool::GetInstance(); }
  const TempDir& Folder() const { return m_folder; }

 private:
  TempDir m_folder;
};

}  // namespace zebtest
