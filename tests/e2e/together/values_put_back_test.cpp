// A run leaves no value behind in any of the open drawings, whatever its end: the real engine and
// the real module in one process, where a window's doings can be done that no script can.
#include "e2e/batch_run.h"

#include "drafton/previews/offscreen_application.h"
#include "engine/support/engine_fixture.h"
#include "frame/file_path.h"

#include <map>
#include <random>

namespace {

using drafton::Document;

QString property(const QString& tag, const QString& value, const QString& info = {}) {
  return QStringLiteral("<%1><BasicPropInfo><PropValue unspecified=\"FALSE\" valueType=\"1\" "
                        "value=\"%2\"/></BasicPropInfo>%3</%1>")
      .arg(tag, value, info);
}

QString recordName(const QString& name) {
  return QStringLiteral("<SymbolTableNameRecord>%1</SymbolTableNameRecord>").arg(name);
}

/// Every property that drives a value of the drawing, off all defaults.
QString allProperties() {
  const QString dash = property(
      QStringLiteral("Linetype"), QStringLiteral("Dash"),
      QStringLiteral("<LineTypeCreateInfo><LinetypeTableRecord numberOfPatternElements=\"2\">%1"
                     "<TotalPatternLength>3</TotalPatternLength><LinetypeElements>"
                     "<LinetypeElement><Dash>2</Dash></LinetypeElement><LinetypeElement>"
                     "<Space>-1</Space></LinetypeElement></LinetypeElements></LinetypeTableRecord>"
                     "</LineTypeCreateInfo>")
          .arg(recordName(QStringLiteral("Dash"))));
  return QStringLiteral("<Color><BasicPropInfo><PropValue unspecified=\"FALSE\"/></BasicPropInfo>"
                        "<ColorCreateInfo><AcCmColor mRGB=\"3271557121\"/></ColorCreateInfo>"
                        "</Color>") +
         property(QStringLiteral("Layer"), QStringLiteral("Walls"),
                  QStringLiteral("<LayerCreateInfo><LayerTableRecord lineWeight=\"35\">%1"
                                 "</LayerTableRecord></LayerCreateInfo>")
                      .arg(recordName(QStringLiteral("Walls")))) +
         dash + property(QStringLiteral("LinetypeScale"), QStringLiteral("2.5")) +
         property(QStringLiteral("PlotStyle"), QStringLiteral("ByBlock")) +
         property(QStringLiteral("LineWeight"), QStringLiteral("35")) +
         property(QStringLiteral("Transparency"), QStringLiteral("40")) +
         property(QStringLiteral("Textstyle"), QStringLiteral("Notes"),
                  QStringLiteral("<TextStyleCreateInfo><TextstyleTableRecord "
                                 "fontOrShapeFile=\"romans.shx\" widthRatio=\"0.75\">%1"
                                 "<FixedTextHeight>4</FixedTextHeight></TextstyleTableRecord>"
                                 "</TextStyleCreateInfo>")
                      .arg(recordName(QStringLiteral("Notes")))) +
         property(QStringLiteral("Dimstyle"), QStringLiteral("Site"),
                  QStringLiteral("<DimStyleCreateInfo><DimstyleTableRecord dimscale=\"20\" "
                                 "dimtxt=\"7\">%1</DimstyleTableRecord></DimStyleCreateInfo>")
                      .arg(recordName(QStringLiteral("Site"))));
}

/// The variables in the header of a drawing, as its file would say them; those that drawing itself
/// changes are left out.
std::map<QByteArray, QByteArray> headerOf(const OdDbDatabase& drawing) {
  static const QSet<QByteArray> kMoved = {"$HANDSEED",   "$EXTMIN",  "$EXTMAX",   "$PEXTMIN",
                                          "$PEXTMAX",    "$TDINDWG", "$TDUPDATE", "$TDUUPDATE",
                                          "$TDUSRTIMER", "$INSBASE"};
  const QByteArray file = drawing.writeDxf();
  std::map<QByteArray, QByteArray> values;
  QByteArray name;
  const QList<QByteArray> lines = file.left(file.indexOf("ENDSEC")).split('\n');
  for (qsizetype i = 0; i + 1 < lines.size(); i += 2) {
    const QByteArray value = lines[i + 1].trimmed();
    if (lines[i].trimmed() == "9")
      name = value;
    else if (!name.isEmpty() && !kMoved.contains(name))
      values[name] += value + ' ';
  }
  return values;
}

class ValuesPutBack : public EngineFixture {
 protected:
  ValuesPutBack() {
    const QString all = allProperties();
    const QString catalog = m_bench.writeCatalog(
        QStringLiteral("c"), {{QStringLiteral("Line"), QStringLiteral("_LINE \\\\;"), all},
                              {QStringLiteral("Text"), QStringLiteral("_TEXT \\;0;Hello;"), all},
                              {QStringLiteral("Lost"), QStringLiteral("_OpenDocument \\"), all},
                              {QStringLiteral("Plain"), QStringLiteral("_CIRCLE \\5"), {}}});
    drafton::EngineOptions options;
    options.settingsFile = m_bench.path(QStringLiteral("drafton.ini"));
    options.userDataFolder = odpath::fromPlatform(m_bench.path(QStringLiteral("data")));
    options.programFolder = odpath::fromPlatform(QStringLiteral(BINARY_DIR));
    restart(options);
    engine().application().overrideSetting(QStringLiteral("ToolPaletteDir"), catalog);
    EXPECT_TRUE(engine().loadModule(QStringLiteral("ToolPaletteManager")))
        << output().toStdString();
    note(document());
  }

  /// From now on the document is to hold what it holds.
  void note(Document& document) { m_before[&document] = headerOf(*document.database()); }
  Document& open() {
    Document& made = engine().documents().newDocument();
    note(made);
    return made;
  }
  void activate(Document& document) { engine().documents().activate(document); }
  void runTool(const char* name) {
    EXPECT_TRUE(engine().completion().runOffer(QStringLiteral("tools"),
                                               QLatin1String("TOOL:") + QLatin1String(name)));
    engine().run();
  }
  bool isImposed(Document& document) {
    return headerOf(*document.database()) != m_before.at(&document);
  }
  void expectPutBack(const std::string& what = {}) {
    for (const auto& document : engine().documents().documents())
      for (const auto& [name, value] : headerOf(*document->database()))
        EXPECT_EQ(value, m_before.at(document.get())[name])
            << name.toStdString() << " of " << document->name().toStdString() << what;
  }

  Workbench m_bench;
  std::map<const Document*, std::map<QByteArray, QByteArray>> m_before;

 private:
  static int s_count;
  static char* s_words[2];
  drafton::OffscreenApplication m_application{s_count, s_words};
};

char g_program[] = "test_e2e";
int ValuesPutBack::s_count = 1;
char* ValuesPutBack::s_words[2] = {g_program, nullptr};

TEST_F(ValuesPutBack, WhenTheCommandFails) {
  runTool("Lost");
  ASSERT_TRUE(isImposed(document())) << output().toStdString();
  type(QStringLiteral("nowhere.dxf\n"));
  EXPECT_TRUE(events({QStringLiteral("failed")}).contains(QStringLiteral("failed OpenDocument")));
  expectPutBack();
}

TEST_F(ValuesPutBack, InTheFileThatIsSavedAfterAFailure) {
  runTool("Lost");
  type(QStringLiteral("nowhere.dxf\n"));
  type(QStringLiteral("SaveAs ") + m_bench.drawing() + u'\n');
  // As an independent reader sees it: the next line has the drawing's own values.
  type(QStringLiteral("LINE 0,0 1,1 \nSave\n"));
  const QJsonArray entities = m_bench.entities();
  ASSERT_EQ(entities.size(), 1);
  EXPECT_EQ(entities[0][QStringLiteral("layer")].toString(), QStringLiteral("0"));
  EXPECT_EQ(entities[0][QStringLiteral("color")].toInt(), 256);
}

TEST_F(ValuesPutBack, WhenEverythingIsCancelledBehindAnotherDrawing) {
  Document& tools = document();
  runTool("Line");
  ASSERT_TRUE(isImposed(tools));
  Document& front = open();
  engine().cancelAll();
  EXPECT_EQ(&document(), &front);
  expectPutBack();
  runTool("Plain");
  EXPECT_EQ(prompt().isEmpty(), false) << "no tool holds on to the guard";
}

TEST_F(ValuesPutBack, WhenAnotherDrawingIsClosedByCommandOrByItsWindow) {
  Document& tools = document();
  for (const bool byCommand : {true, false}) {
    runTool("Line");
    type(QStringLiteral("1,1\n"));
    Document& front = open();
    if (byCommand)
      type(QStringLiteral("CloseDocument\n"));
    else
      engine().documents().close(front);
    ASSERT_EQ(&document(), &tools);
    EXPECT_TRUE(isImposed(tools)) << "the tool goes on";
    type(QStringLiteral("2,2\n"));
    expectPutBack();
  }
}

TEST_F(ValuesPutBack, WhenTheDrawingOfTheToolIsClosedAnotherOneRunsAtOnce) {
  Document& front = open();
  Document& tools = open();
  runTool("Line");
  activate(front);
  engine().documents().close(tools);
  EXPECT_EQ(&document(), &front);
  runTool("Line");
  EXPECT_TRUE(isImposed(front)) << output().toStdString();
  type(QStringLiteral("1,1\n2,2\n"));
  expectPutBack();
}

TEST_F(ValuesPutBack, ThroughRandomDoingsInSeveralDrawings) {
  std::mt19937 random{20261121};
  const auto upTo = [&](std::size_t limit) { return random() % limit; };
  const auto& documents = engine().documents().documents();
  constexpr int kRuns = 400, kSteps = 12, kMost = 4;
  const char* const words[] = {"1,1\n",
                               "2,2\n",
                               "^C",
                               "U\n",
                               "REDO\n",
                               "\n",
                               "nowhere.dxf\n",
                               "CloseDocument\nNo\n",
                               "LINE 0,0 1,1 \n"};
  const char* const tools[] = {"Line", "Text", "Lost", "Plain"};
  for (int run = 0; run < kRuns && !HasFailure(); ++run) {
    std::string done;
    for (int step = 0; step < kSteps; ++step) {
      const std::size_t act = upTo(10);
      if (documents.empty() || (act == 0 && documents.size() < kMost)) {
        open();
        done += " open";
      } else if (act == 1) {
        Document& chosen = *documents[upTo(documents.size())];
        activate(chosen);
        done += " activate " + chosen.name().toStdString();
      } else if (act == 2 && upTo(3) == 0) {
        Document& chosen = *documents[upTo(documents.size())];
        done += " close " + chosen.name().toStdString();
        engine().documents().close(chosen);
      } else if (act == 3 && upTo(3) == 0) {
        engine().cancelAll();
        done += " cancelAll";
      } else if (act < 6) {
        const char* const tool = tools[upTo(std::size(tools))];
        done += std::string(" ") + tool;
        runTool(tool);
      } else {
        const char* const word = words[upTo(std::size(words))];
        done += std::string(" ") + word;
        type(QString::fromLatin1(word));
      }
      engine().run();
    }
    engine().cancelAll();
    expectPutBack(" after" + done);
    console().clear();
  }
}

} // namespace
