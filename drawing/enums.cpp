#include "drawing/enums.h"

#include <algorithm>
#include <iterator>

bool OdDb::isValidLineWeight(int value) {
  static constexpr std::int16_t kAll[] = {-3, -2, -1,  0,   5,   9,   13,  15,  18,
                                          20, 25, 30,  35,  40,  50,  53,  60,  70,
                                          80, 90, 100, 106, 120, 140, 158, 200, 211};
  return std::binary_search(std::begin(kAll), std::end(kAll), value);
}

const char* OdDb::versionText(DwgVersion version) {
  static constexpr const char* kTexts[] = {nullptr,  "AC1009", "AC1015", "AC1018",
                                           "AC1021", "AC1024", "AC1027", "AC1032"};
  return kTexts[version];
}
