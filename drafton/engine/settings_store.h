// The settings file.
#pragma once

#include "frame/variant.h"

#include <functional>
#include <map>
#include <optional>

namespace drafton {

/// Settings as a tree of sections with keys, kept in an INI file. The tree is read once; each
/// change goes to the file key by key, so that two programs on one file do not undo each other's
/// changes.
///
/// A file that cannot be read, or that holds lines that are no settings, is never written: what
/// could be read counts, changes live until the program ends, and problem() says so.
class SettingsStore {
 public:
  using Section = QStringList; ///< the names from the root; empty for the root itself

  /// An empty store in memory.
  SettingsStore() = default;
  /// Reads the file, which need not exist yet. `path` is a platform's path.
  explicit SettingsStore(const OdString& path);
  SettingsStore(const SettingsStore&) = delete;
  SettingsStore& operator=(const SettingsStore&) = delete;
  /// Writes what is not written yet.
  ~SettingsStore();

  /// What is wrong with the file, with its name; empty if nothing is.
  const OdString& problem() const { return m_problem; }

  bool get(const Section& section, const OdString& key, OdVariant& out) const;
  void set(const Section& section, const OdString& key, const OdVariant& value);
  /// False if there was no such key.
  bool remove(const Section& section, const OdString& key);
  /// The keys of the section itself, sorted.
  QStringList keys(const Section& section) const;
  /// True if there is a key in the section or below it, or the section was made in this run.
  bool hasSection(const Section& section) const;
  void makeSection(const Section& section);
  /// Brings changes into the file. False if that fails; problem() says why.
  bool flush();

  /// Called behind every change of a value, with the path of the key ("CommandLine/completetools").
  void setListener(std::function<void(const OdString&)> listener) {
    m_listener = std::move(listener);
  }

 private:
  OdString read();
  void tell(const Section& section, const OdString& key) const;
  void refuse(const OdString& reason);

  OdString m_path;
  OdString m_problem;
  // Section and key with their signs escaped, joined by '/': the form of the file.
  std::map<OdString, OdVariant> m_values;
  std::map<OdString, bool> m_madeSections;
  std::map<OdString, std::optional<OdString>> m_pending; // not in the file yet; none: removed
  bool m_isWritable = false;
  std::function<void(const OdString&)> m_listener;
};

} // namespace drafton
