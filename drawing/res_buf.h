// Chains of typed values, as applications keep them with objects.
#pragma once

#include "drawing/geometry/geometry.h"
#include "drawing/object.h"

#include <variant>

class OdResBuf;
using OdResBufPtr = OdSmartPtr<OdResBuf>;

/// A value with the code that tells its kind, and the one behind it. In extended data: 1000 text,
/// 1001 the name of an application, 1002 a brace, 1003 the name of a layer, 1004 bytes, 1005 a
/// handle, 1010 to 1013 points, 1040 to 1042 numbers, 1070 and 1071 whole numbers.
class OdResBuf : public OdRxObject {
  ODRX_DECLARE_MEMBERS(OdResBuf);

 public:
  using Value =
      std::variant<std::monostate, std::int64_t, double, OdString, OdGePoint3d, QByteArray>;

  explicit OdResBuf(int resType = 0, Value value = {})
    : m_type(resType)
    , m_value(std::move(value)) {}
  /// The same, ready to be put into a chain.
  static OdResBufPtr newRb(int resType = 0, Value value = {});

  int restype() const { return m_type; }
  void setRestype(int type) { m_type = type; }

  // Getters raise OdError(eInvalidInput) for a value of another kind.
  std::int64_t getInt() const { return as<std::int64_t>(); }
  void setInt(std::int64_t value) { m_value = value; }
  double getDouble() const { return as<double>(); }
  void setDouble(double value) { m_value = value; }
  /// Texts, names and handles.
  const OdString& getString() const { return as<OdString>(); }
  void setString(const OdString& value) { m_value = value; }
  const OdGePoint3d& getPoint3d() const { return as<OdGePoint3d>(); }
  void setPoint3d(const OdGePoint3d& value) { m_value = value; }
  const QByteArray& getBinaryChunk() const { return as<QByteArray>(); }
  void setBinaryChunk(const QByteArray& value) { m_value = value; }
  const Value& value() const { return m_value; }

  /// Null behind the last one.
  const OdResBufPtr& next() const { return m_next; }
  /// Puts a chain behind this value in place of what is there; gives the chain. Raises
  /// OdError(eInvalidInput) for a chain that leads back to this value.
  OdResBufPtr setNext(const OdResBufPtr& next);
  /// The last value of the chain that begins here.
  OdResBufPtr last();

  /// A copy of the whole chain.
  OdRxObjectPtr clone() const override;

 protected:
  ~OdResBuf() override;

 private:
  template <class T>
  const T& as() const {
    if (const T* value = std::get_if<T>(&m_value)) return *value;
    throw OdError(eInvalidInput,
                  QStringLiteral("The value of code %1 is of another kind").arg(m_type));
  }

  int m_type;
  Value m_value;
  OdResBufPtr m_next;
};

/// The extended data of an object, application by application: a value of code 1001 is the name,
/// behind it stands what the application keeps. An empty name gives those of all. Null for none;
/// what the object's class understands itself (the font of a text style) is not among them.
OdResBufPtr oddbXData(const OdDbObject& object, const OdString& application = OdString());
/// Replaces that of each application whose name stands in the chain; one with nothing behind its
/// name is taken away. As a setter of the object: undoable, OdDbError(eNotOpenForWrite). Raises
/// OdError(eInvalidInput), and changes nothing, for a chain that does not begin with a name, or
/// with a code or a value that extended data cannot have.
void oddbSetXData(OdDbObject& object, const OdResBuf* chain);
