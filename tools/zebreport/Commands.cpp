#include "Commands.h"

namespace zebreport {

namespace {

constexpr Command kCommands[] = {
    {L"show", L"REPORT [--layout LAYOUT]", L"prints the report with all its zones, objects and pages",
     RunShow},
    {L"order", L"REPORT [--layout LAYOUT]", L"prints the order in which the objects must be placed",
     RunOrder},
    {L"copy", L"REPORT OUT [--layout LAYOUT LAYOUTOUT]", L"loads the report, saves it and checks the copy",
     RunCopy},
    {L"keys", L"REPORT [--json]", L"prints what each zone needs from a data supplier", RunKeys},
    {L"type", L"FILE [--json]", L"prints what a report type file offers", RunType},
    {L"descriptions", L"FILE [--json]", L"prints the reports and dynamic fields of a report description file",
     RunDescriptions},
    {L"check", L"FILE [--json]",
     L"lists the elements of any XML file of the library that loading leaves out, and why", RunCheck},
    {L"check", L"REPORT --type TYPEFILE [--json]",
     L"lists what a report needs that its report type does not offer", RunCheck},
    {L"pool", L"list FOLDER", L"prints the fonts of a font pool", RunPool},
    {L"pool", L"add FOLDER FONTFILE", L"puts a TrueType font into a font pool", RunPool},
    {L"pool", L"check FOLDER", L"lists what is wrong with the files of a font pool", RunPool},
    {L"eval", L"FORMULA [NAME=VALUE ...] [--string NAME=TEXT ...]",
     L"computes a formula with the given variables", RunEval},
    {L"eval", L"FORMULA --scan", L"lists the variables that a formula reads", RunEval},
    {L"eval", L"FORMULA --replace OLD=NEW ...", L"prints a formula with other names for its variables",
     RunEval},
    {L"rtf", L"dump FILE", L"prints what the reader says of a rich text file, one line per event", RunRtf},
    {L"rtf", L"text FILE", L"prints the text of a rich text file", RunRtf},
    {L"rtf", L"html FILE [-o OUT]", L"makes an HTML page that looks like a rich text file", RunRtf},
    {L"font", L"show FILE|NAME [--weight WEIGHT] [--italic]",
     L"prints what a font file or installed font says: names, metrics, embedding right, characters", RunFont},
    {L"font", L"glyph FILE|NAME TEXT [--weight WEIGHT] [--italic]",
     L"prints the glyph, width and number in a subset of each character of a text", RunFont},
    {L"font", L"subset FILE|NAME --text TEXT -o OUT",
     L"makes the TrueType font that a PDF file holds when only the characters of TEXT are used", RunFont},
    {L"help", L"", L"prints this text", RunHelp},
};

}  // namespace

std::span<const Command> AllCommands() { return kCommands; }

const Command* FindCommand(const std::wstring& name) {
  for (const Command& command : kCommands) {
    if (name == command.name) return &command;
  }
  return nullptr;
}

}  // namespace zebreport
