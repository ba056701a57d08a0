// What the views remember between runs.
#pragma once

#include "host/profile.h"
#include "module/persist_impl.h"

#include <string_view>

namespace tc {

/// Keeps values by key. The keys of the views are `ActiveView`, `IconSize`, `ViewStyle`,
/// `NameClmn`, `DescClmn`, `Col0`, `Col1`, `ExpandedItems`, `LastSelected` and those of the
/// dialogs; they share one store.
class ITcUiStateSaver {
 public:
  static constexpr std::string_view kId = "ITcUiStateSaver";

  /// Gives the saver as the interface `id`; false, and null in `out`, if it does not have it.
  virtual bool queryInterface(std::string_view id, void** out) = 0;
  /// True when found; otherwise `out` is unchanged, so that the caller's default applies.
  virtual bool read(const OdString& key, OdVariant& out) const = 0;
  /// Stores the value and clears the variant.
  virtual void write(const OdString& key, OdVariant& value) = 0;

 protected:
  ~ITcUiStateSaver() = default;
};

/// The store: node `ToolPaletteManager` in the section `cmddata` of the host's settings. Without
/// one every read answers false and every write does nothing.
class TcUiStateSaver : public ITcUiStateSaver {
 public:
  TcUiStateSaver();
  virtual ~TcUiStateSaver() = default;

  bool queryInterface(std::string_view id, void** out) override;
  bool read(const OdString& key, OdVariant& out) const override;
  void write(const OdString& key, OdVariant& value) override;

 private:
  KVPtr<IProfile> m_section;
};

/// The same store for the logic, which outlives the window.
class OdTcStateSaverImpl : public OdTcPersistImpl<OdTcPersist> {
 public:
  bool read(const OdString& key, OdVariant& out) const { return m_store.read(key, out); }
  using OdTcPersistImpl<OdTcPersist>::write;
  void write(const OdString& key, OdVariant& value) { m_store.write(key, value); }

  /// The saver of the module; null before its start and after its stop.
  static OdTcStateSaverImpl* instance();
  static void setInstance(const OdSmartPtr<OdTcStateSaverImpl>& saver);

 private:
  TcUiStateSaver m_store;
};
using OdTcStateSaverImplPtr = OdSmartPtr<OdTcStateSaverImpl>;

} // namespace tc
