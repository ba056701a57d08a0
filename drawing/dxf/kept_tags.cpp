#include "drawing/dxf/kept_tags.h"

#include "drawing/dxf/text.h"

#include <algorithm>
#include <cmath>

namespace {
auto withCode(int code) {
  return [code](const OdDbKeptTags::Tag& tag) { return tag.code == code; };
}
} // namespace

OdDbKeptTags::OdDbKeptTags(const QByteArray& lines) {
  const QList<QByteArray> parts = lines.split('\n');
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2)
    tags.push_back({parts[i].trimmed().toInt(), parts[i + 1]});
}

QByteArray OdDbKeptTags::lines() const {
  QByteArray all;
  for (const Tag& tag : tags)
    oddxf::addLines(all, tag.code,
                    {tag.value.constData(), static_cast<std::size_t>(tag.value.size())});
  return all;
}

const QByteArray* OdDbKeptTags::find(int code) const {
  const auto at = std::find_if(tags.begin(), tags.end(), withCode(code));
  return at == tags.end() ? nullptr : &at->value;
}

void OdDbKeptTags::set(int code, const QByteArray& value) {
  const auto at = std::find_if(tags.begin(), tags.end(), withCode(code));
  if (at == tags.end())
    tags.push_back({code, value});
  else
    at->value = value;
}

double OdDbKeptTags::real(int code, double otherwise) const {
  const QByteArray* const text = find(code);
  if (!text) return otherwise;
  bool ok = false;
  const double value = text->trimmed().toDouble(&ok);
  return ok && std::isfinite(value) ? value : otherwise;
}

void OdDbKeptTags::setReal(int code, double value) {
  char digits[oddxf::kRealDigits];
  const std::string_view text = oddxf::realText(digits, value);
  set(code, QByteArray(text.data(), static_cast<qsizetype>(text.size())));
}
