#pragma once

#include "ArgumentReader.h"

#include <span>
#include <string>

namespace zebreport {

/// One subcommand of the program.
struct Command {
  const wchar_t* name;
  const wchar_t* usage;    ///< the arguments behind the name
  const wchar_t* summary;  ///< what it does, in one line
  /// Does it. What is written to standard output is collected in `output`.
  /// @return the exit code
  int (*run)(ArgumentReader& arguments, std::wstring& output);
};

/// All subcommands, in the order of the help text.
std::span<const Command> AllCommands();

/// The subcommand of that name, null if there is none.
const Command* FindCommand(const std::wstring& name);

int RunCheck(ArgumentReader& arguments, std::wstring& output);
int RunCopy(ArgumentReader& arguments, std::wstring& output);
int RunDescriptions(ArgumentReader& arguments, std::wstring& output);
int RunEval(ArgumentReader& arguments, std::wstring& output);
int RunFont(ArgumentReader& arguments, std::wstring& output);
int RunHelp(ArgumentReader& arguments, std::wstring& output);
int RunKeys(ArgumentReader& arguments, std::wstring& output);
int RunOrder(ArgumentReader& arguments, std::wstring& output);
int RunPool(ArgumentReader& arguments, std::wstring& output);
int RunRtf(ArgumentReader& arguments, std::wstring& output);
int RunShow(ArgumentReader& arguments, std::wstring& output);
int RunType(ArgumentReader& arguments, std::wstring& output);

}  // namespace zebreport
