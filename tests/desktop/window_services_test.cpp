#include "drafton/desktop/window_services.h"

#include "desktop/window_services_fixture.h"
#include "drafton/program/program_setup.h"
#include "host/icon_service.h"

#include <QLabel>

using namespace drafton;

namespace {

class Listener : public QWidget {
 public:
  using QWidget::QWidget;
  int wanted = 0, heard = 0;
  bool event(QEvent* event) override {
    if (event->type() == wanted && static_cast<HostMessage*>(event)->first == 0 &&
        static_cast<HostMessage*>(event)->second == 0)
      ++heard;
    return QWidget::event(event);
  }
};

TEST_F(WindowServicesTest, MessagesHaveOneNumberANameAndReachAllDescendants) {
  const auto services = windows();
  const int message = services->registeredMessage(QStringLiteral("SettingsChanged"));
  EXPECT_EQ(services->registeredMessage(QStringLiteral("SettingsChanged")), message);
  EXPECT_NE(services->registeredMessage(QStringLiteral("Other")), message);
  QWidget top;
  QWidget middle(&top);
  Listener deep(&middle), own(&top);
  deep.wanted = own.wanted = message;
  services->broadcast(&top, message);
  EXPECT_EQ(deep.heard, 1);
  EXPECT_EQ(own.heard, 1);
}

TEST_F(WindowServicesTest, FiltersAreWrittenAsQtReadsThem) {
  EXPECT_EQ(qtFilter(QStringLiteral("Images|*.png;*.jpg|All|*.*||")),
            QStringLiteral("Images (*.png *.jpg);;All (*.*)"));
  EXPECT_EQ(qtFilter(QString()), QString());
}

TEST_F(WindowServicesTest, IconsComeByTheNamesOfCommands) {
  offerPictures(desktop().engine());
  const auto icons = kvQuery<IHostIconService>(&desktop().engine().services());
  ASSERT_TRUE(icons);
  EXPECT_EQ(icons->icon(QStringLiteral("LINE"), 32).size(), QSize(32, 32));
  EXPECT_TRUE(icons->icon(QStringLiteral("NoSuchThing"), 32).isNull());
}

TEST_F(WindowServicesTest, BehindTheWindowsEndTheyDoNothing) {
  const auto services = windows();
  stop();
  QColor color(Qt::white);
  OdString name;
  EXPECT_EQ(services->mainWindow(), nullptr);
  services->focusDrawing();
  EXPECT_FALSE(services->chooseColor(color));
  EXPECT_TRUE(services->recentColors().empty());
  EXPECT_FALSE(services->choosePlotStyle(name));
  QLabel content;
  EXPECT_FALSE(services->createPane(name, name, &content, nullptr));
}

TEST_F(WindowServicesTest, FocusGoesBackToTheDrawing) {
  QApplication::setActiveWindow(&window());
  window().commandLine().edit().setFocus();
  windows()->focusDrawing();
  EXPECT_EQ(window().focusWidget(), &canvas());
}

} // namespace
