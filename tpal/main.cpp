// The catalog manager's tool.
#include "tpal/command.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  QTextStream out(stdout);
  QTextStream err(stderr);
  tpal::Console console{out, err};
  return tpal::runTool(QCoreApplication::arguments().mid(1), console);
}
