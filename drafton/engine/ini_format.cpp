#include "drafton/engine/ini_format.h"

#include <QIODevice>
#include <QStringDecoder>

namespace drafton {
namespace {

constexpr QStringView kNameSigns = u"/\\%=[];#\"";
const OdString kGeneral = QStringLiteral("General");

OdString percent(QChar c) {
  return QStringLiteral("%%1").arg(c.unicode(), 2, 16, QLatin1Char('0')).toUpper();
}

/// The character that `%XX` at `i` stands for; none if it is no such sign.
std::optional<QChar> fromPercent(const OdString& text, qsizetype i) {
  if (text[i] != u'%' || i + 2 >= text.size()) return std::nullopt;
  bool isHex = false;
  const ushort code = QStringView(text).mid(i + 1, 2).toUShort(&isHex, 16);
  return isHex ? std::optional(QChar(code)) : std::nullopt;
}

bool isLineEnd(QChar c) { return c == u'\n' || c == u'\r' || c == u'\0'; }

OdString writtenValue(const OdString& value) {
  OdString text;
  for (qsizetype i = 0; i < value.size(); ++i) {
    const std::optional<QChar> looksLike = fromPercent(value, i);
    const bool isAmbiguous = looksLike && (isLineEnd(*looksLike) || *looksLike == u'%');
    text += isLineEnd(value[i]) || isAmbiguous ? percent(value[i]) : OdString(value[i]);
  }
  const bool needsQuotes = text != text.trimmed() || text.startsWith(u'"');
  return needsQuotes ? u'"' + text + u'"' : text;
}

OdString readValue(QStringView written) {
  OdString text = written.trimmed().toString();
  if (text.size() >= 2 && text.startsWith(u'"') && text.endsWith(u'"'))
    text = text.mid(1, text.size() - 2);
  OdString value;
  for (qsizetype i = 0; i < text.size(); ++i) {
    const std::optional<QChar> sign = fromPercent(text, i);
    if (sign && (isLineEnd(*sign) || *sign == u'%')) {
      value += *sign;
      i += 2;
    } else {
      value += text[i];
    }
  }
  return value;
}

/// Takes one line; false if it is no setting.
bool readLine(QStringView line, OdString& section, QSettings::SettingsMap& map) {
  line = line.trimmed();
  if (line.isEmpty() || line.startsWith(u';') || line.startsWith(u'#')) return true;
  if (line.startsWith(u'[')) {
    if (!line.endsWith(u']')) return false;
    section = line.mid(1, line.size() - 2).trimmed().toString();
    return !section.isEmpty();
  }
  const qsizetype equals = line.indexOf(u'=');
  const OdString key = line.left(std::max<qsizetype>(equals, 0)).trimmed().toString();
  if (key.isEmpty()) return false;
  map.insert(section == kGeneral ? key : section + u'/' + key, readValue(line.mid(equals + 1)));
  return true;
}

} // namespace

bool readIni(QIODevice& device, QSettings::SettingsMap& map) {
  QStringDecoder decoder(QStringDecoder::Utf8);
  const OdString text = decoder.decode(device.readAll());
  bool isGood = !decoder.hasError() && !text.contains(u'\0');
  OdString section = kGeneral;
  for (const QStringView line : QStringView(text).split(u'\n'))
    if (!readLine(line, section, map)) isGood = false;
  return isGood;
}

bool writeIni(QIODevice& device, const QSettings::SettingsMap& map) {
  QMap<OdString, OdString> sections;
  for (auto at = map.begin(); at != map.end(); ++at) {
    const qsizetype slash = at.key().lastIndexOf(u'/');
    const OdString section = slash < 0 ? kGeneral : at.key().left(slash);
    sections[section] +=
        at.key().mid(slash + 1) + u'=' + writtenValue(at.value().toString()) + u'\n';
  }
  OdString text;
  for (auto at = sections.begin(); at != sections.end(); ++at)
    text += (text.isEmpty() ? QStringLiteral("[%1]\n") : QStringLiteral("\n[%1]\n")).arg(at.key()) +
            at.value();
  const QByteArray bytes = text.toUtf8();
  return device.write(bytes) == bytes.size();
}

QSettings::Format iniFormat() {
  static const QSettings::Format format =
      QSettings::registerFormat(QStringLiteral("ini"), readIni, writeIni, Qt::CaseSensitive);
  return format;
}

OdString escapedIniName(const OdString& name) {
  if (name.isEmpty()) return QStringLiteral("%00");
  OdString result;
  for (qsizetype i = 0; i < name.size(); ++i) {
    const QChar c = name[i];
    const bool isAtEnd = i == 0 || i + 1 == name.size();
    const bool isSpecial = kNameSigns.contains(c) || c < u' ' || (isAtEnd && c == u' ');
    result += isSpecial ? percent(c) : OdString(c);
  }
  // A section of that name would be taken for the keys that have none.
  return result == kGeneral ? QStringLiteral("%47eneral") : result;
}

OdString unescapedIniName(const OdString& name) {
  if (name == QLatin1String("%00")) return {};
  OdString result;
  for (qsizetype i = 0; i < name.size(); ++i) {
    const std::optional<QChar> sign = fromPercent(name, i);
    result += sign.value_or(name[i]);
    if (sign) i += 2;
  }
  return result;
}

} // namespace drafton
