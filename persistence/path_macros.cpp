#include "persistence/path_macros.h"

#include "frame/file_path.h"
#include "frame/system_services.h"
#include "persistence/path_operations.h"
#include "persistence/value_storage.h"

#include <utility>

namespace tc {
namespace {

struct Source {
  const char16_t* macro;
  QStringList (*values)(const OdTcValueStorageImpl& storage);
};
// In ascending order of macro text.
constexpr Source kSources[] = {
    {u"%ShxFolder%", [](const OdTcValueStorageImpl& s) { return splitPathList(s.fontFolders()); }},
    {u"%UserProfileFolder%",
     [](const OdTcValueStorageImpl&) {
       return QStringList(odrxSystemServices()->userProfileFolder());
     }},
    {u"%UserProfileSamplesFolder%",
     [](const OdTcValueStorageImpl& s) { return QStringList(s.toolPaletteFolders()); }},
};

using PathMacros = std::optional<std::vector<OdTcPathMacro>>;

bool g_isHeld = false;
OdString g_file;
std::optional<PathMacros> g_held;

PathMacros macrosOfThisMoment() {
  if (odrxSystemServices()->userProfileFolder().isEmpty()) return std::nullopt;
  const auto storage = odrxMake<OdTcValueStorageImpl>();
  std::vector<OdTcPathMacro> macros;
  for (const Source& source : kSources) {
    QStringList values = source.values(*storage);
    values.removeAll(OdString());
    // Settings come as somebody has typed them.
    for (OdString& value : values) value = odpath::fromPlatform(value);
    macros.push_back({OdString::fromUtf16(source.macro), values});
  }
  return macros;
}

} // namespace

std::optional<std::vector<OdTcPathMacro>> pathMacros() {
  if (!g_isHeld) return macrosOfThisMoment();
  if (!g_held) g_held = macrosOfThisMoment();
  return *g_held;
}

HeldPathMacros::HeldPathMacros(const OdString& file)
  : m_isOutermost(!std::exchange(g_isHeld, true))
  , m_file(file) {
  g_file.swap(m_file);
}

HeldPathMacros::~HeldPathMacros() {
  g_file.swap(m_file);
  if (!m_isOutermost) return;
  g_isHeld = false;
  g_held.reset();
}

const OdString& fileOfPathMacros() { return g_file; }

} // namespace tc
