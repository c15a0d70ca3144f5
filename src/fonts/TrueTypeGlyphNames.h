#pragma once

#include "fonts/ByteReader.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace zeb {

/// The names of the glyphs of a TrueType font, from the table `post` of the OpenType specification. The strings are checked
/// at once and made into text when the first of them is asked for.
class TrueTypeGlyphNames {
 public:
  /// The glyphs have the standard names in Macintosh order.
  void SetStandard() { m_bStandard = true; }
  /// The glyphs have standard names and names of their own, as their indexes say. Strings that are not there leave names
  /// empty.
  /// @param in the table of version 2 from the number of glyphs on; has to stay until MakeText
  /// @return whether it holds what it promises
  bool SetOwn(ByteReader in);

  /// Makes the text of all names.
  void MakeText();
  /// Lets the bytes of the table go. Glyphs have no names from then on.
  void ForgetBytes() { m_Indexes = m_Strings = ByteReader(); }
  /// Empty for a glyph without a name. Lives as long as this object.
  const wchar_t* NameOf(int glyph);
  /// The number of the name in version 2; 0 if there is none.
  std::uint16_t IndexOf(int glyph) const;

 private:
  bool m_bStandard = false;
  ByteReader m_Indexes;
  ByteReader m_Strings;                // as many as there are names that are no standard ones
  std::unique_ptr<wchar_t[]> m_pText;  // one name behind the other with terminators; null until they are made
  std::vector<const wchar_t*> m_rgpOwnNames;
};

}  // namespace zeb
