#include "drafton/render/text_shapes.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

// Fonts need an application object.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  drafton::TextShapes::install();
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
