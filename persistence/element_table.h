// The table from element name to class.
#pragma once

#include "module/persist.h"

#include <QHash>

#include <string>
#include <vector>

namespace tc {

/// Makes the object of an element. The container knows no class: its rows are handed in by the
/// composition root.
class OdTcElementTable {
 public:
  /// Makes a new object with a reference count of 1.
  using Creator = OdTcPersist* (*)();
  using Builder = void (*)(OdTcElementTable& table);
  /// When a palette's reader parses what stands in an element. An object that is read when asked
  /// for takes the markup from the filer in its readElements(): see OdTcFiler::takeDeferred().
  enum class Reading { kAtOnce, kWhenAskedFor };

  /// The table of the process, built by the builder at the first lookup and kept from then on.
  static OdTcElementTable& instance();
  /// Says who builds the table. Another builder than the one before begins a new table.
  static void setBuilder(Builder builder);

  /// Enters a row; a later row of the same name takes the place of the earlier one.
  void add(const OdString& element, Creator creator, Reading reading = Reading::kAtOnce);
  bool contains(const OdString& element) const;
  /// What makes the object of that element, or null if the name is not in the table.
  Creator creatorOf(const OdString& element) const;
  /// A new object, or null if the name (compared exactly) is not in the table.
  OdTcPersistPtr create(const OdString& element) const;
  /// The names in the order in which they were first entered.
  const QStringList& names() const { return m_names; }
  /// The names, in UTF-8, of what is read when asked for.
  const std::vector<std::string>& deferredNames() const { return m_deferredNames; }

 private:
  QHash<OdString, Creator> m_creators;
  QStringList m_names;
  std::vector<std::string> m_deferredNames;
};

} // namespace tc
