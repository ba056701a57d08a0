#include "drawing/res_buf.h"

#include "drawing/database_data.h"
#include "drawing/dxf/residue.h"
#include "drawing/dxf/text.h"
#include "drawing/xdata.h"

#include <limits>

namespace {

using Tag = OdDbKeptTags::Tag;

constexpr int kApplication = 1001;

/// The kinds of values by the first and the last of their codes.
struct Row {
  enum Kind : std::uint8_t { kText, kBytes, kPoint, kReal, kInt16, kInt32 };
  int first, last;
  Kind kind;
};
constexpr Row kRows[] = {
    {1000, 1003, Row::kText},  {1004, 1004, Row::kBytes}, {1005, 1005, Row::kText},
    {1010, 1013, Row::kPoint}, {1040, 1042, Row::kReal},  {1070, 1070, Row::kInt16},
    {1071, 1071, Row::kInt32},
};

const Row* rowOf(int code) {
  for (const Row& row : kRows)
    if (code >= row.first && code <= row.last) return &row;
  return nullptr;
}

[[noreturn]] void refuse(int code) {
  throw OdError(eInvalidInput,
                QStringLiteral("Extended data cannot have this value of code %1").arg(code));
}

QByteArray realText(double value, int code) {
  if (!std::isfinite(value)) refuse(code);
  char digits[oddxf::kRealDigits];
  const std::string_view text = oddxf::realText(digits, value);
  return {text.data(), static_cast<qsizetype>(text.size())};
}

template <class T>
const T& wanted(const OdResBuf& value) {
  const T* const found = std::get_if<T>(&value.value());
  if (!found) refuse(value.restype());
  return *found;
}

template <class T>
QByteArray wholeNumber(const OdResBuf& value) {
  const std::int64_t number = wanted<std::int64_t>(value);
  if (number < std::numeric_limits<T>::min() || number > std::numeric_limits<T>::max())
    refuse(value.restype());
  return QByteArray::number(static_cast<qint64>(number));
}

void addTags(const OdResBuf& value, std::vector<Tag>& tags) {
  const int code = value.restype();
  const Row* const row = rowOf(code);
  if (!row) refuse(code);
  switch (row->kind) {
  case Row::kText:
    tags.push_back({code, oddb::keptText(oddxf::oneLine(wanted<OdString>(value)))});
    break;
  case Row::kBytes:
    tags.push_back({code, wanted<QByteArray>(value).toHex().toUpper()});
    break;
  case Row::kPoint: {
    const auto& p = wanted<OdGePoint3d>(value);
    const double parts[] = {p.x, p.y, p.z};
    for (int i = 0; i < 3; ++i) tags.push_back({code + 10 * i, realText(parts[i], code)});
    break;
  }
  case Row::kReal:
    tags.push_back({code, realText(wanted<double>(value), code)});
    break;
  case Row::kInt16:
    tags.push_back({code, wholeNumber<std::int16_t>(value)});
    break;
  case Row::kInt32:
    tags.push_back({code, wholeNumber<std::int32_t>(value)});
    break;
  }
}

double numberOf(const Tag& tag) { return tag.value.trimmed().toDouble(); }

/// Builds a chain from its beginning to its end.
class Chain {
 public:
  void add(int code, OdResBuf::Value value) {
    const OdResBufPtr one = OdResBuf::newRb(code, std::move(value));
    if (m_last)
      m_last->setNext(one);
    else
      m_first = one;
    m_last = one;
  }
  const OdResBufPtr& first() const { return m_first; }

 private:
  OdResBufPtr m_first, m_last;
};

} // namespace

OdResBuf::~OdResBuf() {
  // Long chains go one by one, not one within the other.
  OdResBufPtr rest = std::move(m_next);
  while (rest && rest->numRefs() == 1) {
    OdResBufPtr next = std::move(rest->m_next);
    rest = std::move(next);
  }
}

OdResBufPtr OdResBuf::newRb(int resType, Value value) {
  return odrxMake<OdResBuf>(resType, std::move(value));
}

OdResBufPtr OdResBuf::setNext(const OdResBufPtr& next) {
  for (const OdResBuf* at = next.get(); at; at = at->m_next.get())
    if (at == this) throw OdError(eInvalidInput, QStringLiteral("A chain leads back to itself"));
  m_next = next;
  return next;
}

OdResBufPtr OdResBuf::last() {
  OdResBuf* at = this;
  while (at->m_next) at = at->m_next.get();
  return OdResBufPtr(at);
}

OdRxObjectPtr OdResBuf::clone() const {
  Chain chain;
  for (const OdResBuf* at = this; at; at = at->m_next.get()) chain.add(at->m_type, at->m_value);
  return chain.first();
}

OdResBufPtr oddbXData(const OdDbObject& object, const OdString& application) {
  Chain chain;
  if (!object.residue()) return nullptr;
  bool isWanted = application.isEmpty();
  const std::vector<Tag> tags = OdDbKeptTags(object.residue()->xdata).tags;
  for (std::size_t i = 0; i < tags.size(); ++i) {
    const Tag& tag = tags[i];
    const auto text = [&] { return oddb::textOfKept(tag.value, object.database()); };
    if (tag.code == kApplication && !application.isEmpty())
      isWanted = text().trimmed().compare(application, Qt::CaseInsensitive) == 0;
    const Row* const row = rowOf(tag.code);
    if (!isWanted || !row) continue;
    switch (row->kind) {
    case Row::kText:
      chain.add(tag.code, text());
      break;
    case Row::kBytes:
      chain.add(tag.code, QByteArray::fromHex(tag.value));
      break;
    case Row::kPoint: {
      OdGePoint3d p{numberOf(tag), 0, 0};
      if (i + 1 < tags.size() && tags[i + 1].code == tag.code + 10) p.y = numberOf(tags[++i]);
      if (i + 1 < tags.size() && tags[i + 1].code == tag.code + 20) p.z = numberOf(tags[++i]);
      chain.add(tag.code, p);
      break;
    }
    case Row::kReal:
      chain.add(tag.code, numberOf(tag));
      break;
    case Row::kInt16:
    case Row::kInt32:
      chain.add(tag.code, std::int64_t{tag.value.trimmed().toLongLong()});
      break;
    }
  }
  return chain.first();
}

void oddbSetXData(OdDbObject& object, const OdResBuf* chain) {
  if (chain && chain->restype() != kApplication) refuse(chain->restype());
  // All of it is looked at before anything is changed.
  std::vector<std::pair<QByteArray, std::vector<Tag>>> all;
  for (const OdResBuf* at = chain; at; at = at->next().get()) {
    std::vector<Tag> tags;
    addTags(*at, tags);
    if (at->restype() != kApplication) {
      auto& mine = all.back().second;
      mine.insert(mine.end(), tags.begin(), tags.end());
    } else if (tags[0].value.trimmed().isEmpty()) {
      refuse(kApplication);
    } else {
      all.emplace_back(tags[0].value, std::vector<Tag>());
    }
  }
  for (const auto& [name, tags] : all) oddb::setXData(object, name.constData(), tags);
}
