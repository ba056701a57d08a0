// Failures of the object frame.
#pragma once

#include "frame/string.h"

#include <exception>

/// Codes that an OdError carries.
enum OdResult : int {
  eOk = 0,
  eNotApplicable = 3, ///< the operation is not offered by this object
  eInvalidInput = 5,
  eOutOfMemory = 9,
  eNotThatKindOfClass = 20,
  eInvalidIndex = 21,
  eFileNotFound = 110,
  eFileAccess = 111, ///< a file could not be opened, read or written
  eClassNotRegistered = 255,
  eClassAlreadyRegistered = 313,
};

/// A broken invariant or a failure that the caller cannot ignore. `what()` gives UTF-8 text.
class OdError : public std::exception {
 public:
  explicit OdError(OdResult code);
  /// `context` names the thing that failed; it becomes the whole message.
  OdError(OdResult code, const OdString& context);

  OdResult code() const { return m_code; }
  const OdString& description() const { return m_description; }
  const char* what() const noexcept override { return m_what.constData(); }

 private:
  OdResult m_code;
  OdString m_description;
  QByteArray m_what;
};

/// A checked conversion met an object of another class.
class OdError_NotThatKindOfClass : public OdError {
 public:
  OdError_NotThatKindOfClass(const OdString& found, const OdString& wanted);
};

/// An index outside an array.
class OdError_InvalidIndex : public OdError {
 public:
  OdError_InvalidIndex(qsizetype index, qsizetype size);
};

/// A file operation failed. The text names the path and the system's reason.
class OdFileError : public OdError {
 public:
  OdFileError(OdResult code, const OdString& path, const OdString& reason);

  const OdString& path() const { return m_path; }
  const OdString& reason() const { return m_reason; }

 private:
  OdString m_path;
  OdString m_reason;
};
