// Properties of agents, for the inspector: what all families share.
#pragma once

#include "properties/property_impl_base.h"

#include <QStringList>
#include <QStringView>

#include <span>
#include <vector>

namespace tc {

/// How a property is shown and edited.
enum class ObjectPropertyFamily {
  kText,
  kDouble,
  kAngle, ///< radians
  kBool,
  kColor,
  kFileName,
  kMultiverse, ///< one of a list
  kCallback,   ///< a text that a dialog can give
};

/// One entry of a list: the value, and its text in the user's language.
struct OdTcChoice {
  OdVariant value;
  OdString text;
};
using OdTcChoices = std::vector<OdTcChoice>;

/// A property that has no value of its own: it reads and writes its agent, which is its owner.
class OdTcObjectProperty : public OdTcPropertyImplBase<OdTcProperty> {
 public:
  explicit OdTcObjectProperty(QStringView caption)
    : m_caption(caption) {}

  virtual ObjectPropertyFamily family() const = 0;
  /// The entries of a list; empty for other families.
  virtual OdTcChoices choices() const { return {}; }
  /// The filter of a file dialog, "Drawings (*.dwg *.dxf)"; empty for other families.
  virtual OdString fileFilter() const { return {}; }
  /// Lets the user choose in a dialog; false if there is none or it was cancelled.
  virtual bool runDialog() { return false; }

  /// The caption in the user's language, with its group: "Insert.Name".
  OdString getDisplayName() const override;
  QStringView caption() const { return m_caption; }

  /// An agent's property drives nothing of a drawing and has no records.
  void applyToDatabase(OdDbDatabase*) override {}
  void restoreToDatabase(OdDbDatabase*) override {}
  bool captureFromObject(const OdDbObject*) override { return false; }
  OdTcPropertyBasicInfo* getBasicInfo() const override { return nullptr; }
  OdTcPropertyCreateInfo* getCreateInfo() const override { return nullptr; }

 private:
  QStringView m_caption;
};

/// One row of an agent's table of properties.
struct ObjectPropertyRow {
  QStringView caption; ///< English
  OdTcPropertyPtr (*make)(QStringView caption);
};

/// Makes the property of the class P for a row.
template <class P>
OdTcPropertyPtr makeObjectProperty(QStringView caption) {
  return odrxMake<P>(caption);
}

/// The filter of a file dialog: a name in the user's language and extensions without their dots.
OdString fileDialogFilter(const OdString& name, std::span<const QStringView> extensions);

} // namespace tc
