// tpal check: what is wrong with a catalog.
#include "tpal/command.h"
#include "tpal/finding.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace tpal {

ExitCode checkCommand(const Arguments& arguments, Console& console) {
  const ModuleClasses classes;
  std::vector<Finding> findings;
  for (const OdString& folder : arguments.words)
    for (Finding& finding : examine(loadCatalog(folder))) findings.push_back(std::move(finding));

  if (arguments.json) {
    QJsonArray rows;
    for (const Finding& f : findings)
      rows.append(QJsonObject{{QStringLiteral("code"), codeOf(f.kind)},
                              {QStringLiteral("kind"), wordOf(f.kind)},
                              {QStringLiteral("file"), f.file},
                              {QStringLiteral("text"), f.text}});
    console.out << OdString::fromUtf8(QJsonDocument(rows).toJson());
  } else {
    for (const Finding& f : findings)
      console.out << f.file << ": " << codeOf(f.kind) << " " << wordOf(f.kind) << ": " << f.text
                  << "\n";
  }
  return findings.empty() ? kOk : kFindings;
}

} // namespace tpal
