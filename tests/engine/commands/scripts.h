// Runs of commands as tables: what is typed, and what the drawing is then.
#pragma once

#include "engine/commands/block_text.h"
#include "engine/commands/drawing_text.h"

#include <span>

/// One run of one command in a new drawing.
struct Script {
  const char* name;
  /// Words with | between them; each is followed by Enter. An empty word is Enter alone. %FOLDER%
  /// is a folder with the files of ScriptFolder.
  const char16_t* words;
  /// What the drawing is afterwards, with ; between the lines.
  const char16_t* result;
  /// Typed before, in the same way; null for nothing.
  const char16_t* setup = nullptr;
  OdString (*describe)(OdDbDatabase& database) = describeEntities;
};

std::span<const Script> lineScripts();
std::span<const Script> polylineScripts();
std::span<const Script> circleScripts();
std::span<const Script> arcScripts();
std::span<const Script> rectangleScripts();
std::span<const Script> textScripts();
std::span<const Script> attributeScripts();
std::span<const Script> modifyScripts();
std::span<const Script> zoomScripts();
std::span<const Script> setvarScripts();
std::span<const Script> layerScripts();
std::span<const Script> editScripts();
std::span<const Script> joiningScripts();
std::span<const Script> selectionScripts();
std::span<const Script> propertyScripts();
std::span<const Script> shapeScripts();
std::span<const Script> dimensionScripts();
std::span<const Script> hatchScripts();
std::span<const Script> boundaryScripts();
std::span<const Script> blockScripts();
std::span<const Script> referenceScripts();
std::span<const Script> layoutScripts();
std::span<const Script> historyScripts();
std::span<const Script> documentScripts();

/// Those of commands that change the drawing, in one step.
std::vector<Script> drawingScripts();
/// All of the above.
std::vector<Script> allScripts();
