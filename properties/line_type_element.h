// The parts of a line type's snapshot.
#pragma once

#include "module/enum.h"
#include "module/persist.h"
#include "properties/property_reference.h"

#include <cstdint>

namespace tc {

class OdTcComplexLineTypeElement;

/// One dash, dot or gap of a line type; element `LinetypeElement`.
class OdTcLineTypeElement : public OdTcPersist {
  ODRX_DECLARE_MEMBERS(OdTcLineTypeElement);

 public:
  /// The length of an element that has none.
  static constexpr double kNoLength = -999.0;

  /// Above 0 a dash, 0 a dot, below 0 a gap.
  virtual double length() const = 0;
  virtual void setLength(double length) = 0;
  /// The shape or text on the element, or null. Borrowed.
  virtual OdTcComplexLineTypeElement* complexElement() const = 0;
  virtual void setComplexElement(OdTcComplexLineTypeElement* element) = 0;
};
using OdTcLineTypeElementPtr = OdSmartPtr<OdTcLineTypeElement>;

/// The shape or text on an element; angles in radians.
struct OdTcComplexElementValues {
  std::uint64_t styleHandle = 0;
  double scale = 1.0;
  double rotation = 0.0;
  double offsetX = 0.0;
  double offsetY = 0.0;
  OdString text;
  std::uint16_t shapeNumber = 0;
  bool isUcsOriented = false;
  bool operator==(const OdTcComplexElementValues&) const = default;
};

/// Element `ComplexLinetypeElement`.
class OdTcComplexLineTypeElement : public OdTcLineTypeElement {
  ODRX_DECLARE_MEMBERS(OdTcComplexLineTypeElement);

 public:
  virtual const OdTcComplexElementValues& values() const = 0;
  virtual void setValues(const OdTcComplexElementValues& values) = 0;
};
using OdTcComplexLineTypeElementPtr = OdSmartPtr<OdTcComplexLineTypeElement>;

/// The elements of a line type in order; element `LinetypeElements`.
class OdTcLineTypeElementsList : public OdTcPersist {
  ODRX_DECLARE_MEMBERS(OdTcLineTypeElementsList);

 public:
  virtual void add(OdTcLineTypeElement* element) = 0;
  virtual int count() const = 0;
  /// Borrowed; raises OdError_InvalidIndex outside of 0 to count() - 1.
  virtual OdTcLineTypeElement* at(int position) const = 0;
};
using OdTcLineTypeElementsListPtr = OdSmartPtr<OdTcLineTypeElementsList>;

/// The text styles that a line type uses; element `TextstyleTableRecordCollection`.
class OdTcTextStyleTableRecordCollection : public OdTcPersist {
  ODRX_DECLARE_MEMBERS(OdTcTextStyleTableRecordCollection);

 public:
  virtual void add(OdTcPropertyReference* reference) = 0;
  virtual int count() const = 0;
  virtual OdTcEnumPtr<OdTcPropertyReference> references() const = 0;
  /// The first reference of that handle, or null. Borrowed.
  virtual OdTcPropertyReference* find(std::uint64_t handle) const = 0;
};
using OdTcTextStyleTableRecordCollectionPtr = OdSmartPtr<OdTcTextStyleTableRecordCollection>;

} // namespace tc
