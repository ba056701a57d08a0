// The picture that a drawing carries in its file.
#pragma once

namespace drafton {

class Document;
class Engine;

/// Puts a picture of the model or the layout that is open into the drawing, for those who show
/// files, if the variable RASTERPREVIEW says so and the program can draw. Otherwise the picture
/// that the drawing has stays.
void keepPreview(Engine& engine, Document& document);

} // namespace drafton
