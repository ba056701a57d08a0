#include "drafton/engine/settings_store.h"

#include "drafton/engine/translator.h"

#include <QDir>
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

/// A name with the signs that separate names in the file written as %XX.
OdString escaped(const OdString& name) {
  if (name.isEmpty()) return QStringLiteral("%00");
  OdString result;
  for (const QChar c : name) {
    if (c == u'/' || c == u'\\' || c == u'%')
      result += QStringLiteral("%%1").arg(c.unicode(), 2, 16, QLatin1Char('0')).toUpper();
    else
      result += c;
  }
  return result;
}

OdString unescaped(const OdString& name) {
  if (name == QLatin1String("%00")) return {};
  OdString result = name;
  result.replace(QLatin1String("%2F"), QLatin1String("/"));
  result.replace(QLatin1String("%5C"), QLatin1String("\\"));
  result.replace(QLatin1String("%25"), QLatin1String("%"));
  return result;
}

OdString prefixOf(const SettingsStore::Section& section) {
  OdString prefix;
  for (const OdString& name : section) prefix += escaped(name) + u'/';
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
  const QFileInfo info(path);
  OdString reason = reasonNotToRead(info);
  if (reason.isEmpty()) {
    m_file = std::make_unique<QSettings>(path, QSettings::IniFormat);
    m_file->setFallbacksEnabled(false);
    readFrom(*m_file);
    if (m_file->status() != QSettings::NoError)
      reason = translated(u"it holds lines that are no settings");
    else if (info.exists() && !m_file->isWritable())
      reason = translated(u"it cannot be written");
  }
  if (reason.isEmpty()) return;
  m_file.reset();
  m_problem = translated(u"The settings file %1 cannot be used: %2. Settings of this run are not "
                         u"kept.")
                  .arg(path, reason);
}

SettingsStore::~SettingsStore() { flush(); }

void SettingsStore::readFrom(QSettings& file) {
  for (const OdString& key : file.allKeys()) {
    const QVariant value = file.value(key);
    // A text with commas that somebody typed into the file is read as a list.
    const OdString text = value.typeId() == QMetaType::QStringList
                              ? value.toStringList().join(QStringLiteral(", "))
                              : value.toString();
    m_values[key] = decoded(text);
  }
}

bool SettingsStore::get(const Section& section, const OdString& key, OdVariant& out) const {
  const auto at = m_values.find(prefixOf(section) + escaped(key));
  if (at == m_values.end()) return false;
  out = at->second;
  return true;
}

void SettingsStore::set(const Section& section, const OdString& key, const OdVariant& value) {
  const OdString place = prefixOf(section) + escaped(key);
  if (const auto at = m_values.find(place); at != m_values.end() && at->second == value) return;
  m_values[place] = value;
  if (m_file) m_file->setValue(place, encoded(value));
  changed(section, key);
}

bool SettingsStore::remove(const Section& section, const OdString& key) {
  const OdString place = prefixOf(section) + escaped(key);
  if (m_values.erase(place) == 0) return false;
  // Removing a key takes the keys below it along, which are a section's of the same name here.
  if (m_file) {
    m_file->remove(place);
    for (auto below = m_values.lower_bound(place + u'/');
         below != m_values.end() && below->first.startsWith(place + u'/'); ++below)
      m_file->setValue(below->first, encoded(below->second));
  }
  changed(section, key);
  return true;
}

QStringList SettingsStore::keys(const Section& section) const {
  const OdString prefix = prefixOf(section);
  QStringList result;
  for (auto at = m_values.lower_bound(prefix); at != m_values.end() && at->first.startsWith(prefix);
       ++at) {
    const OdString rest = at->first.mid(prefix.size());
    if (!rest.contains(u'/')) result << unescaped(rest);
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
  for (const OdString& name : section) m_madeSections[prefix += escaped(name) + u'/'] = true;
}

void SettingsStore::changed(const Section& section, const OdString& key) const {
  if (m_listener) m_listener((section + QStringList(key)).join(u'/'));
}

bool SettingsStore::flush() {
  if (!m_file) return m_path.isEmpty();
  m_file->sync();
  if (m_file->status() == QSettings::NoError) return true;
  m_problem = translated(u"The settings file %1 cannot be written.").arg(m_path);
  return false;
}

} // namespace drafton
