#pragma once

#include "fonts/TextCursor.h"

#include <cstddef>
#include <string>

namespace zeb {

/// Cuts a CMap resource into tokens. It knows strings, hex strings, array brackets and words, and no more
/// PostScript than that.
///
/// Every call moves on by a byte at least or is at the end for good, so a loop over the tokens ends.
class CMapTokenizer {
 public:
  explicit CMapTokenizer(const TextCursor& text) : m_Text(text) {}

  /// The next token. At most its first 255 bytes are kept.
  /// @return false at the end of the data; the token is then empty
  bool NextToken(std::string& token);

 private:
  bool NextByte(unsigned char& byte);
  bool FirstByte(unsigned char& byte);
  void PassComment();
  void ReadString(std::string& token);
  void ReadHexString(std::string& token);
  void ReadWord(std::string& token);

  TextCursor m_Text;
};

}  // namespace zeb
