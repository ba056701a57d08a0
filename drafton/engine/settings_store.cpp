#include "drafton/engine/settings_store.h"

#include "drafton/engine/ini_format.h"
#include "drafton/engine/translator.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace drafton {
namespace {

constexpr qint64 kLargestFile = 16 << 20;

/// The kinds of values other than plain text, as they are marked in the file: "int:5".
struct KindMark {
  OdVariant::Type type;
  const char* mark;
};

constexpr KindMark kMarks[] = {
    {OdVariant::kVoid, "none:"},  {OdVariant::kString, "text:"}, {OdVariant::kBool, "bool:"},
    {OdVariant::kUInt8, "byte:"}, {OdVariant::kInt16, "short:"}, {OdVariant::kInt32, "int:"},
    {OdVariant::kInt64, "long:"}, {OdVariant::kDouble, "real:"}, {OdVariant::kWString, "wide:"},
};

const KindMark* markOf(const OdString& text) {
  for (const KindMark& row : kMarks)
    if (text.startsWith(QLatin1String(row.mark))) return &row;
  return nullptr;
}

OdString encoded(const OdVariant& value) {
  const OdString text = value.toString();
  // A text is written as it is, unless it could be taken for a marked value.
  if (value.type() == OdVariant::kString && !markOf(text)) return text;
  for (const KindMark& row : kMarks)
    if (row.type == value.type()) return QLatin1String(row.mark) + text;
  return text;
}

OdVariant decoded(const OdString& stored) {
  const KindMark* const mark = markOf(stored);
  if (!mark) return stored;
  const OdString text = stored.mid(static_cast<qsizetype>(qstrlen(mark->mark)));
  const std::int64_t number = odParseInt(text);
  switch (mark->type) {
  case OdVariant::kBool:
    return number != 0;
  case OdVariant::kUInt8:
    return static_cast<std::uint8_t>(number);
  case OdVariant::kInt16:
    return static_cast<std::int16_t>(number);
  case OdVariant::kInt32:
    return static_cast<std::int32_t>(number);
  case OdVariant::kInt64:
    return number;
  case OdVariant::kDouble:
    return odParseReal(text);
  case OdVariant::kVoid:
    return {};
  default:
    return text;
  }
}

OdString prefixOf(const SettingsStore::Section& section) {
  OdString prefix;
  for (const OdString& name : section) prefix += escapedIniName(name) + u'/';
  return prefix;
}

OdString reasonNotToRead(const QFileInfo& file) {
  if (file.isDir()) return translated(u"it is a folder");
  if (file.exists() && !file.isReadable()) return translated(u"it cannot be read");
  if (file.size() > kLargestFile) return translated(u"it is too large");
  // Made here, since the settings object fails without a word if its folder is missing.
  if (!file.exists() && !QDir().mkpath(file.absolutePath()))
    return translated(u"its folder cannot be made");
  return {};
}

} // namespace

SettingsStore::SettingsStore(const OdString& path)
  : m_path(path) {
  const OdString reason = read();
  m_isWritable = reason.isEmpty();
  if (!m_isWritable) refuse(reason);
}

SettingsStore::~SettingsStore() { flush(); }

void SettingsStore::refuse(const OdString& reason) {
  m_problem = translated(u"The settings file %1 cannot be used: %2. Settings of this run are not "
                         u"kept.")
                  .arg(m_path, reason);
}

/// Reads what can be read; gives the reason not to write the file, if there is one.
OdString SettingsStore::read() {
  const QFileInfo info(m_path);
  const OdString reason = reasonNotToRead(info);
  if (!reason.isEmpty() || !info.exists()) return reason;
  QFile file(m_path);
  if (!file.open(QIODevice::ReadOnly)) return file.errorString();
  QSettings::SettingsMap found;
  const bool isGood = readIni(file, found);
  for (auto at = found.begin(); at != found.end(); ++at)
    m_values[at.key()] = decoded(at.value().toString());
  if (!isGood) return translated(u"it holds lines that are no settings");
  return info.isWritable() ? OdString() : translated(u"it cannot be written");
}

bool SettingsStore::get(const Section& section, const OdString& key, OdVariant& out) const {
  const auto at = m_values.find(prefixOf(section) + escapedIniName(key));
  if (at == m_values.end()) return false;
  out = at->second;
  return true;
}

void SettingsStore::set(const Section& section, const OdString& key, const OdVariant& value) {
  const OdString place = prefixOf(section) + escapedIniName(key);
  if (const auto at = m_values.find(place); at != m_values.end() && at->second == value) return;
  m_values[place] = value;
  m_pending[place] = encoded(value);
  tell(section, key);
}

bool SettingsStore::remove(const Section& section, const OdString& key) {
  const OdString place = prefixOf(section) + escapedIniName(key);
  if (m_values.erase(place) == 0) return false;
  m_pending[place] = std::nullopt;
  tell(section, key);
  return true;
}

QStringList SettingsStore::keys(const Section& section) const {
  const OdString prefix = prefixOf(section);
  QStringList result;
  for (auto at = m_values.lower_bound(prefix); at != m_values.end() && at->first.startsWith(prefix);
       ++at) {
    const OdString rest = at->first.mid(prefix.size());
    if (!rest.contains(u'/')) result << unescapedIniName(rest);
  }
  return result;
}

bool SettingsStore::hasSection(const Section& section) const {
  const OdString prefix = prefixOf(section);
  if (prefix.isEmpty() || m_madeSections.contains(prefix)) return true;
  const auto at = m_values.lower_bound(prefix);
  return at != m_values.end() && at->first.startsWith(prefix);
}

void SettingsStore::makeSection(const Section& section) {
  OdString prefix;
  for (const OdString& name : section) m_madeSections[prefix += escapedIniName(name) + u'/'] = true;
}

void SettingsStore::tell(const Section& section, const OdString& key) const {
  if (m_listener) m_listener((section + QStringList(key)).join(u'/'));
}

bool SettingsStore::flush() {
  if (!m_isWritable || m_pending.empty()) return m_problem.isEmpty();
  // Somebody may have damaged the file meanwhile: it would be replaced by what can be read of it.
  QFile current(m_path);
  QSettings::SettingsMap kept;
  if (current.open(QIODevice::ReadOnly) && !readIni(current, kept)) {
    m_isWritable = false;
    refuse(translated(u"it holds lines that are no settings"));
    return false;
  }
  QSettings file(m_path, iniFormat());
  for (const auto& [place, written] : m_pending) {
    if (written) {
      file.setValue(place, *written);
      continue;
    }
    file.remove(place);
    // That takes the keys of a section of the same name along.
    for (auto below = kept.lowerBound(place + u'/');
         below != kept.end() && below.key().startsWith(place + u'/'); ++below)
      file.setValue(below.key(), below.value());
  }
  file.sync();
  if (file.status() != QSettings::NoError) {
    m_problem = translated(u"The settings file %1 cannot be written.").arg(m_path);
    return false;
  }
  m_pending.clear();
  return true;
}

} // namespace drafton
