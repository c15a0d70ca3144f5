#include "ZEBReportDocument.h"

#include <cstdio>

// A stranger's program: works with nothing but the install tree.
int main() {
  try {
    throw CKXFileException(12, L"message");
  } catch (const CKXException& exception) {
    if (exception.GetErrorNr() == 12) {
      std::puts("consumer: the library answers.");
      return 0;
    }
  }
  std::puts("consumer: the library does not answer as it should.");
  return 1;
}
