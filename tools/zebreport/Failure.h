#pragma once

#include <stdexcept>
#include <string>

class CKXException;

namespace zebreport {

/// Ends a command with one sentence for the user (what, where, what to do) and exit code 1.
class Failure : public std::runtime_error {
 public:
  explicit Failure(const std::wstring& sentence);
};

/// Ends a command that was called in a way that it does not know; exit code 2.
class UsageFailure : public std::runtime_error {
 public:
  explicit UsageFailure(const std::wstring& sentence);
};

/// Tells the user, in one sentence on standard error, of something that may not be as wanted. The command goes on.
void Warn(const std::wstring& sentence);

/// The sentence for a failure of the library: its own message, the file that it happened to, and what to do.
Failure LibraryFailure(const std::wstring& file, const CKXException& exception);

}  // namespace zebreport
