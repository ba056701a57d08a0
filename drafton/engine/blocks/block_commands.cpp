#include "drafton/engine/blocks/block_commands.h"

namespace drafton {
namespace {

constexpr NativeCommand kCommands[] = {
    {u"INSERT", kOrdinary, insertBlock},
    {u"-INSERT", kOrdinary, insertBlock},
    {u"InsertBlock", kOrdinary, insertBlockByName},
    {u"BLOCK", kOrdinary, makeBlock},
    {u"-BLOCK", kOrdinary, makeBlock},
    {u"WBLOCK", kOrdinary, writeBlock},
    {u"-WBLOCK", kOrdinary, writeBlock},
    {u"COPYCLIP", kOrdinary, copyToClipboard},
    {u"CUTCLIP", kOrdinary, cutToClipboard},
    {u"PASTECLIP", kOrdinary, pasteFromClipboard},
    {u"XATTACH", kOrdinary, attachReference},
    {u"XREF", kOrdinary, references},
    {u"-XREF", kOrdinary, references},
    {u"INSERTRASTER", kOrdinary, insertRaster},
    {u"LAYOUT", kOrdinary, layout},
    {u"-LAYOUT", kOrdinary, layout},
    {u"MODEL", kOrdinary, modelSpace},
    {u"MVIEW", kOrdinary, makeView},
    {u"VPLAYER", kOrdinary, layersOfViews},
    {u"PAGESETUP", kOrdinary, pageSetup},
};

} // namespace

std::span<const NativeCommand> blockCommands() { return kCommands; }

} // namespace drafton
