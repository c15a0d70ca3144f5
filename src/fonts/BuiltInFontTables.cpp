// The measures of the standard fonts are those of the Adobe Core 14 AFM files of 1997; Symbol and ZapfDingbats, whose
// files have none but the box, have the usual ones.
// clang-format off

#include "fonts/BuiltInFontTables.h"

namespace zeb {

constexpr std::array<StandardFontRow, kStandardFontCount> kStandardFonts = {{
    {L"Courier",               {629, -157, 562, 426, {-23, -250, 715, 805}},    &kCourierWidths,         false},
    {L"Courier-Bold",          {629, -157, 562, 439, {-113, -250, 749, 801}},   &kCourierWidths,         false},
    {L"Courier-BoldOblique",   {629, -157, 562, 439, {-57, -250, 869, 801}},    &kCourierWidths,         false},
    {L"Courier-Oblique",       {629, -157, 562, 426, {-27, -250, 849, 805}},    &kCourierWidths,         false},
    {L"Helvetica",             {718, -207, 718, 523, {-166, -225, 1000, 931}},  &kHelveticaWidths,       false},
    {L"Helvetica-Bold",        {718, -207, 718, 532, {-170, -228, 1003, 962}},  &kHelveticaBoldWidths,   false},
    {L"Helvetica-BoldOblique", {718, -207, 718, 532, {-174, -228, 1114, 962}},  &kHelveticaBoldWidths,   false},
    {L"Helvetica-Oblique",     {718, -207, 718, 523, {-170, -225, 1116, 931}},  &kHelveticaWidths,       false},
    {L"Times-Roman",           {683, -217, 662, 450, {-168, -218, 1000, 898}},  &kTimesRomanWidths,      false},
    {L"Times-Bold",            {683, -217, 676, 461, {-168, -218, 1000, 935}},  &kTimesBoldWidths,       false},
    {L"Times-BoldItalic",      {683, -217, 669, 462, {-200, -218, 996, 921}},   &kTimesBoldItalicWidths, false},
    {L"Times-Italic",          {683, -217, 653, 441, {-169, -217, 1010, 883}},  &kTimesItalicWidths,     false},
    {L"Symbol",                {800, -200, 700, 0, {-180, -293, 1090, 1010}},   &kSymbolWidths,          true},
    {L"ZapfDingbats",          {800, -200, 700, 0, {-1, -143, 981, 820}},       &kZapfDingbatsWidths,    true},
}};

constexpr std::array<CJKFontRow, kCJKFontCount> kCJKFonts = {{
    // name, collection, ascender, descender, cap and x height, box, flags, vertical and horizontal stem, underline
    {L"HeiseiKakuGo-W5",            CFontMetrics::CharCollJapan1, {752, -221, 737, 553, {-92, -250, 1010, 922}},   4, 114, 0,  -100},
    {L"HeiseiMin-W3",               CFontMetrics::CharCollJapan1, {723, -241, 709, 450, {-123, -257, 1001, 910}},  6, 69,  0,  -100},
    {L"KozMinPro-Regular-Acro",     CFontMetrics::CharCollJapan1, {752, -221, 737, 553, {-195, -272, 1110, 1075}}, 6, 58,  0,  -100},
    {L"HYGoThic-Medium",            CFontMetrics::CharCollKorea1, {752, -271, 737, 553, {-6, -145, 1003, 880}},    6, 58,  0,  -100},
    {L"HYSMyeongJo-Medium",         CFontMetrics::CharCollKorea1, {752, -271, 737, 553, {0, -148, 1001, 880}},     6, 58,  0,  -100},
    {L"HYSMyeongJoStd-Medium-Acro", CFontMetrics::CharCollKorea1, {752, -271, 737, 553, {-28, -148, 1001, 880}},   6, 58,  0,  -100},
    {L"MHei-Medium",                CFontMetrics::CharCollCNS1,   {752, -271, 737, 553, {-45, -250, 1015, 887}},   6, 58,  0,  -100},
    {L"MSung-Light",                CFontMetrics::CharCollCNS1,   {752, -271, 737, 553, {-160, -259, 1015, 888}},  6, 58,  0,  -100},
    {L"MSungStd-Light-Acro",        CFontMetrics::CharCollCNS1,   {752, -271, 737, 553, {-160, -249, 1015, 1071}}, 6, 58,  0,  -100},
    {L"STSong-Light",               CFontMetrics::CharCollGB1,    {857, -143, 857, 599, {-250, -143, 600, 857}},   4, 91,  91, -100},
    {L"STSongStd-Light-Acro",       CFontMetrics::CharCollGB1,    {880, -120, 626, 416, {-134, -254, 1001, 905}},  4, 71,  0,  -75},
}};

}  // namespace zeb
