#include "tpal/tool_fixture.h"

namespace {

using Tool = ToolFixture;

TEST_F(Tool, ExplainsItself) {
  EXPECT_EQ(run({QStringLiteral("--help")}), tpal::kOk);
  for (const char* word :
       {"list", "check", "resave", "import", "export", "--json", "--map", "Exit codes"})
    EXPECT_TRUE(out().contains(QLatin1String(word))) << word;
}

TEST_F(Tool, ExplainsOneCommand) {
  for (const QStringList& words : {QStringList{QStringLiteral("check"), QStringLiteral("--help")},
                                   QStringList{QStringLiteral("help"), QStringLiteral("check")}}) {
    EXPECT_EQ(run(words), tpal::kOk);
    EXPECT_TRUE(out().startsWith(
        QStringLiteral("usage: tpal check DIR... [--csv | --json] [--only CODE,...]")))
        << qPrintable(out());
    EXPECT_TRUE(out().contains(QStringLiteral("--ignore")));
    EXPECT_FALSE(out().contains(QStringLiteral("--rebuild")));
  }
}

TEST_F(Tool, TellsItsVersion) {
  EXPECT_EQ(run({QStringLiteral("--version")}), tpal::kOk);
  EXPECT_TRUE(out().startsWith(QStringLiteral("tpal ")));
}

struct WrongUsage {
  QStringList arguments;
  const char* complaint;
};

class ToolUsage : public ToolFixture, public testing::WithParamInterface<WrongUsage> {};

TEST_P(ToolUsage, IsToldWhenItIsWrong) {
  EXPECT_EQ(run(GetParam().arguments), tpal::kUsage);
  EXPECT_TRUE(err().contains(QLatin1String(GetParam().complaint))) << qPrintable(err());
}

INSTANTIATE_TEST_SUITE_P(
    Wrong, ToolUsage,
    testing::Values(
        WrongUsage{{}, "a command is missing"},
        WrongUsage{{QStringLiteral("paint")}, "unknown command paint"},
        WrongUsage{{QStringLiteral("list")}, "a folder is missing"},
        WrongUsage{{QStringLiteral("list"), QStringLiteral("--fast")}, "unknown option --fast"},
        WrongUsage{{QStringLiteral("check"), QStringLiteral("x"), QStringLiteral("--to"),
                    QStringLiteral("y")},
                   "unknown option --to"},
        WrongUsage{{QStringLiteral("resave"), QStringLiteral("x"), QStringLiteral("y")},
                   "one folder only"},
        WrongUsage{{QStringLiteral("resave"), QStringLiteral("x"), QStringLiteral("--to")},
                   "--to needs a folder"},
        WrongUsage{{QStringLiteral("resave"), QStringLiteral("x"), QStringLiteral("--to"), {}},
                   "--to needs a folder"},
        WrongUsage{{QStringLiteral("import"), QStringLiteral("x"), QStringLiteral("--into"), {}},
                   "--into needs a folder"},
        WrongUsage{{QStringLiteral("list"), {}}, "an empty word"},
        WrongUsage{{QStringLiteral("make"), {}, QStringLiteral("P"), QStringLiteral("LINE")},
                   "an empty word"},
        WrongUsage{{QStringLiteral("import"), QStringLiteral("x.xtp")}, "--into is missing"},
        WrongUsage{{QStringLiteral("import"), QStringLiteral("x"), QStringLiteral("--map"),
                    QStringLiteral("old")},
                   "--map needs OLD=NEW"},
        WrongUsage{{QStringLiteral("import"), QStringLiteral("x"), QStringLiteral("--map")},
                   "--map needs OLD=NEW"},
        WrongUsage{{QStringLiteral("relocate"), QStringLiteral("x"), QStringLiteral("--map"),
                    QStringLiteral("P:\\Blocks=")},
                   "--map needs OLD=NEW"},
        WrongUsage{{QStringLiteral("check"), QStringLiteral("x"), QStringLiteral("--only"),
                    QStringLiteral("C101,C999")},
                   "there is no finding \"C999\""},
        WrongUsage{{QStringLiteral("list"), QStringLiteral("x"), QStringLiteral("--csv"),
                    QStringLiteral("--json")},
                   "exclude each other"},
        WrongUsage{{QStringLiteral("resave"), QStringLiteral("x"), QStringLiteral("--wait"),
                    QStringLiteral("-1")},
                   "--wait needs seconds"},
        WrongUsage{{QStringLiteral("export"), QStringLiteral("x"), QStringLiteral("y")},
                   "something is missing"},
        WrongUsage{{QStringLiteral("export"), QStringLiteral("x"), QStringLiteral("y"),
                    QStringLiteral("z.xtp"), QStringLiteral("w")},
                   "something too much"},
        WrongUsage{{QStringLiteral("list"), QStringLiteral("x"), QStringLiteral("--dry-run")},
                   "unknown option --dry-run"}));

} // namespace
