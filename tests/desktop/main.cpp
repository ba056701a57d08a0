#include "drafton/render/text_shapes.h"

#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  drafton::TextShapes::install();
  return RUN_ALL_TESTS();
}
