#include "frame/error.h"

#include "frame/file_path.h"

namespace {

OdString textOf(OdResult code) {
  switch (code) {
  case eOk:
    return QStringLiteral("No error");
  case eNotApplicable:
    return QStringLiteral("Operation is not applicable");
  case eInvalidInput:
    return QStringLiteral("Invalid input");
  case eOutOfMemory:
    return QStringLiteral("Out of memory");
  case eNotThatKindOfClass:
    return QStringLiteral("Object is of another class");
  case eInvalidIndex:
    return QStringLiteral("Index is out of range");
  case eFileNotFound:
    return QStringLiteral("File is not found");
  case eFileAccess:
    return QStringLiteral("File cannot be accessed");
  case eClassNotRegistered:
    return QStringLiteral("Class is not registered");
  case eClassAlreadyRegistered:
    return QStringLiteral("Class is already registered");
  }
  return QStringLiteral("Error %1").arg(static_cast<int>(code));
}

} // namespace

OdError::OdError(OdResult code)
  : OdError(code, textOf(code)) {}

OdError::OdError(OdResult code, const OdString& context)
  : m_code(code)
  , m_description(context)
  , m_what(context.toUtf8()) {}

OdError_NotThatKindOfClass::OdError_NotThatKindOfClass(const OdString& found,
                                                       const OdString& wanted)
  : OdError(eNotThatKindOfClass,
            QStringLiteral("An object of class %1 stands where %2 is expected")
                .arg(found.isEmpty() ? QStringLiteral("(unregistered)") : found, wanted)) {}

OdError_InvalidIndex::OdError_InvalidIndex(qsizetype index, qsizetype size)
  : OdError(eInvalidIndex,
            QStringLiteral("Index %1 is outside an array of %2").arg(index).arg(size)) {}

// People read the description: it has the path as they know it.
OdFileError::OdFileError(OdResult code, const OdString& path, const OdString& reason)
  : OdError(code, QStringLiteral("%1: %2").arg(odpath::toPlatform(path), reason))
  , m_path(path)
  , m_reason(reason) {}
