// Palettes that nobody wrote: whatever was read comes back the same from the first save on.
#include "catalog/catalog_fixture.h"
#include "persistence/filer.h"
#include "support/data_file.h"

#include <QXmlStreamReader>

#include <random>
#include <vector>

namespace {

using namespace testhost;

/// An element of a document that is about to be changed.
struct Node {
  QByteArray name;
  std::vector<std::pair<QByteArray, QByteArray>> attributes;
  QByteArray text;
  std::vector<Node> children;
};

Node nodeAt(QXmlStreamReader& in) {
  Node node{in.name().toUtf8(), {}, {}, {}};
  for (const QXmlStreamAttribute& a : in.attributes())
    node.attributes.emplace_back(a.name().toUtf8(), a.value().toString().toHtmlEscaped().toUtf8());
  while (!in.atEnd() && in.readNext() != QXmlStreamReader::EndElement) {
    if (in.isStartElement())
      node.children.push_back(nodeAt(in));
    else if (in.isCharacters() && !in.isWhitespace())
      node.text += in.text().toString().toHtmlEscaped().toUtf8();
  }
  return node;
}

Node document(const OdString& file) {
  const QByteArray bytes = dataFile(file);
  QXmlStreamReader in(bytes);
  EXPECT_TRUE(in.readNextStartElement()) << text(file);
  return nodeAt(in);
}

QByteArray xml(const Node& node) {
  QByteArray result = '<' + node.name;
  for (const auto& [name, value] : node.attributes) result += ' ' + name + "=\"" + value + '"';
  result += '>' + node.text;
  for (const Node& child : node.children) result += xml(child);
  return result + "</" + node.name + '>';
}

Node* childOf(Node& node, const char* name) {
  for (Node& child : node.children)
    if (child.name == name) return &child;
  return nullptr;
}

void collect(Node& node, std::vector<Node*>& all) {
  all.push_back(&node);
  for (Node& child : node.children) collect(child, all);
}

/// Values as they may stand in a document.
constexpr const char* kValues[] = {"",
                                   " ",
                                   "0",
                                   "1",
                                   "3",
                                   "25",
                                   "-1",
                                   "-5",
                                   "2147483647",
                                   "2147483648",
                                   "4294967295",
                                   "4294967297",
                                   "99999999999999999999",
                                   "-99999999999999999999",
                                   "0.1",
                                   "0.30000000000000004",
                                   "123456789.125",
                                   "1e400",
                                   "-1e-9",
                                   "nan",
                                   "-0",
                                   "TRUE",
                                   "true",
                                   "False",
                                   "yes",
                                   "ByLayer",
                                   "ByBlock",
                                   "\xEF\xBB\xBF",
                                   "\xEF\xBB\xBFWalls",
                                   "a &amp; b &lt; &quot;c&quot;",
                                   "&amp;#x41;",
                                   "two\nlines  ",
                                   "]]&gt;",
                                   "%UserProfileFolder%\\x",
                                   "C:\\a\\b.dxf",
                                   "K\xC3\xBC"
                                   "che",
                                   "\xE6\xBC\xA2",
                                   "&#0;",
                                   "R=1,G=2,B=3",
                                   "."};

class RandomPalettesTest : public CatalogFixture {
 protected:
  RandomPalettesTest() {
    Node palette = document(u"catalogs/full/Palettes/full.dtc"_s);
    // The ids of flyouts are told apart by the order of their arrival in the whole process.
    std::vector<Node>& tools = childOf(palette, "Tools")->children;
    std::erase_if(tools, [](Node& tool) { return childOf(tool, "Flyout"); });
    for (const OdString& agent : {u"Block"_s, u"Command"_s, u"Hatch"_s, u"Raster"_s})
      for (const OdString& general : {u"GeneralProperties"_s, u"GeneralProperties_new"_s}) {
        Node made = palette;
        Node& tool = childOf(made, "Tools")->children.at(0);
        Node& data = *childOf(tool, "Data");
        data.children = document(u"golden/"_s + general + u".xml"_s).children;
        for (const Node& part : document(u"golden/"_s + agent + u".xml"_s).children)
          data.children.push_back(part);
        for (const Node& part : document(u"golden/Images.xml"_s).children)
          childOf(tool, "Properties")->children.push_back(part);
        m_originals.push_back(made);
      }
    for (const OdString& record : {u"LayerTableRecord"_s, u"LinetypeTableRecord"_s,
                                   u"TextstyleTableRecord"_s, u"DimstyleTableRecord"_s}) {
      m_originals.push_back(m_originals.front());
      std::vector<Node*> all;
      collect(m_originals.back(), all);
      for (Node* const node : all)
        if (node->name == "LayerCreateInfo" || node->name == "LineTypeCreateInfo" ||
            node->name == "TextStyleCreateInfo" || node->name == "DimStyleCreateInfo")
          node->children = document(u"golden/"_s + record + u".xml"_s).children;
    }
  }

  std::size_t below(std::size_t limit) { return m_numbers() % limit; }
  QByteArray anyValue() { return kValues[below(std::size(kValues))]; }

  Node changed() {
    Node palette = m_originals.at(below(m_originals.size()));
    const std::size_t changes = 1 + below(6);
    for (std::size_t i = 0; i < changes; ++i) changeOne(palette);
    return palette;
  }

  std::vector<Node> m_originals;

 private:
  void changeOne(Node& palette) {
    std::vector<Node*> all;
    collect(palette, all);
    Node& node = *all.at(below(all.size()));
    std::vector<Node>& children = node.children;
    switch (below(7)) {
    case 0:
      if (!children.empty())
        children.erase(children.begin() + static_cast<std::ptrdiff_t>(below(children.size())));
      break;
    case 1:
      if (!children.empty()) children.push_back(Node(children.at(below(children.size()))));
      break;
    case 2:
      if (!children.empty())
        std::swap(children.at(below(children.size())), children.at(below(children.size())));
      break;
    case 3:
      if (!node.attributes.empty())
        node.attributes.at(below(node.attributes.size())).second = anyValue();
      break;
    case 4:
      if (!node.attributes.empty()) node.attributes.pop_back();
      break;
    case 5:
      // Text among elements is an element's own only in leaves.
      if (children.empty()) node.text = anyValue();
      break;
    default:
      children.push_back(Node{"Later", {{"a", anyValue()}}, anyValue(), {}});
    }
  }

  std::mt19937 m_numbers{20260801};
};

struct Loaded {
  OdTcDatabasePtr database = OdTcDatabase::createObject();
  OdString problem;
  bool isRead = false;
};

Loaded loaded(const QByteArray& bytes) {
  Loaded result;
  const OdTcFilerPtr filer = makePaletteFiler();
  result.isRead = filer->openPalette(odrxMake<OdMemoryStream>(bytes), result.database, false);
  result.problem = filer->problem();
  return result;
}

/// What stands at the first place where two documents differ; empty if they do not.
std::string difference(const QByteArray& a, const QByteArray& b) {
  if (a == b) return {};
  const QList<QByteArray> one = a.split('\n'), other = b.split('\n');
  qsizetype line = 0;
  while (line < one.size() && line < other.size() && one[line] == other[line]) ++line;
  return "line " + std::to_string(line + 1) + ": " + one.value(line).toStdString() + " | " +
         other.value(line).toStdString();
}

QByteArray saved(OdTcDatabase* database) {
  const auto stream = odrxMake<OdMemoryStream>();
  const OdTcFilerPtr filer = makePaletteFiler();
  EXPECT_TRUE(filer->openPalette(stream, database, true));
  filer->flush();
  return stream->bytes();
}

TEST_F(RandomPalettesTest, AreTheSameBytesFromTheFirstSaveOn) {
  constexpr int kCount = 2000;
  int read = 0;
  for (int i = 0; i < kCount; ++i) {
    const QByteArray original = xml(changed());
    const Loaded first = loaded(original);
    if (!first.isRead) {
      EXPECT_FALSE(first.problem.isEmpty()) << original.toStdString();
      continue;
    }
    ++read;
    const QByteArray once = saved(first.database);
    const Loaded second = loaded(once);
    EXPECT_TRUE(second.isRead) << text(second.problem) << once.toStdString();
    EXPECT_EQ(difference(once, saved(second.database)), "")
        << "palette " << i << ": " << original.toStdString();
    theHost().log.clear();
  }
  EXPECT_GT(read, kCount * 9 / 10);
}

} // namespace
