#include "tpal/import_text.h"

#include "frame/file_path.h"

#include <QJsonArray>

namespace tpal {
namespace {

// By value.
constexpr const char* kToolWords[] = {"taken", "converted", "skipped"};
constexpr const char* kPictureWords[] = {"none",    "resource",   "found",  "made",
                                         "refused", "unreadable", "missing"};
constexpr const char* kSourceWords[] = {"none", "found", "missing", "refused"};

template <std::size_t N, class Fate>
OdString word(const char* const (&words)[N], Fate fate) {
  return QLatin1String(words[static_cast<std::size_t>(fate)]);
}

QJsonObject jsonOf(const tc::OdTcImportedTool& tool) {
  return {{QStringLiteral("name"), tool.name},
          {QStringLiteral("kind"), tool.kind},
          {QStringLiteral("command"), tool.command},
          {QStringLiteral("fate"), wordOf(tool.fate)},
          {QStringLiteral("reason"), tool.reason},
          {QStringLiteral("picture"), wordOf(tool.picture)},
          {QStringLiteral("pictureFile"), tool.pictureFile},
          {QStringLiteral("source"), wordOf(tool.source)},
          {QStringLiteral("sourceFile"), tool.sourceFile}};
}

OdString lineOf(const tc::OdTcImportedTool& tool) {
  OdString line = QStringLiteral("  %1: %2").arg(wordOf(tool.fate), tool.name);
  if (!tool.kind.isEmpty()) line += QStringLiteral(" [%1]").arg(tool.kind);
  if (!tool.reason.isEmpty()) line += QStringLiteral(": ") + tool.reason;
  if (tool.fate == tc::OdTcToolFate::kSkipped) return line;
  line += QStringLiteral("; picture ") + wordOf(tool.picture);
  if (tool.picture >= tc::OdTcPictureFate::kRefused)
    line += QStringLiteral(" (%1)").arg(tool.pictureFile);
  if (tool.source != tc::OdTcSourceFate::kNone)
    line += QStringLiteral("; source %1 (%2)").arg(wordOf(tool.source), tool.sourceFile);
  return line;
}

} // namespace

OdString wordOf(tc::OdTcToolFate fate) { return word(kToolWords, fate); }
OdString wordOf(tc::OdTcPictureFate fate) { return word(kPictureWords, fate); }
OdString wordOf(tc::OdTcSourceFate fate) { return word(kSourceWords, fate); }

QJsonObject jsonOf(const tc::OdTcImportReport& report, bool isDry) {
  QJsonArray tools;
  for (const tc::OdTcImportedTool& tool : report.tools) tools.append(jsonOf(tool));
  return {{QStringLiteral("file"), odpath::toPlatform(report.file)},
          {QStringLiteral("palette"), report.palette},
          {QStringLiteral("id"), report.id},
          {QStringLiteral("imported"), report.problem.isEmpty() && !isDry},
          {QStringLiteral("problem"), report.problem},
          {QStringLiteral("notes"), QJsonArray::fromStringList(report.notes)},
          {QStringLiteral("tools"), tools}};
}

QJsonObject jsonOf(const tc::OdTcForeignPalettes::Problem& problem) {
  tc::OdTcImportReport report;
  report.file = problem.file;
  report.problem = problem.text;
  report.palette = problem.palette;
  for (const OdString& name : problem.tools) {
    tc::OdTcImportedTool& tool = report.tools.emplace_back();
    tool.name = name;
    tool.fate = tc::OdTcToolFate::kSkipped;
    tool.reason = problem.text;
  }
  return jsonOf(report, false);
}

void printReport(const tc::OdTcImportReport& report, bool isDry, QTextStream& out) {
  out << odpath::toPlatform(report.file) << ": ";
  if (!report.problem.isEmpty())
    out << "not imported: " << report.problem << "\n";
  else
    out << (isDry ? "would be the palette \"" : "is now the palette \"") << report.palette
        << "\"\n";
  for (const OdString& note : report.notes) out << "  note: " << note << "\n";
  for (const tc::OdTcImportedTool& tool : report.tools) out << lineOf(tool) << "\n";
}

} // namespace tpal
