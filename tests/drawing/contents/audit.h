// What another program finds wrong with drawings that we write.
#pragma once

#include "drawing/database.h"
#include "drawing/entities/python_script.h"

#include <QTemporaryDir>

namespace oddbtest {

/// Empty if nothing is wrong.
inline std::string auditOf(OdDbDatabase& db) {
  QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("written.dxf"));
  db.writeFile(path);
  return runScript("contents.py", {QStringLiteral("audit"), path}).toStdString();
}

} // namespace oddbtest
