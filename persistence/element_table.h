// The table from element name to class.
#pragma once

#include "module/persist.h"
#include "persistence/document_check.h"

#include <QHash>

#include <vector>

namespace tc {

/// Makes the object of an element. The container knows no class: its rows are handed in by the
/// composition root.
class OdTcElementTable {
 public:
  /// Makes a new object with a reference count of 1.
  using Creator = OdTcPersist* (*)();
  using Builder = void (*)(OdTcElementTable& table);

  /// The table of the process, built by the builder at the first lookup and kept from then on.
  static OdTcElementTable& instance();
  /// Says who builds the table. Another builder than the one before begins a new table.
  static void setBuilder(Builder builder);

  /// Enters a row; a later row of the same name takes the place of the earlier one.
  void add(const OdString& element, Creator creator);
  /// Says of an element that palettes are read without its content if that is plain. Its object
  /// takes the markup from the filer in readElements(): see OdTcFiler::takeDeferred().
  void defer(const OdTcPlainElement& element) { m_deferred.push_back(element); }
  bool contains(const OdString& element) const;
  /// What makes the object of that element, or null if the name is not in the table.
  Creator creatorOf(const OdString& element) const;
  /// A new object, or null if the name (compared exactly) is not in the table.
  OdTcPersistPtr create(const OdString& element) const;
  /// The names in the order in which they were first entered.
  const QStringList& names() const { return m_names; }
  /// The elements whose content is read when it is asked for.
  const std::vector<OdTcPlainElement>& deferred() const { return m_deferred; }

 private:
  QHash<OdString, Creator> m_creators;
  QStringList m_names;
  std::vector<OdTcPlainElement> m_deferred;
};

} // namespace tc
