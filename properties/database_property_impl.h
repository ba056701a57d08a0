// A general property: it drives one of the drawing's current values while a tool runs.
#pragma once

#include "host/unknown.h"
#include "properties/general_property_kind.h"
#include "properties/property_basic_info.h"
#include "properties/property_impl_base.h"

#include <memory>

namespace tc {

/// The implementation of all kinds; a kind is a row of the table of general properties.
///
/// A catalog holds about ten of these for each tool, so everything that only a run or an editor
/// needs is made when it is needed.
class OdTcDatabasePropertyImpl : public OdTcPropertyImplBase<OdTcDatabaseProperty> {
 public:
  OdTcDatabasePropertyImpl();
  ~OdTcDatabasePropertyImpl() override;

  virtual const GeneralPropertyKind& kind() const = 0;

  OdString elementName() const override;
  /// The label in the user's language, with its group: "General.Layer".
  OdString getDisplayName() const override;

  void applyToDatabase(OdDbDatabase* database) override;
  void restoreToDatabase(OdDbDatabase* database) override;
  bool captureFromObject(const OdDbObject* object) override;

  OdTcPropertyBasicInfo* getBasicInfo() const override;
  OdTcPropertyCreateInfo* getCreateInfo() const override;
  /// For the editor: a colour, or a text in the user's language.
  OdVariant getValue() const override;
  /// Takes what an editor gives. The create info held so far is left as it was; the property goes
  /// on with one of its own.
  void setValue(const OdVariant& value) override;

  /// A kind without a label is kept for the files' sake and is not shown.
  bool isVisible() const override { return !kind().label.isEmpty(); }
  bool offersCurrent() const override { return m_offersCurrent; }
  void setOffersCurrent(bool offers) override { m_offersCurrent = offers; }
  bool isFrozen() const override { return m_frozen; }
  void setFrozen(bool frozen) override { m_frozen = frozen; }

  /// True if the drawing's value is kept, between a run's start and its end.
  bool hasSavedValue() const;
  /// The colour; by layer if none was set.
  OdCmColor color() const;
  /// True if a colour was set or read.
  bool hasColor() const;
  void setColor(const OdCmColor& color);
  /// The stored text of the basic info; empty if there is none.
  OdString text() const;
  void setText(const OdString& text);
  /// The snapshot of the named record, or null. Borrowed.
  OdTcSymbolTableRecord* record() const;
  /// Takes a snapshot of the drawing's record; its name becomes the text.
  void takeRecord(OdDbObjectId record);
  /// Names the record. If the current drawing has it, a snapshot is taken; otherwise one of that
  /// name is kept, and one of another name goes.
  void setRecordName(const OdString& name);
  /// The drawing's record of the snapshot's name, or of the text's; made from the snapshot if the
  /// drawing has none. Null if that cannot be done, of which the user is told unless there is just
  /// no such record.
  OdDbObjectId recordIn(OdDbDatabase* database) const;

  /// The property as a component of the host, for the inspector. The component shares the
  /// property's count of references and answers for IKVUnknown; it is borrowed.
  IKVUnknown* component();
  /// The property behind a component, or null if it is something else.
  static OdTcDatabasePropertyImpl* fromComponent(IKVUnknown* component);

  void writeFields(OdTcFiler* filer) override;
  bool readField(const OdString& name, const OdVariant& value) override;

 protected:
  /// Clones the basic info and the create info, not the value saved for a run.
  void copyTo(OdTcDatabasePropertyImpl& copy) const;

 private:
  class Component;
  struct Extras;
  /// Prints `text` with the property's name and the error's description.
  void tellFailure(const OdString& text, const OdError& error) const;
  Extras& extras();
  OdTcPersist* self() const { return const_cast<OdTcDatabasePropertyImpl*>(this); }
  OdTcPropertyCreateInfoBase* createInfo() const;
  OdTcRecordCreateInfo* recordInfo() const;
  void setCreateInfo(const OdTcPropertyCreateInfoPtr& info);

  mutable OdTcPropertyBasicInfoPtr m_basicInfo;
  mutable OdTcPropertyCreateInfoPtr m_createInfo;
  std::unique_ptr<Extras> m_extras;
  bool m_offersCurrent = false;
  bool m_frozen = false;
};

} // namespace tc
