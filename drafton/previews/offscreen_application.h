// What programs without windows need of Qt to draw pictures.
#pragma once

#include <QGuiApplication>

namespace drafton {

/// The application object of a program that draws, but shows nothing: fonts without a display.
/// Create one at the start of main().
class OffscreenApplication {
 public:
  OffscreenApplication(int& argc, char** argv);

  /// Lets the calling thread make previews as well, of drawings that no other thread looks at.
  static void prepareThread();

 private:
  /// Before the application, which looks at it.
  struct Environment {
    Environment();
  } m_environment;
  QGuiApplication m_application;
};

} // namespace drafton
