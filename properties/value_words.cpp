#include "properties/value_words.h"

namespace tc {
namespace {

struct Word {
  QStringView written, meant;
};

constexpr Word kWords[] = {
    {kByLayer, kByLayer},    {kByBlock, kByBlock},    {kByDefault, kByDefault},
    {u"VonLayer", kByLayer}, {u"VonBlock", kByBlock}, {u"DuCalque", kByLayer},
    {u"DuBloc", kByBlock},   {u"PorCapa", kByLayer},  {u"PorBloque", kByBlock},
    {u"DaLayer", kByLayer},  {u"DaBlocco", kByBlock}, {u"PorCamada", kByLayer},
    {u"PorBloco", kByBlock}, {u"ПоСлою", kByLayer},   {u"ПоБлоку", kByBlock},
};

} // namespace

QStringView storedWord(QStringView text) {
  const QStringView trimmed = text.trimmed();
  for (const Word& word : kWords)
    if (trimmed.compare(word.written, Qt::CaseInsensitive) == 0) return word.meant;
  return {};
}

} // namespace tc
