#include "catalog/database_impl.h"

#include "catalog/palette_ui_impl.h"
#include "catalog/read_file.h"
#include "catalog/tool.h"
#include "catalog/tool_list_impl.h"
#include "catalog/write_file.h"
#include "host/host_locator.h"
#include "module/owner_link.h"
#include "module/persist_cast.h"
#include "module/string_table.h"
#include "persistence/unread_original.h"

#include <algorithm>
#include <utility>

namespace tc {
namespace {

const OdString& newFileRevision() {
  static const OdString revision = QStringLiteral("8.0");
  return revision;
}

} // namespace

OdTcDatabaseImpl::OdTcDatabaseImpl()
  : m_fileRevision(newFileRevision())
  , m_tools(odrxMake<OdTcToolListImpl>())
  , m_ui(odrxMake<OdTcPaletteUiImpl>()) {
  m_tools->setOwnerQuiet(this);
  m_ui->setOwnerQuiet(this);
}

OdTcDatabaseImpl::~OdTcDatabaseImpl() {
  for (OdTcPersist* object : m_attached) forgetOwner(object, this);
  forgetOwner(m_tools, this);
  forgetOwner(m_ui, this);
}

void OdTcDatabaseImpl::addTool(OdTcTool* tool) {
  m_tools->add(tool);
  notifyAdded(tool);
  setModified();
}

bool OdTcDatabaseImpl::removeTool(const OdString& id) {
  if (!m_tools->remove(id)) return false;
  m_ui->uiProperties()->catalogView()->toolOrder()->removeFirst(id);
  setModified();
  return true;
}

bool OdTcDatabaseImpl::isModified() const {
  for (int i = 0; i < m_tools->count(); ++i)
    if (m_tools->at(i)->isModified()) return true;
  return OdTcCatalogItemImplBase::isModified();
}

void OdTcDatabaseImpl::attachObject(OdTcPersist* object) {
  if (object && object != this) m_attached.emplace_back(object);
}

bool OdTcDatabaseImpl::load(const OdString& path) { return readWith(makePaletteFiler(), path); }

bool OdTcDatabaseImpl::loadForeign(const OdString& path, OdTcForeignContent& content) {
  return readWith(makeForeignPaletteFiler(content), path);
}

bool OdTcDatabaseImpl::readWith(const OdTcFilerPtr& filer, const OdString& path) {
  m_path = path;
  m_stamp.note(path);
  m_unread.note(path, OdString());
  OdRxSystemServices* const services = odrxSystemServices();
  if (services->folderExists(path)) {
    m_unread.note(path, host::translate(QStringLiteral("it is a folder")));
    reportUnreadFile(path, readProblem());
    return false;
  }
  if (!services->fileExists(path)) return false;
  const ReadOutcome outcome = readFile(path, *filer, this, &OdTcFiler::openPalette);
  m_unread.note(path, outcome.problem);
  return outcome.isRead;
}

/// Where one picture cannot be written, hundreds often cannot: the first few show why.
void OdTcDatabaseImpl::tellUnsavedPictures() const {
  constexpr qsizetype kMostTold = 3;
  const qsizetype count = m_unsavedPictures.size();
  for (const OdString& problem : m_unsavedPictures.first(std::min(kMostTold, count)))
    host::print(
        formatText(host::translate(QStringLiteral("\nCannot save the picture: %s")), problem));
  if (count > kMostTold)
    host::print(formatText(host::translate(QStringLiteral("\nPictures not saved in all: %s")),
                           OdString::number(count)));
}

/// Writes the file at the path in force by `write`. Why that failed, if it did, is told on the
/// command line and kept.
bool OdTcDatabaseImpl::writeBy(const std::function<bool()>& write) {
  m_unsavedPictures.clear();
  try {
    m_unread.keepBefore(m_path);
    m_stamp.keepBefore(m_path);
    m_saveProblem = write() ? OdString() : m_path;
  } catch (const OdFileError& error) {
    m_saveProblem = error.description();
  }
  tellUnsavedPictures();
  if (m_saveProblem.isEmpty()) {
    m_unread.noteWritten(m_path);
    return true;
  }
  host::print(
      formatText(host::translate(QStringLiteral("\nCannot save the palette: %s")), m_saveProblem));
  return false;
}

bool OdTcDatabaseImpl::saveAs(const OdString& path) {
  const OdString former = std::exchange(m_path, path);
  const bool isWritten = writeBy([&] {
    return writeFile(path, creationFor(path), *makePaletteFiler(), this, &OdTcFiler::openPalette);
  });
  if (!isWritten) {
    m_path = former;
    return false;
  }
  m_stamp.note(path);
  m_attached = {};
  return true;
}

bool OdTcDatabaseImpl::save() { return !m_path.isEmpty() && saveAs(OdString(m_path)); }

bool OdTcDatabaseImpl::saveAtOnce() {
  if (m_path.isEmpty()) return false;
  const bool isWritten = writeBy([&] {
    return writeBeside(m_path, [&](const OdString& fresh) {
      return writeFile(fresh, Oda::kCreateAlways, *makePaletteFiler(), this,
                       &OdTcFiler::openPalette);
    });
  });
  if (!isWritten) return false;
  m_stamp.note(m_path);
  m_attached = {};
  return true;
}

bool OdTcDatabaseImpl::saveCopy(const OdString& path) {
  return writeCopy(path, [&] {
    return writeFile(path, Oda::kCreateAlways, *makePaletteFiler(), this, &OdTcFiler::openPalette);
  });
}

bool OdTcDatabaseImpl::saveExchange(const OdString& path, const OdString& imageFolder) {
  return writeCopy(path, [&] {
    return writeBeside(path, [&](const OdString& fresh) {
      return writeFile(fresh, Oda::kCreateAlways, *makeExchangeFiler(imageFolder), this,
                       &OdTcFiler::openPalette);
    });
  });
}

bool OdTcDatabaseImpl::writeCopy(const OdString& path, const std::function<bool()>& write) {
  // Pictures are written beside the path that is in force. A failed copy leaves its path behind,
  // as it always did.
  const OdString former = std::exchange(m_path, path);
  if (!writeBy(write)) return false;
  m_path = former;
  return true;
}

void OdTcDatabaseImpl::writeFields(OdTcFiler* filer) {
  OdTcCatalogItemImplBase::writeFields(filer);
  filer->writeAttribute(QStringLiteral("FileRevision"), m_fileRevision);
  filer->writeObject(m_tools);
  filer->writeObject(m_ui);
}

bool OdTcDatabaseImpl::readField(const OdString& name, const OdVariant& value) {
  if (name == QLatin1String("idValue") && !value.toString().isEmpty()) m_hasStoredId = true;
  if (OdTcCatalogItemImplBase::readField(name, value)) return true;
  if (name == QLatin1String("FileRevision"))
    m_fileRevision = value.toString();
  else if (name == QLatin1String("Tools"))
    m_tools = value.objectAs<OdTcToolList>();
  else if (name == QLatin1String("PaletteUI"))
    m_ui = persistCast<OdTcPaletteUi>(value);
  else if (name == QLatin1String("PaletteStyle"))
    m_paletteStyle = value.toInt32(); // foreign files have it; nothing writes it
  else
    // What stands beside the content of a foreign palette comes without the element around it: its
    // display settings arrive here one by one.
    return m_ui->readField(name, value);
  return true;
}

OdTcCatalogItemPtr OdTcDatabaseImpl::clone(bool) const {
  const auto copy = odrxMake<OdTcDatabaseImpl>();
  copyItemTo(*copy);
  copy->m_path = m_path;
  copy->m_fileRevision = m_fileRevision;
  copy->m_tools = m_tools->clone();
  copy->m_tools->setOwnerQuiet(copy);
  copy->m_ui.attach(static_cast<OdTcPaletteUi*>(m_ui->clone().detach()));
  copy->m_ui->setOwnerQuiet(copy);
  return copy;
}

} // namespace tc
