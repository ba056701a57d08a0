// One entry on a palette: the implementation.
#pragma once

#include "catalog/foreign_tool_records.h"
#include "catalog/tool.h"
#include "module/catalog_item_impl.h"
#include "tools/tool_data.h"

#include <cstdint>
#include <memory>

namespace tc {

class OdTcToolImpl : public OdTcCatalogItemImplBase<OdTcTool> {
 public:
  ~OdTcToolImpl() override;

  void setToolType(std::uint32_t type) override { m_toolType = type; }
  void setActionAgent(OdTcToolActionAgent* agent) override { getData()->setActionAgent(agent); }
  void execute(IHostDocument* document) override;
  void finish() override;
  void abandonRun() override;
  bool applyToAgent(OdRxObject* object) override;
  bool updateAgent() override;
  bool isRunningMark() const override { return m_isRunning; }
  bool isRegular() const override { return m_toolType == kRegular; }
  OdTcToolActionAgent* getActionAgent() const override;
  std::uint32_t getToolType() const override { return m_toolType; }
  OdTcPropertyBag* getGeneralProperties() const override { return getData()->generalProperties(); }
  /// Made at the first look unless it was read.
  OdTcToolData* getData() const override;
  IHostDocument* runningDocument() const override { return m_document; }

  /// What a foreign file said of the tool; null if it said nothing, or it was converted.
  OdTcToolCustomData* customData() const { return m_foreign ? m_foreign->customData : nullptr; }
  OdTcToolFlyout* flyout() const { return m_foreign ? m_foreign->flyout : nullptr; }
  void dropForeignRecords() { m_foreign.reset(); }
  /// True if the tool came as one of several commands and now runs one.
  bool wasConverted() const { return m_isConverted; }
  void setConverted() { m_isConverted = true; }
  /// Gives a converted tool its agent, which goes into a record of data that is read later unless
  /// that one has an agent of its own.
  void setConvertedAgent(OdTcToolActionAgent* agent);

  OdString elementName() const override { return QStringLiteral("Tool"); }
  void writeFields(OdTcFiler* filer) override;
  bool readField(const OdString& name, const OdVariant& value) override;
  OdTcCatalogItemPtr clone(bool deep) const override;
  OdRxObjectPtr clone() const override { return clone(true); }

 private:
  // Few tools have them, and there are many tools. A reference to a stock record is not among them:
  // it is forgotten as soon as it is read, so that nothing depends on records that do not exist
  // here.
  struct ForeignRecords {
    OdTcToolCustomDataPtr customData;
    OdTcToolFlyoutPtr flyout;
  };

  ForeignRecords& foreign();
  void readData(const OdTcToolDataPtr& data);
  bool readOwnField(const OdString& name, const OdVariant& value);
  bool applyGeneralProperties(IHostDocument* document);
  void leaveGuard();

  mutable OdTcToolDataPtr m_data;
  std::unique_ptr<ForeignRecords> m_foreign;
  IHostDocument* m_document = nullptr;
  std::uint32_t m_toolType = kNoType;
  bool m_isRunning = false;
  bool m_hasConvertedAgent = false;
  bool m_isConverted = false;
};

} // namespace tc
