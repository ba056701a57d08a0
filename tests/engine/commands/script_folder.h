// Files for scripts.
#pragma once

#include "drawing/database.h"
#include "drawing/entities/circle.h"
#include "frame/file_path.h"

#include <QImage>
#include <QTemporaryDir>

/// A folder that goes with its object, with two drawings (wheel.dxf, a circle; ring.dxf, a larger
/// one) and a picture (photo.png, twice as wide as it is high).
class ScriptFolder {
 public:
  ScriptFolder() {
    writeCircle("wheel.dxf", 4);
    writeCircle("ring.dxf", 9);
    QImage photo(8, 4, QImage::Format_RGB32);
    photo.fill(Qt::red);
    photo.save(m_folder.filePath(QStringLiteral("photo.png")));
    // What commands leave among the temporary files goes with the others.
    qputenv("TMPDIR", m_folder.path().toLocal8Bit());
  }
  ScriptFolder(const ScriptFolder&) = delete;
  ScriptFolder& operator=(const ScriptFolder&) = delete;
  ~ScriptFolder() { m_tmp.isEmpty() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", m_tmp); }

  /// The words with the folder's path in place of %FOLDER%.
  OdString expanded(OdString words) const {
    return words.replace(QLatin1String("%FOLDER%"), m_folder.path());
  }

 private:
  void writeCircle(const char* name, double radius) const {
    const OdDbDatabasePtr drawing = OdDbDatabase::createDatabase();
    drawing->getModelSpaceId()
        .openAs<OdDbBlockTableRecord>(OdDb::kForWrite)
        ->appendOdDbEntity(odrxMake<OdDbCircle>(OdGePoint3d{}, OdGeVector3d::zAxis(), radius));
    drawing->writeFile(odpath::fromPlatform(m_folder.filePath(QLatin1String(name))));
  }

  QTemporaryDir m_folder;
  const QByteArray m_tmp = qgetenv("TMPDIR");
};
