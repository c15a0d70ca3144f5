#pragma once

#include "support/Files.h"
#include "support/ScopedEnvironment.h"
#include "support/TempDir.h"

#include <filesystem>
#include <string>
#include <vector>

namespace zebtest {

/// A machine on which only the fonts that a test puts there are installed, for a scope.
class FontMachine {
 public:
  FontMachine() : m_setting("FONTCONFIG_FILE", m_folder.File("fonts.conf").string()) {
    WriteFile(m_folder.File("fonts.conf"),
              "<?xml version=\"1.0\"?><!DOCTYPE fontconfig SYSTEM \"fonts.dtd\"><fontconfig><dir>" +
                  m_folder.File("fonts").string() + "</dir><cachedir>" + m_folder.File("cache").string() +
                  "</cachedir></fontconfig>");
    std::filesystem::create_directory(m_folder.File("fonts"));
  }

  void Install(const std::string& name, const std::vector<unsigned char>& bytes) const {
    WriteBytes(m_folder.File("fonts") / name, bytes);
  }

 private:
  TempDir m_folder;
  ScopedEnvironment m_setting;
};

}  // namespace zebtest
