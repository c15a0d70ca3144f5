#pragma once

#include "fonts/FontMetrics.h"
#include "platform/Export.h"

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class CEncodingInformation;
class CEncodings;
class CFontInformation;
class CGlobalFontHandler;
class CIDManager;
class CPDFCharCollName;

namespace zebxmln {
class CXMLNode;
}

namespace zeb {
class BuiltInFonts;
void WriteFontRecords(zebxmln::CXMLNode* node, CGlobalFontHandler& handler, CIDManager& ids);
}  // namespace zeb

/// The list of fonts known to one handler: the 14 standard fonts of PDF, then 11 predefined fonts for Chinese,
/// Japanese and Korean, then the fonts of the report. It owns them.
///
/// A face has two names. Its unique name, BaseFont of its metrics, is the one that files store; a localized name is the
/// one that users know. A leading `@` marks a vertical font and does not count in any comparison.
class ZEB_EXPORT CFonts {
 public:
  /// Adds the standard and the CJK fonts.
  /// @param owner the handler that owns the list
  explicit CFonts(CGlobalFontHandler* owner);
  /// Copies member by member: the copy shares the fonts, so only one of the two may be destroyed.
  CFonts(const CFonts& other);
  virtual ~CFonts();
  /// As the copy constructor. The fonts that this list held are not freed.
  CFonts& operator=(const CFonts& other);

  /// The built-in fonts. Each adds once; a second call does nothing.
  void AddBase14FontInformations();
  void AddCJKFontInformations();

  /// Appends the font and takes ownership.
  void AddFont(CFontInformation* font);
  /// Takes the font out of the list; it is the caller's from then on. What was answered of its names stays.
  /// @param index 0 up to GetFontCount() - 1, not checked
  void RemoveFontAt(int index);
  /// @param index 0 up to GetFontCount() - 1, not checked
  CFontInformation* GetFontAt(int index) const;
  int GetFontCount() const;

  /// The first font whose unique name this is and whose family name it is not, in any style, or whose family name this
  /// is in exactly this style; failing that, the first that has this localized name; null if there is none. Case counts
  /// in localized names only.
  /// @param bold the weight, 400 normal
  CFontInformation* FindFont(const wchar_t* name, int bold, bool italic) const;
  /// The name by which files store a font: from the list, the font pool or the operating system. Points into the list.
  /// An answer is kept under the name: the style of a later question does not count.
  /// @return null if the font is not known, and at the first question for a name that is only a part of a localized
  /// one
  const wchar_t* GetUniqueFontName(const wchar_t* name, int bold, bool italic);
  /// The name by which users know a font: from the list or the font pool. Points into the list. An answer is kept under
  /// the name: the style of a later question does not count.
  /// @return the name itself for a built-in font; the unique name for one that only the pool knows as a localized name;
  /// for another name that has no other, null at the first question and the name itself from the second one on
  const wchar_t* GetLocalizedFontName(const wchar_t* name, int bold, bool italic);

  /// The names of a character collection, from the encodings of the handler; null if there are none.
  CPDFCharCollName* GetCharCollNameAt(CFontMetrics::CharColl collection) const;
  /// The encoding of this internal name, from the encodings of the handler; null if there is none.
  CEncodingInformation* GetEncodingInformation(const wchar_t* internalName) const;

 private:
  friend class CGlobalFontHandler;
  friend void zeb::WriteFontRecords(zebxmln::CXMLNode* node, CGlobalFontHandler& handler, CIDManager& ids);

  using NameCache = std::map<std::wstring, std::wstring>;
  /// A font that was added, or the number of a built-in one, which is made when it is first asked for.
  struct Entry {
    CFontInformation* m_pFont;  // owned, shared by copies; null for a built-in font
    std::size_t m_uBuiltIn;     // the number of built-in fonts for a font that was added
  };

  void AddBuiltIn(std::size_t first, std::size_t count);
  static bool IsBuiltIn(const Entry& entry);
  CFontInformation* FontOf(const Entry& entry) const;
  /// Null if the font is a built-in one that was not made yet.
  CFontInformation* MadeFontOf(const Entry& entry) const;
  /// Null if the font is a built-in one that was not made yet.
  const CFontMetrics* MetricsOf(const Entry& entry) const;
  bool IsNeverEmbedded(const Entry& entry) const;
  bool IsNamed(const Entry& entry, std::wstring_view name, int bold, bool italic) const;
  const Entry* Find(const wchar_t* name, int bold, bool italic) const;
  bool AnswerFromNames(const CFontMetrics& metrics, const wchar_t* name, const wchar_t*& uniqueName);
  /// Asks the operating system for the font, only to learn its name.
  /// @return null if the system does not give the font
  const wchar_t* LearnUniqueName(const wchar_t* name, int bold, bool italic);
  CEncodings* HandlersEncodings() const;
  /// Moves over the fonts of another list that are not built in and that this list cannot find, see
  /// CGlobalFontHandler::AddAnotherFontHandler.
  void TakeMissingFonts(CFonts& other);

  std::vector<Entry> m_Fonts;
  std::shared_ptr<zeb::BuiltInFonts> m_pBuiltInFonts;
  CGlobalFontHandler* m_pOwner;  // observer
  bool m_bBase14Added = false;
  bool m_bCJKAdded = false;
  NameCache m_LocalizedNames;  // by the name as it was asked for; both are never cleared
  NameCache m_UniqueNames;
};
