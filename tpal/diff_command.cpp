// tpal diff: what differs between two catalogs.
#include "catalog/database.h"
#include "frame/file_path.h"
#include "tpal/command.h"
#include "tpal/loaded_catalog.h"
#include "tpal/recorded_fields.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <optional>

namespace tpal {
namespace {

using Fields = QMap<OdString, OdString>;

/// A palette or a tool, apart from the catalog that it was read from.
struct Item {
  OdString id, name, palette; ///< `palette` is where a tool stands; empty for a palette
  Fields fields;
  QStringList tools; ///< of a palette, their ids in their order
};

/// All items of a catalog in their order.
struct Content {
  std::vector<Item> items;
  QHash<OdString, std::size_t> places; ///< the first of each id

  const Item* find(const OdString& id) const {
    const auto at = places.constFind(id);
    return at == places.constEnd() ? nullptr : &items[*at];
  }
  void add(Item item) {
    if (!places.contains(item.id)) places.insert(item.id, items.size());
    items.push_back(std::move(item));
  }
};

/// In which groups each palette stands, by its id: "Site/Roads, Details".
class Groups {
 public:
  explicit Groups(const tc::OdTcCatalog& catalog) {
    forEach(catalog.groupsEnum(), [&](tc::OdTcCatalogItem* group) { walk(*group, group->name()); });
  }
  OdString of(const OdString& palette) const {
    return m_groups.value(palette).join(QLatin1String(", "));
  }

 private:
  void walk(const tc::OdTcCatalogItem& group, const OdString& path) {
    forEach(group.children(), [&](tc::OdTcCatalogItem* child) {
      if (const auto* const reference = odrxCast<tc::OdTcPaletteSoftRef>(child))
        m_groups[reference->id()] << path;
      else
        walk(*child, path + u'/' + child->name());
    });
  }
  QHash<OdString, QStringList> m_groups;
};

/// A palette without its tools, which are items of their own.
Item paletteItem(const tc::OdTcToolPalette& palette, const Groups& groups) {
  Item item{palette.id(),
            palette.name(),
            {},
            {{QStringLiteral("Name"), palette.name()},
             {QStringLiteral("Description"), palette.description()},
             {QStringLiteral("Groups"), groups.of(palette.id())}},
            {}};
  for (const tc::OdTcTool* tool : toolsOf(palette)) item.tools << tool->id();
  return item;
}

/// Nothing if a part of the catalog cannot be read: it could be told neither as there nor as gone.
std::optional<Content> contentOf(const OdString& folder, Console& console) {
  const LoadedCatalog loaded =
      loadCatalog(QFileInfo(odpath::toPlatform(folder)).absoluteFilePath());
  for (const OdString& message : loaded.messages) console.err << "tpal: " << message << "\n";
  if (!loaded.isRead) return std::nullopt;
  const OdString home = odpath::folderOf(loaded.file);
  const Groups groups(*loaded.catalog);
  Content content;
  for (const tc::OdTcToolPalette* palette : palettesOf(*loaded.catalog)) {
    if (palette->getDatabase()->isUnread()) return std::nullopt;
    content.add(paletteItem(*palette, groups));
    for (tc::OdTcTool* tool : toolsOf(*palette))
      content.add({tool->id(), tool->name(), palette->name(), fieldsOf(*tool, home), {}});
  }
  return content;
}

/// One difference: an item that one side lacks, or a value of an item that both have.
struct Difference {
  enum class Kind { kRemoved, kAdded, kChanged } kind;
  Item item;
  OdString field, from, to;
};

// By value.
constexpr const char* kSigns[] = {"-", "+", "~"};
constexpr const char* kWords[] = {"removed", "added", "changed"};

class Comparison {
 public:
  Comparison(const Content& before, const Content& after)
    : m_before(before)
    , m_after(after) {}

  std::vector<Difference> run() {
    using Kind = Difference::Kind;
    for (const Item& item : m_before.items) {
      if (const Item* const other = m_after.find(item.id))
        compare(item, *other);
      else
        m_differences.push_back({Kind::kRemoved, item, {}, {}, {}});
    }
    for (const Item& item : m_after.items)
      if (!m_before.find(item.id)) m_differences.push_back({Kind::kAdded, item, {}, {}, {}});
    return std::move(m_differences);
  }

 private:
  void compare(const Item& before, const Item& after) {
    note(after, QStringLiteral("Palette"), before.palette, after.palette);
    QSet<OdString> names(before.fields.keyBegin(), before.fields.keyEnd());
    names.unite(QSet<OdString>(after.fields.keyBegin(), after.fields.keyEnd()));
    QStringList sorted = names.values();
    sorted.sort();
    for (const OdString& name : sorted)
      note(after, name, before.fields.value(name), after.fields.value(name));
    compareOrder(before, after);
  }
  /// Tools that come or go change nothing in the order of the others.
  void compareOrder(const Item& before, const Item& after) {
    const QStringList from = among(before.tools, after.tools);
    const QStringList to = among(after.tools, before.tools);
    if (from == to) return;
    note(after, QStringLiteral("Order"), namesOf(from, m_before), namesOf(to, m_after));
  }
  static QStringList among(const QStringList& ids, const QStringList& others) {
    const QSet<OdString> known(others.begin(), others.end());
    QStringList common;
    for (const OdString& id : ids)
      if (known.contains(id)) common << id;
    return common;
  }
  static OdString namesOf(const QStringList& ids, const Content& content) {
    QStringList names;
    for (const OdString& id : ids) names << content.find(id)->name;
    return names.join(QLatin1String(", "));
  }
  void note(const Item& item, const OdString& field, const OdString& from, const OdString& to) {
    if (from != to) m_differences.push_back({Difference::Kind::kChanged, item, field, from, to});
  }

  const Content& m_before;
  const Content& m_after;
  std::vector<Difference> m_differences;
};

OdString oneLine(OdString text) {
  return text.replace(u'\n', QLatin1String("\\n")).replace(u'\r', QLatin1String("\\r"));
}

void print(const Difference& d, QTextStream& out) {
  out << kSigns[static_cast<int>(d.kind)] << " ";
  if (d.item.palette.isEmpty())
    out << "palette " << d.item.name;
  else
    out << d.item.palette << ": " << d.item.name;
  if (d.kind == Difference::Kind::kChanged)
    out << ": " << d.field << ": " << oneLine(d.from) << " -> " << oneLine(d.to);
  out << "\n";
}

QJsonObject jsonOf(const Difference& d) {
  QJsonObject row{{QStringLiteral("change"), QLatin1String(kWords[static_cast<int>(d.kind)])},
                  {QStringLiteral("type"),
                   d.item.palette.isEmpty() ? QStringLiteral("palette") : QStringLiteral("tool")},
                  {QStringLiteral("palette"), d.item.palette},
                  {QStringLiteral("name"), d.item.name},
                  {QStringLiteral("id"), d.item.id}};
  if (d.kind == Difference::Kind::kChanged) {
    row.insert(QStringLiteral("field"), d.field);
    row.insert(QStringLiteral("from"), d.from);
    row.insert(QStringLiteral("to"), d.to);
  }
  return row;
}

} // namespace

ExitCode diffCommand(const Arguments& arguments, Console& console) {
  const ModuleClasses classes;
  const auto before = contentOf(arguments.words[0], console);
  const auto after = contentOf(arguments.words[1], console);
  if (!before || !after) return kFailed;
  const std::vector<Difference> differences = Comparison(*before, *after).run();
  QJsonArray rows;
  for (const Difference& d : differences) {
    if (arguments.json)
      rows.append(jsonOf(d));
    else
      print(d, console.out);
  }
  if (arguments.json) console.out << OdString::fromUtf8(QJsonDocument(rows).toJson());
  return differences.empty() ? kOk : kFindings;
}

} // namespace tpal
