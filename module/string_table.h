// The numbered texts of the module.
#pragma once

#include "host/host_locator.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tc {

/// Numbers of the texts that have one.
enum class StringId : int {
  kMustBeDigit = 0,
  kPaletteReadError = 1,
  kNoBlockDefinitions = 2,
  kFileReadError = 3,
  kNoCatalogInFolder = 4,
  kSaveDrawingFirst = 5,
  kLayer = 112,
  kLineType = 113,
  kLinetypeScale = 114,
  kPlotStyle = 115,
  kLineWeight = 116,
  kTransparency = 117,
  kTextStyle = 118,
  kDimensionStyle = 119,
  kGeneral = 120,
  kConfirmRemovePalette = 122,
  kConfirmRemoveTool = 123,
  kIconSizeTip = 125,
  kViewStyleTip = 126,
  kConfirmRemoveCatalog = 127,
  kConfirmRemoveItems = 128,
  kDrawingFilter = 129,
  kPictureFilter = 130,
  kPaletteFilter = 131,
  kFolderHasNoCatalog = 132,
  kMultitoolNotice = 133,
  kMultitoolConverted = 134,
  kUnsupportedNotice = 135,
  kImportCaption = 136,
  kPreviewSizes = 137,
  kToolAlreadyRuns = 138,
  kBlockNotDefined = 139,
  kBlockSourceMissing = 140,
  kActiveViewTip = 141,
  kHelpTip = 143,
};

namespace string_table {

struct Row {
  StringId id;
  std::u16string_view text;
};

/// In ascending order. Two numbers are used by the window without ever having been given a text.
inline constexpr std::array kRows = {
    Row{StringId::kMustBeDigit, u"Value must be an digit."},
    Row{StringId::kPaletteReadError, u"Error while reading tool palette file."},
    Row{StringId::kNoBlockDefinitions, u"The drawing has no block definitions."},
    Row{StringId::kFileReadError, u"Error reading file."},
    Row{StringId::kNoCatalogInFolder, u"Cannot find catalog in the specified folder.\n"},
    Row{StringId::kSaveDrawingFirst, u"Before you create the tool you need to save the drawing.\n"},
    Row{StringId::kLayer, u"General.Layer"},
    Row{StringId::kLineType, u"General.Line type"},
    Row{StringId::kLinetypeScale, u"General.Linetype scale"},
    Row{StringId::kPlotStyle, u"General.Plot style"},
    Row{StringId::kLineWeight, u"General.Line weight"},
    Row{StringId::kTransparency, u"General.Transparency"},
    Row{StringId::kTextStyle, u"General.Text style"},
    Row{StringId::kDimensionStyle, u"General.Dimension style"},
    Row{StringId::kGeneral, u"General"},
    Row{StringId::kConfirmRemovePalette,
        u"Do you want to remove the palette \"%s\"? This action cannot be undone."},
    Row{StringId::kConfirmRemoveTool,
        u"Do you want to remove the tool \"%s\"? This action cannot be undone."},
    Row{StringId::kIconSizeTip, u"Change icon size"},
    Row{StringId::kViewStyleTip, u"Change view style"},
    Row{StringId::kConfirmRemoveCatalog, u""},
    Row{StringId::kConfirmRemoveItems,
        u"Are you sure want to remove selected items? This action cannot be undone."},
    Row{StringId::kDrawingFilter, u"Drawings"},
    Row{StringId::kPictureFilter, u"Pictures"},
    Row{StringId::kPaletteFilter, u"Tool palettes"},
    Row{StringId::kFolderHasNoCatalog, u"Cannot find catalog in the specified folder."},
    Row{StringId::kMultitoolNotice,
        u"The tool palette you're loading contains multitools with pop-up menu\n"
        u"which includes drafting and dimensioning commands.\n"
        u"This version doesn't support multitools,\r\n"
        u" so they will be converted to regular with current tool."},
    Row{StringId::kMultitoolConverted, u"\nMultitool \"%s\" has been converted to regular."},
    Row{StringId::kUnsupportedNotice,
        u"The tool palette you're loading contains unsupported tools.\n"
        u"This version of program doesn't support \"Visual Style, Light, MLeader,Camera,Table,"
        u"Text, Separator\" tools,\n"
        u"so they will be excluded from tool palette."},
    Row{StringId::kImportCaption, u"Tool Palette Import"},
    Row{StringId::kPreviewSizes, u"Small|Normal|Large"},
    Row{StringId::kToolAlreadyRuns,
        u"\nExecution canceled. Tool \"%s\" is already running in document \"%s\""},
    Row{StringId::kBlockNotDefined,
        u"\nDefinition of block \"%s\" is not found in the source file \"%s\""},
    Row{StringId::kBlockSourceMissing,
        u"\nCould not find the original file \"%s\" for block \"%s\""},
    Row{StringId::kActiveViewTip, u"Change active view"},
    Row{StringId::kHelpTip, u""},
};

} // namespace string_table

/// The English text of a number; empty for a number without one.
inline std::u16string_view englishText(StringId id) {
  const auto row = std::find_if(string_table::kRows.begin(), string_table::kRows.end(),
                                [id](const string_table::Row& r) { return r.id == id; });
  return row == string_table::kRows.end() ? std::u16string_view() : row->text;
}

/// The text of a number in the user's language.
inline OdString stringText(StringId id) {
  const std::u16string_view text = englishText(id);
  return text.empty() ? OdString() : host::translate(QStringView(text).toString());
}

/// `text` with each "%s" replaced by the next argument. What stands in an argument is not looked at
/// again; a "%s" without an argument stays.
template <class... Args>
OdString formatText(const OdString& text, const Args&... args) {
  OdString result;
  qsizetype from = 0;
  const auto put = [&](const OdString& argument) {
    const qsizetype at = text.indexOf(QLatin1String("%s"), from);
    if (at < 0) return;
    result += QStringView(text).mid(from, at - from);
    result += argument;
    from = at + 2;
  };
  (put(args), ...);
  result += QStringView(text).mid(from);
  return result;
}

} // namespace tc
