// A palette of another program, and a catalog that takes it again and again.
#pragma once

#include <QByteArray>
#include <QTemporaryDir>

#include <string>

namespace bench {

class ImportFixture {
 public:
  explicit ImportFixture(QByteArray text);

  /// Registers "bare parse", "import" (with everything saved) and "dry run", the ending behind
  /// each.
  void registerAs(const std::string& ending) const;
  /// What the process needs at most while it imports, in documents of the bare parser.
  double peakInDocuments() const;

 private:
  void bareParse() const;
  /// Into a new catalog on the disk; false if the palette does not come in.
  bool import(bool dryRun) const;
  void clear() const;

  QByteArray m_text;
  QTemporaryDir m_folder;
};

} // namespace bench
