#include "drafton/desktop/exchange.h"

#include "frame/file_path.h"

#include <QClipboard>
#include <QDrag>
#include <QDropEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QPixmap>
#include <QPointer>
#include <QUrl>
#include <QWidget>

namespace drafton {
namespace {

struct Effect {
  HostDropEffect effect;
  Qt::DropAction action;
};
constexpr Effect kEffects[] = {
    {kDropCopy, Qt::CopyAction}, {kDropMove, Qt::MoveAction}, {kDropLink, Qt::LinkAction}};

Qt::DropActions actionsOf(unsigned effects) {
  Qt::DropActions actions;
  for (const Effect& row : kEffects)
    if (effects & row.effect) actions |= row.action;
  return actions;
}

unsigned effectsOf(Qt::DropActions actions) {
  unsigned effects = 0;
  for (const Effect& row : kEffects)
    if (actions & row.action) effects |= row.effect;
  return effects;
}

class Dragged : public IHostDraggedData {
 public:
  Dragged(const ExchangeFormats& formats, const QMimeData* contents)
    : m_formats(formats)
    , m_contents(contents) {}

  bool has(int format) const override {
    const QString type = m_formats.mimeTypeOf(format);
    return m_contents && !type.isEmpty() && m_contents->hasFormat(type);
  }
  QByteArray data(int format) const override { return m_formats.bytesIn(m_contents, format); }
  OdString text() const override { return m_contents ? m_contents->text() : OdString(); }
  QStringList files() const override {
    QStringList files;
    if (m_contents)
      for (const QUrl& url : m_contents->urls())
        if (url.isLocalFile()) files << odpath::fromPlatform(url.toLocalFile());
    return files;
  }

 private:
  const ExchangeFormats& m_formats;
  const QMimeData* m_contents;
};

/// Stands before a window and asks its target. Belongs to the window.
class DropFilter : public QObject {
 public:
  DropFilter(QWidget& window, IHostDropTarget& target, std::shared_ptr<ExchangeFormats> formats)
    : QObject(&window)
    , m_target(target)
    , m_formats(std::move(formats)) {
    window.setAcceptDrops(true);
    window.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
      return answer(static_cast<QDropEvent&>(*event), &IHostDropTarget::dragOver);
    case QEvent::Drop:
      return answer(static_cast<QDropEvent&>(*event), &IHostDropTarget::dropped);
    case QEvent::DragLeave:
      m_target.dragLeft();
      return true;
    default:
      return false;
    }
  }

 private:
  using Ask = HostDropEffect (IHostDropTarget::*)(const IHostDraggedData&, const QPoint&, unsigned);

  bool answer(QDropEvent& event, Ask ask) {
    const Dragged dragged(*m_formats, event.mimeData());
    const unsigned allowed = effectsOf(event.possibleActions());
    const auto effect = static_cast<HostDropEffect>(
        (m_target.*ask)(dragged, event.position().toPoint(), allowed) & allowed);
    if (effect == kDropRefused) {
      event.ignore();
      // An entered window that refuses here is asked again where the cursor goes.
      if (event.type() == QEvent::DragEnter) {
        event.setDropAction(Qt::IgnoreAction);
        event.accept();
      }
      return true;
    }
    for (const Effect& row : kEffects)
      if (row.effect & effect) event.setDropAction(row.action);
    event.accept();
    return true;
  }

  IHostDropTarget& m_target;
  std::shared_ptr<ExchangeFormats> m_formats;
};

} // namespace

int ExchangeFormats::numberOf(const OdString& name) {
  if (!m_names.contains(name)) m_names << name;
  return static_cast<int>(m_names.indexOf(name)) + 1;
}

QString ExchangeFormats::mimeTypeOf(int format) const {
  if (format < 1 || format > m_names.size()) return {};
  const QString& name = m_names[format - 1];
  // By this type Qt means the format of that name where the system numbers formats by names.
  return name.contains(u'/')
             ? name
             : QStringLiteral("application/x-qt-windows-mime;value=\"%1\"").arg(name);
}

QByteArray ExchangeFormats::bytesIn(const QMimeData* contents, int format) const {
  const QString type = mimeTypeOf(format);
  return contents && !type.isEmpty() ? contents->data(type) : QByteArray();
}

QByteArray SystemClipboard::data(int format) {
  return m_formats->bytesIn(QGuiApplication::clipboard()->mimeData(), format);
}

void SystemClipboard::setData(int format, const QByteArray& bytes) {
  const QString type = m_formats->mimeTypeOf(format);
  if (type.isEmpty()) return;
  auto* const contents = new QMimeData;
  contents->setData(type, bytes);
  QGuiApplication::clipboard()->setMimeData(contents);
}

void DragDrop::setDropTarget(QWidget& window, IHostDropTarget* target) {
  const QObjectList children = window.children();
  for (QObject* const child : children)
    if (dynamic_cast<DropFilter*>(child)) {
      // It may be its own call that ends it.
      window.removeEventFilter(child);
      child->deleteLater();
    }
  window.setAcceptDrops(target != nullptr);
  if (target) new DropFilter(window, *target, m_formats);
}

std::unique_ptr<QMimeData> DragDrop::packed(const HostDragContents& contents) const {
  auto packed = std::make_unique<QMimeData>();
  for (auto at = contents.data.begin(); at != contents.data.end(); ++at)
    if (const QString type = m_formats->mimeTypeOf(at.key()); !type.isEmpty())
      packed->setData(type, at.value());
  if (!contents.text.isEmpty()) packed->setText(contents.text);
  QList<QUrl> files;
  for (const OdString& file : contents.files)
    files << QUrl::fromLocalFile(odpath::toPlatform(file));
  if (!files.isEmpty()) packed->setUrls(files);
  return packed;
}

HostDropEffect DragDrop::drag(QWidget& source, const HostDragContents& contents,
                              const QImage& picture, unsigned allowed) {
  // Qt keeps the drag for as long as it needs it.
  auto* const drag = new QDrag(&source);
  drag->setMimeData(packed(contents).release());
  if (!picture.isNull()) drag->setPixmap(QPixmap::fromImage(picture));
  const Qt::DropAction done = drag->exec(actionsOf(allowed));
  return static_cast<HostDropEffect>(effectsOf(done) & allowed);
}

} // namespace drafton
