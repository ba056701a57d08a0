// What a tool of a foreign palette carries besides its data: the implementation.
#pragma once

#include "catalog/foreign_tool_records.h"
#include "module/persist_impl.h"

namespace tc {

class OdTcToolCustomDataImpl : public OdTcPersistImpl<OdTcToolCustomData> {
 public:
  OdString className() const override { return m_className; }
  OdString idButton() const override { return m_idButton; }

  OdString elementName() const override { return QStringLiteral("CustomData"); }
  bool readField(const OdString& name, const OdVariant& value) override;
  OdRxObjectPtr clone() const override;

 private:
  OdString m_className;
  OdString m_idButton;
};

class OdTcToolFlyoutImpl : public OdTcPersistImpl<OdTcToolFlyout> {
 public:
  bool isFlyoutEnabled() const override { return m_enable; }
  OdString shapePackage() const override { return m_shapePackage; }
  OdString currentShape() const override { return m_currentShape; }

  OdString elementName() const override { return QStringLiteral("Flyout"); }
  void writeFields(OdTcFiler* filer) override;
  /// Both texts arrive under the name `idValue`. Which of the two one is, a count shared by all
  /// flyouts of the process tells: a flyout that holds only one leaves the next one shifted.
  bool readField(const OdString& name, const OdVariant& value) override;
  OdRxObjectPtr clone() const override;

 private:
  bool m_enable = false;
  OdString m_shapePackage;
  OdString m_currentShape;
};

class OdTcStockToolRefImpl : public OdTcPersistImpl<OdTcStockToolRef> {
 public:
  OdString stockId() const override { return m_id; }

  OdString elementName() const override { return QStringLiteral("StockToolRef"); }
  void writeFields(OdTcFiler* filer) override;
  bool readField(const OdString& name, const OdVariant& value) override;
  OdRxObjectPtr clone() const override;

 private:
  OdString m_id;
};

} // namespace tc
