// A tagged value: nothing, text, a number or a reference to a frame object.
#pragma once

#include "frame/smart_ptr.h"

#include <cstdint>
#include <variant>

/// A value that travels between objects, filers, host variables and settings.
///
/// The conversions never fail: a text is parsed (decimal, 0 without digits), a number is formatted,
/// and a value that cannot be seen as the wanted kind gives that kind's zero.
class OdVariant {
 public:
  enum Type : std::uint8_t {
    kVoid = 0,
    kString = 1,
    kBool = 2,
    kUInt8 = 3,
    kInt16 = 4,
    kInt32 = 5,
    kInt64 = 6,
    kDouble = 7,
    kWString = 8,
    kRxObject = 9,
    kByRef = 0x40, ///< flag: the value stands elsewhere
    kArray = 0x80, ///< flag: an array of values
  };
  /// Takes the two flags off a type.
  static constexpr std::uint8_t kTypeMask = 0x3F;

  OdVariant() = default;
  OdVariant(const OdString& text)
    : m_type(kString)
    , m_value(text) {}
  OdVariant(OdString&& text)
    : m_type(kString)
    , m_value(std::move(text)) {}
  OdVariant(const char16_t* text)
    : OdVariant(OdString::fromUtf16(text)) {}
  OdVariant(bool value)
    : m_type(kBool)
    , m_value(std::int64_t{value}) {}
  OdVariant(std::uint8_t value)
    : m_type(kUInt8)
    , m_value(std::int64_t{value}) {}
  OdVariant(std::int16_t value)
    : m_type(kInt16)
    , m_value(std::int64_t{value}) {}
  OdVariant(std::int32_t value)
    : m_type(kInt32)
    , m_value(std::int64_t{value}) {}
  OdVariant(std::uint32_t value)
    : m_type(kInt32)
    , m_value(std::int64_t{static_cast<std::int32_t>(value)}) {}
  OdVariant(std::int64_t value)
    : m_type(kInt64)
    , m_value(value) {}
  OdVariant(double value)
    : m_type(kDouble)
    , m_value(value) {}
  OdVariant(const OdRxObjectPtr& object)
    : m_type(kRxObject)
    , m_value(object) {}
  template <class T>
  requires std::is_base_of_v<OdRxObject, T> OdVariant(const OdSmartPtr<T>& object)
    : OdVariant(OdRxObjectPtr(object.get())) {}
  template <class T>
  requires std::is_base_of_v<OdRxObject, T> OdVariant(T* object)
    : OdVariant(OdRxObjectPtr(object)) {}
  OdVariant(const char*) = delete;

  /// The kind without its flags.
  Type type() const { return static_cast<Type>(m_type & kTypeMask); }
  /// The kind with its flags.
  std::uint8_t rawType() const { return m_type; }
  bool isVoid() const { return type() == kVoid; }
  bool isText() const { return type() == kString || type() == kWString; }
  bool isObject() const { return type() == kRxObject; }
  bool isArray() const { return m_type & kArray; }
  bool isByRef() const { return m_type & kByRef; }
  /// Marks the value with kArray or kByRef.
  void setFlags(std::uint8_t flags) { m_type = static_cast<std::uint8_t>(type() | flags); }

  OdString toString() const;
  bool toBool() const { return toInt64() != 0; }
  std::int32_t toInt32() const { return static_cast<std::int32_t>(toInt64()); }
  std::uint32_t toUInt32() const { return static_cast<std::uint32_t>(toInt64()); }
  std::int64_t toInt64() const;
  double toDouble() const;
  /// The object, or null for any other kind.
  OdRxObject* object() const;
  /// The object as T; raises OdError_NotThatKindOfClass if it is of another class or the value is
  /// no object.
  template <class T>
  OdSmartPtr<T> objectAs() const {
    if (!object()) throw OdError_NotThatKindOfClass(QStringLiteral("(value)"), nameOf(T::desc()));
    return object();
  }

  bool operator==(const OdVariant& other) const = default;

 private:
  static OdString nameOf(const OdRxClass* c) { return c ? c->name() : OdString(); }

  std::uint8_t m_type = kVoid;
  std::variant<std::monostate, std::int64_t, double, OdString, OdRxObjectPtr> m_value;
};

/// Decimal digits at the start of `text`, after blanks and a sign, as the C library reads them; 0
/// without digits. A number outside the range is clamped to it.
std::int64_t odParseInt(QStringView text);
/// As odParseInt, for an unsigned 64-bit number; a minus sign wraps as strtoull does.
std::uint64_t odParseUInt(QStringView text);
/// A real number at the start of `text`, with a point whatever the locale; 0 without digits.
double odParseReal(QStringView text);
