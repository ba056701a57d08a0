// The parts of a line type's snapshot: the implementation.
#pragma once

#include "properties/line_type_element.h"
#include "properties/part_list.h"
#include "properties/stored_field.h"

#include <cstdint>

namespace tc {

/// The length of an element, under the name that tells its sign.
template <class T>
class OdTcLineTypeElementImplBase : public OdTcPersistImpl<T> {
 public:
  double length() const override { return m_length; }
  void setLength(double length) override { m_length = length; }

 protected:
  void writeLength(OdTcFiler* filer) const {
    if (m_length == OdTcLineTypeElement::kNoLength) return;
    filer->writeElement(m_length > 0   ? QStringLiteral("Dash")
                        : m_length < 0 ? QStringLiteral("Space")
                                       : QStringLiteral("Dot"),
                        m_length);
  }
  /// The name only tells the sign: the length is taken as it stands under any of the three.
  bool readLength(const OdString& name, const OdVariant& value) {
    if (name != QLatin1String("Dash") && name != QLatin1String("Dot") &&
        name != QLatin1String("Space"))
      return false;
    if (!field_detail::read(m_length, value, FieldForm::kPlain))
      tellFieldRefused(name, value.toString());
    return true;
  }

 private:
  double m_length = OdTcLineTypeElement::kNoLength;
};

class OdTcLineTypeElementImpl final : public OdTcLineTypeElementImplBase<OdTcLineTypeElement> {
 public:
  OdString elementName() const override { return QStringLiteral("LinetypeElement"); }
  OdTcComplexLineTypeElement* complexElement() const override { return m_complex; }
  void setComplexElement(OdTcComplexLineTypeElement* element) override;

  void writeFields(OdTcFiler* filer) override;
  bool readField(const OdString& name, const OdVariant& value) override;
  OdRxObjectPtr clone() const override;

 private:
  OdTcComplexLineTypeElementPtr m_complex;
};

class OdTcComplexLineTypeElementImpl final
  : public OdTcLineTypeElementImplBase<OdTcComplexLineTypeElement> {
 public:
  OdString elementName() const override { return QStringLiteral("ComplexLinetypeElement"); }
  /// A shape or text carries no further one.
  OdTcComplexLineTypeElement* complexElement() const override { return nullptr; }
  void setComplexElement(OdTcComplexLineTypeElement*) override {}
  const OdTcComplexElementValues& values() const override { return m_values; }
  void setValues(const OdTcComplexElementValues& values) override { m_values = values; }

  void writeFields(OdTcFiler* filer) override;
  bool readField(const OdString& name, const OdVariant& value) override;
  OdRxObjectPtr clone() const override;

 private:
  OdTcComplexElementValues m_values;
};

class OdTcLineTypeElementsListImpl final
  : public OdTcPartListImpl<OdTcLineTypeElementsList, OdTcLineTypeElement> {
 public:
  OdString elementName() const override { return QStringLiteral("LinetypeElements"); }
  OdTcLineTypeElement* at(int position) const override;
  OdRxObjectPtr clone() const override;

 protected:
  QStringView itemElement() const override { return u"LinetypeElement"; }
};

class OdTcTextStyleTableRecordCollectionImpl final
  : public OdTcPartListImpl<OdTcTextStyleTableRecordCollection, OdTcPropertyReference> {
 public:
  OdString elementName() const override { return QStringLiteral("TextstyleTableRecordCollection"); }
  OdTcEnumPtr<OdTcPropertyReference> references() const override;
  OdTcPropertyReference* find(std::uint64_t handle) const override;
  OdRxObjectPtr clone() const override;

 protected:
  QStringView itemElement() const override { return u"Reference"; }
};

} // namespace tc
