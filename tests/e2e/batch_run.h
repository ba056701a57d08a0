// Runs `drafton batch` as a user would: a process, a catalog on disk, a script, a drawing.
#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QStringList>
#include <QTemporaryDir>

/// One command tool of a catalog that a test writes.
struct ToolText {
  QString name;
  QString macro;
  QString generalProperties = {}; ///< XML
};

/// What a run of a program gave.
struct RunResult {
  int exitCode = -1;
  bool crashed = true;
  QString out;
  QString err;
};

/// Runs a program of the build folder with standard input; gives up after two minutes.
RunResult runProgram(const QString& name, const QStringList& arguments,
                     const QByteArray& input = {});

/// A folder of its own for one test: catalogs, a profile, drawings.
class Workbench {
 public:
  QString path(const QString& name) const { return m_folder.filePath(name); }
  QString profile() const { return path(QStringLiteral("profile.ini")); }
  QString drawing() const { return path(QStringLiteral("out.dxf")); }

  /// Writes bytes to a file of the folder and gives its path.
  QString write(const QString& name, const QByteArray& bytes) const;
  /// Writes a catalog with one group and one palette of command tools; gives its folder.
  QString writeCatalog(const QString& name, const QList<ToolText>& tools) const;

  /// Runs the script over a catalog folder list; the drawing is saved as drawing().
  RunResult batch(const QString& catalogs, const QByteArray& script,
                  const QStringList& more = {}) const;
  /// The entities in the model space of a saved drawing, as an independent reader sees them: each
  /// has "type", "layer" and its points. Empty, with a failure, if the drawing is not sound.
  QJsonArray entities(const QString& file) const;
  QJsonArray entities() const { return entities(drawing()); }
  /// How many entities of that type the saved drawing has.
  int count(const QString& type) const;

 private:
  QTemporaryDir m_folder;
};
