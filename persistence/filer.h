// The one reader and writer of XML in the system.
#pragma once

#include "frame/stream.h"
#include "module/persist.h"
#include "persistence/field_map.h"

namespace tc {

struct OdTcForeignContent;

/// Reads objects from a document and writes them into one. Objects see names and values; the filer
/// owns the document and keeps a cursor: `parent`, to which new children are linked and whose
/// children are walked, and `current`, the element to be read next.
///
/// All writing operations do nothing unless the filer was opened for saving. One filer serves one
/// file and is then dropped.
class OdTcFiler : public OdRxObject {
 public:
  /// Opens a catalog document and reads `root` from it, or writes `root` into a new one. False if
  /// the document cannot be read: see problem(). A failing stream or a field of the wrong class is
  /// such a problem, no exception.
  virtual bool openCatalog(OdStreamBuf* stream, OdTcPersist* root, bool saving) = 0;
  /// The same for a palette document; `root` is an OdTcDatabase, anything else raises
  /// OdError_NotThatKindOfClass. A document without a palette is told to the user in a message box.
  virtual bool openPalette(OdStreamBuf* stream, OdTcPersist* root, bool saving) = 0;

  virtual void pushObject(OdTcPersist* object) = 0;
  /// Takes the innermost object off the stack. With `advance`, the cursor goes on to the sibling
  /// that follows `parent`.
  virtual void popObject(bool advance) = 0;
  /// Reads the current child element into the map and goes on to the next; false at the end, and at
  /// an element with neither attributes nor text nor a class, which therefore ends its parent's
  /// reading.
  virtual bool readElement(OdTcFieldMap& map) = 0;
  /// Reads the current element's attributes or, if it has none, its text.
  virtual bool readAttributes(OdTcFieldMap& map) = 0;
  /// Makes and reads the object of the current element; null if no class has that element.
  virtual OdTcPersistPtr readObject(OdTcPersist* owner) = 0;
  /// The markup that stands in the element of the object that is being read, if the element table
  /// has it read when asked for: the object keeps it for readDeferred(). Empty if its content is to
  /// be read here and now.
  virtual QByteArray takeDeferred() = 0;

  /// Writes the object as a child of `parent`; null is passed over.
  virtual void writeObject(OdTcPersist* object) = 0;
  /// Puts each pair of the map as an attribute on `parent`. Palette documents only.
  virtual void writeAttributes(const OdTcFieldMap& map) = 0;
  virtual void writeAttribute(const OdString& name, const OdVariant& value) = 0;
  /// A new child with one attribute; empty text writes nothing, an object is written as itself.
  virtual void writeElementAttribute(const OdString& element, const OdString& attribute,
                                     const OdVariant& value) = 0;
  /// A new child with one attribute for each pair.
  virtual void writeElementAttributes(const OdString& element, const OdTcFieldMap& map) = 0;
  /// A new child with a text, even an empty one; an object is written as itself.
  virtual void writeElement(const OdString& element, const OdVariant& value,
                            bool cdata = false) = 0;
  /// Prints the document to the stream. Raises OdFileError if the stream cannot take it.
  virtual void flush() = 0;
  virtual bool isConverted() const = 0;

  virtual OdTcPersist* currentObject() const = 0;
  /// Goes on to the next sibling of `current`; false if there is none.
  virtual bool advance() = 0;
  virtual bool atEnd() const = 0;

  /// Why the document could not be read, or could not be read whole, in words for the user; empty
  /// if all is well.
  virtual OdString problem() const = 0;
  /// An empty map that the innermost object on the stack may fill and walk while it is read. One
  /// map for each level of the stack serves the whole file.
  virtual OdTcFieldMap& scratchMap() = 0;
};
using OdTcFilerPtr = OdSmartPtr<OdTcFiler>;

/// A filer for catalog documents.
OdTcFilerPtr makeCatalogFiler();
/// A filer for palette documents.
OdTcFilerPtr makePaletteFiler();
/// A filer for palettes of other programs: in reading it also fills `content`, borrowed until the
/// filer goes, with what the document says besides what the classes take.
OdTcFilerPtr makeForeignPaletteFiler(OdTcForeignContent& content);
/// A filer that writes palettes in the form in which other programs exchange them. `imageFolder` is
/// the name of the folder beside the file that holds the pictures. It reads like the former two.
OdTcFilerPtr makeExchangeFiler(const OdString& imageFolder);

/// Lets the object read its elements from markup that takeDeferred() gave. Nothing is told to the
/// user: what there is to say of it was said when the document was read.
void readDeferred(const QByteArray& markup, OdTcPersist* object);

/// "TRUE" or "FALSE", "true" or "false", "1" or "0".
enum class BoolStyle { kCapitals, kLower, kDigit };
OdString boolText(bool value, BoolStyle style);
/// True for "TRUE" or "1", without regard to case; false for all else.
bool boolFromText(const OdString& text);

} // namespace tc
