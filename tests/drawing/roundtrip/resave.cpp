// Reads a drawing and writes it again: resave IN OUT [AC1015 | ... | AC1032]. Prints what could not
// be taken over, line by line.
#include "drawing/database.h"

#include <cstdio>
#include <cstring>

int main(int argc, char** argv) {
  if (argc < 3) return 2;
  OdDb::DwgVersion version = OdDb::kVersionUnknown;
  for (int v = OdDb::kR2000; argc > 3 && v <= OdDb::kR2018; ++v)
    if (const auto one = static_cast<OdDb::DwgVersion>(v);
        std::strcmp(argv[3], OdDb::versionText(one)) == 0)
      version = one;
  try {
    const OdDbDatabasePtr db = OdDbDatabase::readFile(OdString::fromLocal8Bit(argv[1]));
    for (const OdString& line : db->unknownContent()) std::puts(qPrintable(line));
    db->writeFile(OdString::fromLocal8Bit(argv[2]), version);
  } catch (const OdError& e) {
    std::puts(qPrintable(e.description()));
    return 1;
  }
  return 0;
}
