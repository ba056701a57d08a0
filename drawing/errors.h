// Failures of the drawing database.
#pragma once

#include "frame/error.h"

/// Codes of the drawing database, behind those of the frame.
enum OdDbResult : int {
  eNullObjectId = 400,
  eWasErased = 401,
  eNotOpenForWrite = 402,
  eDuplicateRecordName = 403,
  eInvalidName = 404,
  eAlreadyInDatabase = 405,
  eCannotScaleNonUniformly = 406,
  eDwgFileDamaged = 407, ///< a drawing file cannot be read
};

/// An error of the database.
class OdDbError : public OdError {
 public:
  OdDbError(OdDbResult code, const OdString& context)
    : OdError(static_cast<OdResult>(static_cast<int>(code)), context) {}
};

/// A drawing file cannot be read. The text is "path:line: reason".
class OdDbFileError : public OdFileError {
 public:
  OdDbFileError(const OdString& path, qint64 line, const OdString& reason)
    : OdFileError(static_cast<OdResult>(static_cast<int>(eDwgFileDamaged)),
                  QStringLiteral("%1:%2").arg(path).arg(line), reason)
    , m_line(line) {}

  /// The line of the file, from 1.
  qint64 line() const { return m_line; }

 private:
  qint64 m_line;
};
