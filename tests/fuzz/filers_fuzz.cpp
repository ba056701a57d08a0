// Feeds any bytes to the filers of catalogs and palettes. Beyond crashes it looks for three broken
// promises: a document that is neither read nor has a problem, nesting that the check did not see,
// and a text that changes between one save and the next.
#include "persistence/document_check.h"
#include "persistence/stored_record.h"

#include <cstdlib>

using namespace tc;
using namespace tc::test;

namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

int depthOf(const Record& record) {
  int deepest = 0;
  for (const auto& [name, value] : record.fields)
    if (const auto* inner = dynamic_cast<const Record*>(value.object()))
      deepest = std::max(deepest, depthOf(*inner));
  return deepest + 1;
}

void checkTexts(const Record& record) {
  for (const auto& [name, value] : record.fields) {
    if (!value.isText()) continue;
    const OdString text = value.toString();
    const auto save = [](const OdString& saved) {
      return writeCatalog(
          [&](OdTcFiler& filer) { filer.writeElement(QStringLiteral("T"), saved); });
    };
    const QByteArray first = save(text);
    const OdString read = readCatalog(first).root->text(QStringLiteral("T"));
    require(read == text);
    require(save(read) == first);
  }
}

void checkReading(const Reading& reading) {
  require(reading.isRead || !reading.problem.isEmpty());
  require(depthOf(*reading.root) <= kMaxElementDepth);
  if (reading.isRead) checkTexts(*reading.root);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  checkReading(readCatalog(bytes));
  checkReading(readPalette(bytes));
  return 0;
}
