// Offers of modules on the command line, from the first letter to what is chosen.
#include "drafton/desktop/command_offers.h"

#include "desktop/desktop_fixture.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QImage>

using namespace drafton;

namespace {

using Entry = std::shared_ptr<HostEdCompletion::Entry>;

/// A square of one colour, which counts how often it was asked for.
struct CountedPictogram : HostEdCompletion::Pictogram {
  explicit CountedPictogram(int& times)
    : asked(times) {}
  QImage image(int pixels) override {
    ++asked;
    QImage made(pixels, pixels, QImage::Format_RGB32);
    made.fill(Qt::red);
    return made;
  }
  int& asked;
};

/// With a source of a test's own.
class CommandOffersTest : public DesktopFixture {
 protected:
  CommandOffersTest() {
    // A list stays only before a line that has the keyboard.
    window().commandLine().edit().setFocus();
    QApplication::processEvents();
    desktop().engine().completion().registerSource(
        QStringLiteral("test"), [this](const HostEdCompletion::Callback& callback) {
          ++walks;
          for (int i = 0; i < names.size(); ++i) callback(made(i));
        });
  }
  ~CommandOffersTest() override {
    desktop().engine().completion().registerSource(QStringLiteral("test"), {});
  }

  Entry made(int number) {
    auto entry = std::make_shared<HostEdCompletion::Entry>();
    entry->text = names[number];
    entry->displayText = QLatin1String("TOOL:") + names[number];
    entry->action =
        std::make_shared<HostEdCompletion::CallFunction>([this, number] { chosen << number; });
    entry->pictogram = std::make_shared<CountedPictogram>(pictograms);
    held.push_back(entry);
    return entry;
  }
  QAbstractItemView& list() { return *window().commandLine().findChild<QCompleter*>()->popup(); }
  QStringList shown() {
    QStringList texts;
    if (list().isVisible())
      for (int row = 0; row < list().model()->rowCount(); ++row)
        texts << list().model()->index(row, 0).data().toString();
    return texts;
  }
  /// How many offers somebody still has.
  long stillHeld() const {
    return std::count_if(held.begin(), held.end(),
                         [](const auto& entry) { return !entry.expired(); });
  }
  void clear() {
    list().hide();
    window().commandLine().edit().clear();
    QApplication::processEvents();
  }

  QStringList names;
  QList<int> chosen;
  int walks = 0, pictograms = 0;
  std::vector<std::weak_ptr<HostEdCompletion::Entry>> held;
};

TEST_F(CommandOffersTest, WhatAModuleHasWhenAWordBeginsIsOfferedByItsName) {
  names << QStringLiteral("Zebra crossing");
  type("zeb");
  EXPECT_EQ(shown(), QStringList(QStringLiteral("TOOL:Zebra crossing")));
  QTest::keyClick(&list(), Qt::Key_Down);
  QTest::keyClick(&list(), Qt::Key_Return);
  EXPECT_EQ(chosen, QList<int>{0});
  EXPECT_EQ(window().commandLine().edit().text(), QString());
  names.clear();
  type("zeb");
  EXPECT_FALSE(list().isVisible()) << "the tool has gone";
}

TEST_F(CommandOffersTest, NoneIsTakenThatNobodyHasMarked) {
  names << QStringLiteral("Line of trees");
  type("line");
  ASSERT_GE(shown().size(), 2);
  EXPECT_FALSE(list().currentIndex().isValid());
  QTest::keyClick(&list(), Qt::Key_Return);
  EXPECT_EQ(document().processor().runningCommands(), QStringList{QStringLiteral("LINE")});
  EXPECT_TRUE(chosen.isEmpty());
}

TEST_F(CommandOffersTest, EveryLetterNarrowsThemAndBackspaceBringsThemBack) {
  names << QStringLiteral("Quay") << QStringLiteral("quarry") << QStringLiteral("QUOIN");
  type("q");
  const QStringList all = shown();
  EXPECT_GE(all.size(), 3);
  type("u");
  type("a");
  EXPECT_EQ(shown(), QStringList({QStringLiteral("TOOL:Quay"), QStringLiteral("TOOL:quarry")}));
  QTest::keyClick(&list(), Qt::Key_Backspace);
  EXPECT_EQ(shown().size(), 3);
  QTest::keyClick(&list(), Qt::Key_Backspace);
  EXPECT_EQ(shown(), all);
}

TEST_F(CommandOffersTest, ModulesAreAskedAtTheFirstLetterOnly) {
  names << QStringLiteral("Quay");
  type("q");
  type("u");
  type("a");
  EXPECT_EQ(walks, 1);
  for (const char* const letter : {"x", "y", "z"}) {
    type(letter);
    QApplication::processEvents(); // the list lets go of its offers
  }
  EXPECT_EQ(walks, 1) << "nothing begins so, and nothing that is longer";
  clear();
  type("q");
  EXPECT_EQ(walks, 2);
}

TEST_F(CommandOffersTest, WhatIsTypedAfterALetterThatWasTakenBackIsOfferedAgain) {
  names << QStringLiteral("Quay");
  type("qx");
  EXPECT_FALSE(list().isVisible());
  press(Qt::Key_Backspace);
  EXPECT_EQ(shown().count(QStringLiteral("TOOL:Quay")), 1);
}

TEST_F(CommandOffersTest, TwoOfOneNameEachDoTheirOwn) {
  names << QStringLiteral("Quay") << QStringLiteral("Quay");
  type("qua");
  ASSERT_EQ(shown().size(), 2);
  QTest::keyClick(&list(), Qt::Key_Down);
  QTest::keyClick(&list(), Qt::Key_Down);
  QTest::keyClick(&list(), Qt::Key_Return);
  EXPECT_EQ(chosen, QList<int>{1});
  type("qua");
  QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                    list().visualRect(list().model()->index(0, 0)).center());
  EXPECT_EQ(chosen, (QList<int>{1, 0}));
}

TEST_F(CommandOffersTest, NothingIsHeldOnceTheListIsClosed) {
  names << QStringLiteral("Quay") << QStringLiteral("Quarry");
  type("q");
  EXPECT_EQ(stillHeld(), 2);
  press(Qt::Key_Escape);
  QApplication::processEvents();
  EXPECT_FALSE(list().isVisible());
  EXPECT_EQ(stillHeld(), 0);
  clear();
  type("qu");
  QTest::keyClick(&list(), Qt::Key_Down);
  QTest::keyClick(&list(), Qt::Key_Return);
  QApplication::processEvents();
  EXPECT_EQ(chosen.size(), 1);
  EXPECT_EQ(stillHeld(), 0);
}

TEST_F(CommandOffersTest, PictogramsAreAskedForAsTheyAreSeen) {
  for (int i = 0; i < 1000; ++i) names << QStringLiteral("Quay %1").arg(i);
  type("q");
  QApplication::processEvents();
  list().grab();
  EXPECT_GT(pictograms, 0);
  EXPECT_LT(pictograms, 50);
  const int before = pictograms;
  list().viewport()->repaint();
  EXPECT_EQ(pictograms, before) << "and kept";
}

} // namespace
