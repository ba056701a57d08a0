// The pages of the manual.
#pragma once

#include "frame/string.h"

#include <QTextBrowser>

namespace drafton {

/// Shows pages of the manual with their pictures, and follows the links between them. A link to
/// what is not in the manual leaves the page as it is.
class ManualBrowser : public QTextBrowser {
 public:
  explicit ManualBrowser(QWidget* parent = nullptr);

  /// Shows a page by its name; false if there is none.
  bool showPage(const OdString& page);
  QVariant loadResource(int type, const QUrl& name) override;

 protected:
  void doSetSource(const QUrl& url, QTextDocument::ResourceType type) override;
};

} // namespace drafton
