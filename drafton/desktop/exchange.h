// What is handed to other programs and back: the clipboard, and drag and drop.
#pragma once

#include "host/clipboard.h"
#include "host/drag_drop.h"

#include <QStringList>

#include <memory>

class QMimeData;

namespace drafton {

/// The numbers of formats, and what Qt calls them.
class ExchangeFormats {
 public:
  /// The number of a name, from 1; the same name always has the same.
  int numberOf(const OdString& name);
  /// Empty for a number that was never given.
  QString mimeTypeOf(int format) const;
  /// Null bytes if the contents lack the format.
  QByteArray bytesIn(const QMimeData* contents, int format) const;

 private:
  QStringList m_names;
};

/// The system's clipboard.
class SystemClipboard : public CKVUnknownImpl<IHostClipboard> {
 public:
  explicit SystemClipboard(std::shared_ptr<ExchangeFormats> formats)
    : m_formats(std::move(formats)) {}

  int registerFormat(const OdString& name) override { return m_formats->numberOf(name); }
  QByteArray data(int format) override;
  void setData(int format, const QByteArray& bytes) override;

 private:
  std::shared_ptr<ExchangeFormats> m_formats;
};

class DragDrop : public CKVUnknownImpl<IHostDragDrop> {
 public:
  explicit DragDrop(std::shared_ptr<ExchangeFormats> formats)
    : m_formats(std::move(formats)) {}

  void setDropTarget(QWidget& window, IHostDropTarget* target) override;
  HostDropEffect drag(QWidget& source, const HostDragContents& contents, const QImage& picture,
                      unsigned allowed) override;
  /// The contents as a drag of Qt carries them.
  std::unique_ptr<QMimeData> packed(const HostDragContents& contents) const;

 private:
  std::shared_ptr<ExchangeFormats> m_formats;
};

} // namespace drafton
