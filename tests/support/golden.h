// Stored objects as files: written, read back, and compared with what stands in tests/data/golden.
#pragma once

#include "catalog/database.h"
#include "module/persist_impl.h"
#include "persistence/filer.h"
#include "support/data_file.h"

#include <gtest/gtest.h>

#include <vector>

namespace testhost {

/// The root of a palette document that holds nothing but the objects under test.
class PartsRoot : public tc::OdTcPersistImpl<tc::OdTcPersist> {
 public:
  std::vector<tc::OdTcPersistPtr> parts;

  // The filer asks for a palette's database.
  OdRxObject* queryX(const OdRxClass* wanted) const override {
    if (wanted && wanted == tc::OdTcDatabase::desc()) return const_cast<PartsRoot*>(this);
    return tc::OdTcPersistImpl<tc::OdTcPersist>::queryX(wanted);
  }
  OdString elementName() const override { return QStringLiteral("Palette"); }
  void writeFields(tc::OdTcFiler* filer) override {
    for (const tc::OdTcPersistPtr& part : parts) filer->writeObject(part);
  }
  bool readField(const OdString&, const OdVariant& value) override {
    if (value.isObject()) parts.push_back(value.objectAs<tc::OdTcPersist>());
    return value.isObject();
  }
};

using Parts = std::vector<tc::OdTcPersistPtr>;

/// The objects in a palette document.
inline QByteArray written(const Parts& parts) {
  auto root = odrxMake<PartsRoot>();
  root->parts = parts;
  auto stream = odrxMake<OdMemoryStream>();
  const tc::OdTcFilerPtr filer = tc::makePaletteFiler();
  filer->openPalette(stream, root, true);
  filer->flush();
  return stream->bytes();
}
inline QByteArray written(tc::OdTcPersist* part) {
  return written(Parts{tc::OdTcPersistPtr(part)});
}

/// What the document holds. The root keeps the objects' owner alive.
inline OdSmartPtr<PartsRoot> readParts(const QByteArray& document) {
  auto root = odrxMake<PartsRoot>();
  tc::makePaletteFiler()->openPalette(odrxMake<OdMemoryStream>(document), root, false);
  return root;
}

/// The first object in `inner`, an excerpt of a palette document, as the class T; null if it is
/// something else.
template <class T>
OdSmartPtr<T> readPart(const char* inner) {
  const auto root = readParts(QByteArray("<Palette>") + inner + "</Palette>");
  T* const part = root->parts.empty() ? nullptr : dynamic_cast<T*>(root->parts.front().get());
  if (part) part->setOwner(nullptr);
  return OdSmartPtr<T>(part);
}

/// Compares the written objects with golden/<name>.xml, byte for byte, and what comes of reading
/// and writing them once more. With the variable DRAFTON_WRITE_GOLDEN set the file is written
/// first.
inline void expectGolden(const char* name, const Parts& parts) {
  const QString path = QStringLiteral("golden/%1.xml").arg(QLatin1String(name));
  const QByteArray document = written(parts);
  if (qEnvironmentVariableIsSet("DRAFTON_WRITE_GOLDEN")) {
    QFile file(QStringLiteral(TEST_DATA_DIR "/") + path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << name;
    file.write(document);
  }
  EXPECT_EQ(document.toStdString(), dataFile(path).toStdString()) << name;
  EXPECT_EQ(written(readParts(document)->parts).toStdString(), document.toStdString())
      << name << " read and written again";
}
inline void expectGolden(const char* name, tc::OdTcPersist* part) {
  expectGolden(name, Parts{tc::OdTcPersistPtr(part)});
}

} // namespace testhost
