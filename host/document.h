// Documents of the host.
#pragma once

#include "frame/string.h"

class OdDbDatabase;
class IHostUserInput;
class IHostVariables;

/// Accepts typed text.
class IHostCommandInput {
 public:
  /// Queues text on the document's command line, as if it were typed by a macro: `^C` cancels,
  /// `^M`,
  /// ';' and a line break are Enter, a blank ends a word (at a text prompt it does not), `\` pauses
  /// for the user, `_` and `.` before a command name are passed over. Returns at once; the text is
  /// taken up, all pieces as one, when control is back in the host.
  virtual void sendText(const OdString& text) = 0;

 protected:
  ~IHostCommandInput() = default;
};

/// One open drawing.
class IHostDocument {
 public:
  /// The drawing; null while the document is being closed.
  virtual OdDbDatabase* database() = 0;
  /// Null if the document takes no typed text.
  virtual IHostCommandInput* commandInput() = 0;
  /// The input of the command that runs; null if the document has none.
  virtual IHostUserInput* userInput() = 0;
  virtual IHostVariables* variables() = 0;
  /// The text that stands for the document in messages.
  virtual OdString name() const = 0;
  /// The full stored path of its file; empty until it is saved.
  virtual OdString path() const = 0;

 protected:
  ~IHostDocument() = default;
};

/// All open drawings.
class IHostDocumentManager {
 public:
  /// How a document is locked.
  enum LockMode { kWriteLock = 4 };

  /// The active document, or null.
  virtual IHostDocument* curDocument() = 0;
  /// Locks a document for changes outside of a command. `commandName` names the change in the undo
  /// history. False if the document cannot be locked.
  virtual bool lockDocument(IHostDocument* document, int mode, const OdString& commandName,
                            void* reserved, int flag) = 0;
  virtual void unlockDocument(IHostDocument* document) = 0;

 protected:
  ~IHostDocumentManager() = default;
};
