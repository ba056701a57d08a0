// tpal check: what is wrong with a catalog.
#include "frame/file_path.h"
#include "tpal/command.h"
#include "tpal/csv.h"
#include "tpal/finding.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <map>

namespace tpal {
namespace {

bool isAmong(const QStringList& words, FindingKind kind) {
  return std::ranges::any_of(words, [&](const OdString& word) { return findKind(word) == kind; });
}

bool isWanted(const Arguments& arguments, FindingKind kind) {
  return (arguments.only.isEmpty() || isAmong(arguments.only, kind)) &&
         !isAmong(arguments.ignored, kind);
}

/// How many of each kind, for who looks on: a long list hides the rare ones.
void printCounts(const std::vector<Finding>& findings, QTextStream& err) {
  std::map<FindingKind, int> counts;
  for (const Finding& f : findings) ++counts[f.kind];
  for (const auto& [kind, count] : counts)
    err << "tpal: " << codeOf(kind) << " " << wordOf(kind) << ": " << count << "\n";
}

} // namespace

ExitCode checkCommand(const Arguments& arguments, Console& console) {
  const ModuleClasses classes;
  std::vector<Finding> findings;
  for (const OdString& folder : arguments.words)
    for (Finding& finding : examine(loadCatalog(folder)))
      if (isWanted(arguments, finding.kind)) findings.push_back(std::move(finding));

  if (arguments.csv) {
    CsvWriter table(console.out, {QStringLiteral("File"), QStringLiteral("Code"),
                                  QStringLiteral("Kind"), QStringLiteral("Text")});
    for (const Finding& f : findings)
      table.row({odpath::toPlatform(f.file), codeOf(f.kind), wordOf(f.kind), f.text});
  } else if (arguments.json) {
    QJsonArray rows;
    for (const Finding& f : findings)
      rows.append(QJsonObject{{QStringLiteral("code"), codeOf(f.kind)},
                              {QStringLiteral("kind"), wordOf(f.kind)},
                              {QStringLiteral("file"), odpath::toPlatform(f.file)},
                              {QStringLiteral("text"), f.text}});
    console.out << OdString::fromUtf8(QJsonDocument(rows).toJson());
  } else {
    for (const Finding& f : findings)
      console.out << odpath::toPlatform(f.file) << ": " << codeOf(f.kind) << " " << wordOf(f.kind)
                  << ": " << f.text << "\n";
  }
  console.out.flush();
  if (console.showsProgress) printCounts(findings, console.err);
  return findings.empty() ? kOk : kFindings;
}

} // namespace tpal
