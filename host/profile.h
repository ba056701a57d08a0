// The host's settings store.
#pragma once

#include "frame/variant.h"
#include "host/unknown.h"

/// One section of a hierarchical key-value store. Keys are compared exactly.
class IProfile : public IKVUnknown {
 public:
  static constexpr KVInterfaceId kId = "IProfile";

  /// A section below this one; without `create`, null if there is none.
  virtual KVPtr<IProfile> openSection(const OdString& name, bool create) = 0;
  /// True when found; otherwise `out` is unchanged.
  virtual bool get(const OdString& key, OdVariant& out) = 0;
  virtual void set(const OdString& key, const OdVariant& value) = 0;
  /// False if there was no such key.
  virtual bool deleteValue(const OdString& key) = 0;
  virtual QStringList keys() = 0;

 protected:
  ~IProfile() = default;
};

/// Hears of changed settings. Reference counted by whoever subscribes it.
class IPropReactor : public IKVUnknown {
 public:
  static constexpr KVInterfaceId kId = "IPropReactor";
  /// `setting` is the name of what changed.
  virtual void onPropertyChanged(const OdString& setting) = 0;

 protected:
  ~IPropReactor() = default;
};
