// Dialogs that modules have the window show.
#include "desktop/window_services_fixture.h"
#include "frame/file_path.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

using namespace drafton;

namespace {

/// Acts on the modal dialog that is about to be shown.
template <class Dialog, class Act>
void inDialog(Act act) {
  QTimer::singleShot(0, [act] {
    auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
    if (dialog) {
      act(*dialog);
      return;
    }
    ADD_FAILURE() << "another dialog is shown";
    if (QWidget* const shown = QApplication::activeModalWidget()) shown->close();
  });
}
const auto giveUp = [](QDialog& dialog) { dialog.reject(); };

class ModuleDialogs : public WindowServicesTest {
 protected:
  QTemporaryDir folder;
  /// Types a name into a file dialog.
  auto choosing(const QString& name) {
    return [name](QFileDialog& dialog) {
      dialog.findChild<QLineEdit*>()->setText(name);
      QMetaObject::invokeMethod(&dialog, "accept");
    };
  }
};

TEST_F(ModuleDialogs, AFolderIsChosenAndNoneIsMade) {
  inDialog<QFileDialog>([this](QFileDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Select it"));
    EXPECT_EQ(dialog.fileMode(), QFileDialog::Directory);
    EXPECT_TRUE(dialog.testOption(QFileDialog::ShowDirsOnly));
    EXPECT_TRUE(dialog.testOption(QFileDialog::ReadOnly)) << "no new folders";
    choosing(folder.path())(dialog);
  });
  EXPECT_EQ(windows()->chooseFolder(QStringLiteral("Select it")),
            odpath::fromPlatform(folder.path()));
  inDialog<QFileDialog>([this](QFileDialog& dialog) {
    EXPECT_EQ(dialog.directory().absolutePath(), folder.path()) << "where it was last";
    giveUp(dialog);
  });
  EXPECT_EQ(windows()->chooseFolder(QStringLiteral("Select it")), std::nullopt);
}

TEST_F(ModuleDialogs, FilesAreChosenToReadAndToWrite) {
  QFile file(folder.filePath(QStringLiteral("in.xtp")));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.close();
  const OdString kinds = QStringLiteral("Palettes|*.xtp||");
  inDialog<QFileDialog>([&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.nameFilters(), QStringList{QStringLiteral("Palettes (*.xtp)")});
    choosing(file.fileName())(dialog);
  });
  EXPECT_EQ(windows()->chooseFileToOpen(QStringLiteral("Read"), kinds),
            odpath::fromPlatform(file.fileName()));
  inDialog<QFileDialog>([&](QFileDialog& dialog) {
    EXPECT_TRUE(dialog.findChild<QLineEdit*>()->text().contains(QStringLiteral("Doors")));
    choosing(folder.filePath(QStringLiteral("out")))(dialog);
  });
  EXPECT_EQ(windows()->chooseFileToSave(QStringLiteral("Write"), kinds, QStringLiteral("Doors"),
                                        QStringLiteral("xtp")),
            odpath::fromPlatform(folder.filePath(QStringLiteral("out.xtp"))));
  inDialog<QFileDialog>(giveUp);
  EXPECT_EQ(windows()->chooseFileToOpen(QStringLiteral("Read"), kinds), std::nullopt);
}

TEST_F(ModuleDialogs, QuestionsAreAnswered) {
  for (const auto button : {QMessageBox::Ok, QMessageBox::Cancel}) {
    inDialog<QMessageBox>([button](QMessageBox& box) {
      EXPECT_EQ(box.text(), QStringLiteral("Remove it?"));
      box.button(button)->click();
    });
    EXPECT_EQ(windows()->confirm(QStringLiteral("Remove it?"), QStringLiteral("Tools")),
              button == QMessageBox::Ok);
  }
}

TEST_F(ModuleDialogs, AMessageWithACheckBoxIsShownUntilItIsTicked) {
  const auto messages = kvQuery<IHostMessages>(&desktop().engine().services());
  const auto show = [&] {
    return messages->messageBoxWithCheckBox(QStringLiteral("Module\\It"), QStringLiteral("text"),
                                            QStringLiteral("caption"), 0);
  };
  inDialog<QMessageBox>([](QMessageBox& box) { box.accept(); });
  EXPECT_FALSE(show());
  inDialog<QMessageBox>([](QMessageBox& box) {
    EXPECT_EQ(box.text(), QStringLiteral("text"));
    box.checkBox()->setChecked(true);
    box.accept();
  });
  EXPECT_TRUE(show());
  EXPECT_TRUE(show()) << "without a box";
}

TEST_F(ModuleDialogs, ChosenColoursAreTheRecentOnes) {
  const auto choose = [&](const QColor& wanted) {
    inDialog<QColorDialog>([wanted](QColorDialog& dialog) {
      dialog.setCurrentColor(wanted);
      dialog.accept();
    });
    QColor color(Qt::white);
    EXPECT_TRUE(windows()->chooseColor(color));
    EXPECT_EQ(color, wanted);
  };
  EXPECT_TRUE(windows()->recentColors().empty());
  choose(QColor(1, 2, 3));
  choose(QColor(4, 5, 6));
  choose(QColor(1, 2, 3));
  EXPECT_EQ(windows()->recentColors(), (std::vector<QColor>{{1, 2, 3}, {4, 5, 6}}));
  inDialog<QColorDialog>([](QColorDialog& dialog) {
    EXPECT_EQ(QColorDialog::customColor(0), QColor(1, 2, 3));
    EXPECT_EQ(QColorDialog::customColor(1), QColor(4, 5, 6));
    giveUp(dialog);
  });
  QColor color(Qt::white);
  EXPECT_FALSE(windows()->chooseColor(color));
  EXPECT_EQ(color, QColor(Qt::white));
  for (int i = 0; i < 9; ++i) choose(QColor(100, 0, i));
  EXPECT_EQ(windows()->recentColors().size(), 8u);
  EXPECT_EQ(windows()->recentColors().front(), QColor(100, 0, 8));
  desktop().setSetting("Color1", OdString(QStringLiteral("no colour")));
  EXPECT_EQ(windows()->recentColors().size(), 7u);
}

TEST_F(ModuleDialogs, APlotStyleIsChosenByName) {
  OdString name = QStringLiteral("Normal");
  inDialog<QInputDialog>([](QInputDialog& dialog) {
    EXPECT_EQ(dialog.textValue(), QStringLiteral("Normal"));
    dialog.accept();
  });
  EXPECT_TRUE(windows()->choosePlotStyle(name));
  EXPECT_EQ(name, QStringLiteral("Normal"));
  inDialog<QInputDialog>(giveUp);
  EXPECT_FALSE(windows()->choosePlotStyle(name));
  desktop().engine().documents().close(document());
  EXPECT_FALSE(windows()->choosePlotStyle(name)) << "without a drawing";
}

} // namespace
