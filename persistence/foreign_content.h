// What a palette of another program says besides what the classes of this system take from it.
#pragma once

#include "frame/string.h"

#include <cstdint>
#include <vector>

class TiXmlElement;

namespace tc {

struct OdTcPassedOver;

/// An element without attribute and text, which ends the reading of the one around it.
struct OdTcForeignLoss {
  OdString empty;
  OdString around;
  QStringList behind; ///< what is not read for it
};

/// One tool of such a palette, whether or not an object came of it.
struct OdTcForeignTool {
  OdString name;
  /// The element in the tool's data that no class here has, the one with a macro if there are
  /// several; empty if there is none.
  OdString record;
  /// The macro that stands in that record as text.
  OdString macro;
  /// True if the data hold no foreign record but that, and it nothing but the macro.
  bool isOnlyMacro = false;
  std::vector<OdTcForeignLoss> losses;
  /// Bit n is set if the tool's picture number n is one for dark windows.
  std::uint32_t darkImages = 0;
};

/// Gathered while the file is read, since the document is gone afterwards.
struct OdTcForeignContent {
  /// The element of the document itself.
  OdString root;
  /// The folder of the pictures, as the file names it; null if it names none.
  OdString dependentFilesPath;
  /// In the order of the file.
  std::vector<OdTcForeignTool> tools;
  /// As OdTcForeignTool::darkImages, for the pictures of the palette itself.
  std::uint32_t darkImages = 0;
  /// What was lost outside of the tools.
  std::vector<OdTcForeignLoss> losses;
  /// The tools of lists that another list of the palette takes the place of.
  QStringList earlierTools;
  /// The names of further palettes in the file.
  QStringList otherPalettes;
  /// True if the file says how the tools are sorted.
  bool hasSortType = false;
  /// True if the user was told in a message box that the file holds no palette.
  bool isReported = false;
};

/// The trees that tools of dynamic blocks carry along.
const OdTcPassedOver& treesOfOthers();

/// Looks the palette's element over. It goes no deeper than the records of the tools, so large
/// trees below these cost nothing.
void gatherForeignContent(const TiXmlElement& root, const TiXmlElement& palette,
                          OdTcForeignContent& content);

/// Finds the tool that an element stands in. Elements come in the order of the document, so all of
/// them together cost one walk over the tools.
class OdTcForeignLosses {
 public:
  OdTcForeignLosses(const TiXmlElement& palette, OdTcForeignContent& content);
  /// Notes what stands behind an empty element that has ended the reading.
  void note(const TiXmlElement& empty);

 private:
  std::vector<OdTcForeignLoss>* placeOf(const TiXmlElement& element);

  OdTcForeignContent& m_content;
  const TiXmlElement* m_list;
  const TiXmlElement* m_tool;
  std::size_t m_at = 0;
};

} // namespace tc
