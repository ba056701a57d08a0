// tpal list: the tree of catalogs, groups, palettes and tools.
#include "frame/file_path.h"
#include "tpal/command.h"
#include "tpal/csv.h"
#include "tpal/loaded_catalog.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <algorithm>

namespace tpal {
namespace {

/// The tree as JSON: the one form from which the text is printed as well.
QJsonObject nodeOf(const char* type, const tc::OdTcCatalogItem& item) {
  return {{QStringLiteral("type"), QLatin1String(type)},
          {QStringLiteral("name"), item.name()},
          {QStringLiteral("id"), item.id()}};
}

QJsonObject paletteNode(const tc::OdTcToolPalette& palette) {
  QJsonArray tools;
  for (const tc::OdTcTool* tool : toolsOf(palette)) {
    const ToolSummary summary = summarize(*tool);
    QJsonObject node = nodeOf("tool", *tool);
    node.insert(QStringLiteral("kind"), summary.kind);
    node.insert(QStringLiteral("command"), summary.command);
    tools.append(node);
  }
  QJsonObject node = nodeOf("palette", palette);
  node.insert(QStringLiteral("file"), odpath::toPlatform(palette.getPath()));
  node.insert(QStringLiteral("children"), tools);
  return node;
}

class TreeBuilder {
 public:
  explicit TreeBuilder(const tc::OdTcCatalog& catalog)
    : m_catalog(catalog) {}

  QJsonObject build(const OdString& file) {
    QJsonArray children;
    forEach(m_catalog.groupsEnum(),
            [&](tc::OdTcCatalogItem* group) { children.append(groupNode(*group)); });
    for (const tc::OdTcToolPalette* palette : palettesOf(m_catalog))
      if (!m_grouped.contains(palette->id())) children.append(paletteNode(*palette));
    QJsonObject node = nodeOf("catalog", m_catalog);
    node.insert(QStringLiteral("file"), file);
    node.insert(QStringLiteral("children"), children);
    return node;
  }

 private:
  QJsonObject groupNode(const tc::OdTcCatalogItem& group) {
    QJsonArray children;
    forEach(group.children(), [&](tc::OdTcCatalogItem* child) {
      const auto* reference = odrxCast<tc::OdTcPaletteSoftRef>(child);
      if (!reference) {
        children.append(groupNode(*child));
      } else if (const tc::OdTcToolPalette* palette = reference->resolve()) {
        m_grouped.insert(palette->id());
        children.append(paletteNode(*palette));
      } else {
        QJsonObject missing = nodeOf("missing palette", *reference);
        missing.insert(QStringLiteral("name"), paletteName(m_catalog, reference->id()));
        children.append(missing);
      }
    });
    QJsonObject node = nodeOf("group", group);
    node.insert(QStringLiteral("children"), children);
    return node;
  }

  const tc::OdTcCatalog& m_catalog;
  QSet<OdString> m_grouped;
};

void print(QTextStream& out, const QJsonObject& node, int depth) {
  const OdString type = node[QStringLiteral("type")].toString();
  out << OdString(depth * 2, u' ');
  if (type == QLatin1String("tool")) {
    out << node[QStringLiteral("name")].toString() << "  ["
        << node[QStringLiteral("kind")].toString() << "]";
    OdString command = node[QStringLiteral("command")].toString();
    command.replace(u'\n', QLatin1String("\\n")).replace(u'\r', QLatin1String("\\r"));
    if (!command.isEmpty()) out << "  " << command;
  } else {
    const OdString name = node[QStringLiteral("name")].toString();
    out << type << "  " << (name.isEmpty() ? node[QStringLiteral("id")].toString() : name);
    if (type == QLatin1String("catalog")) out << "  " << node[QStringLiteral("file")].toString();
  }
  out << "\n";
  const QJsonArray children = node[QStringLiteral("children")].toArray();
  for (const QJsonValue& child : children) print(out, child.toObject(), depth + 1);
}

/// A row for each tool, and for each palette without any; `groups` lead there.
void addRows(CsvWriter& table, const QJsonObject& node, const OdString& catalog,
             const QStringList& groups, const OdString& palette) {
  const auto text = [&](const char* name) { return node[QLatin1String(name)].toString(); };
  const OdString type = text("type");
  const QJsonArray children = node[QStringLiteral("children")].toArray();
  const bool isGroup = type == QLatin1String("group");
  const bool isPalette = type.endsWith(QLatin1String("palette"));
  if (type == QLatin1String("tool"))
    table.row({catalog, groups.join(u'/'), palette, text("name"), text("kind"), text("command"),
               text("id")});
  else if (isPalette && children.isEmpty())
    table.row({catalog, groups.join(u'/'), text("name"), {}, type, {}, text("id")});
  for (const QJsonValue& child : children)
    addRows(table, child.toObject(), catalog, isGroup ? groups + QStringList(text("name")) : groups,
            isPalette ? text("name") : palette);
}

void printTable(const QJsonArray& trees, QTextStream& out) {
  CsvWriter table(out, {QStringLiteral("Catalog"), QStringLiteral("Group"),
                        QStringLiteral("Palette"), QStringLiteral("Tool"), QStringLiteral("Kind"),
                        QStringLiteral("Command"), QStringLiteral("Id")});
  for (const QJsonValue& tree : trees)
    addRows(table, tree.toObject(), tree[QStringLiteral("file")].toString(), {}, {});
}

} // namespace

ExitCode listCommand(const Arguments& arguments, Console& console) {
  const ModuleClasses classes;
  ExitCode result = kOk;
  QJsonArray trees;
  for (const OdString& folder : arguments.words) {
    const LoadedCatalog loaded = loadCatalog(folder);
    for (const OdString& message : loaded.messages) console.err << "tpal: " << message << "\n";
    if (!loaded.isRead) {
      result = kFailed;
      continue;
    }
    // Something of this catalog is not shown.
    if (!loaded.messages.isEmpty()) result = std::max(result, kFindings);
    trees.append(TreeBuilder(*loaded.catalog).build(odpath::toPlatform(loaded.file)));
  }
  if (arguments.csv)
    printTable(trees, console.out);
  else if (arguments.json)
    console.out << OdString::fromUtf8(QJsonDocument(trees).toJson());
  else
    for (const QJsonValue& tree : trees) print(console.out, tree.toObject(), 0);
  return result;
}

} // namespace tpal
