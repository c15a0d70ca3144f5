#include "model/FontRecords.h"

namespace zeb {

void ReadFontRecords(RecordReader& reader) {
  while (reader.Is(kFontInformation)) reader.Next();
  while (reader.Is(L"EncodingInformation")) reader.Next();
}

}  // namespace zeb
