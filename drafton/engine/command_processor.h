// The command line of one document: typed keys in, running commands, prompts out.
#pragma once

#include "drafton/engine/command_registry.h"
#include "drafton/engine/key_queue.h"
#include "drawing/variable_recording.h"
#include "host/document.h"
#include "host/user_input.h"

#include <functional>
#include <memory>
#include <vector>

class HostEditorReactor;

namespace drafton {

/// Takes up keys, runs commands and feeds them.
///
/// Drafton's own commands are coroutines: one that waits for input is suspended, and nothing of it
/// is on the stack. Commands of modules are plain functions that ask for input synchronously; while
/// one waits, keys are taken up from within it. A command can run another one inside it. Of nested
/// commands only the innermost can wait, all others stand on the stack.
class CommandProcessor : public IHostCommandInput, public IHostUserInput {
 public:
  /// Without a document only commands that need none can run.
  CommandProcessor(Engine& engine, Document* document);
  CommandProcessor(const CommandProcessor&) = delete;
  CommandProcessor& operator=(const CommandProcessor&) = delete;
  ~CommandProcessor();

  void sendText(const OdString& text) override;
  /// Types the macro of a menu, as sendText() does, for the user.
  void typeMacro(const OdString& macro) { send(macro, KeyQueue::Giver::kUser); }
  Result getString(unsigned flags, const OdString& prompt, OdString& out) override;

  /// Takes up one key: from sent text, then from the keyboard. False if there is none.
  bool step();
  /// As `^C` by the user: ends all running commands and forgets the rest of what was sent.
  void cancel();
  /// Takes up the cancels that stand in front of the sent text. A lock on the document needs this:
  /// what is changed under it must not belong to a command that is about to be taken back.
  void takePendingCancels();
  /// Runs a command to its end, inside the running one if there is one. False if there is no such
  /// command, or it was cancelled or failed: then only what it changed itself is taken back.
  bool run(const OdString& name, IMemParam* parameters);
  /// A click into the drawing: answers a prompt for a point, distance or angle. False if none
  /// waits.
  bool givePoint(const OdGePoint3d& point);
  /// A text that was edited in the drawing: answers a prompt for a text. False if none waits.
  bool giveText(const OdString& text);
  /// Where a click would go now; none while the cursor is elsewhere. A number that is typed at a
  /// prompt for a point is a distance towards it.
  void setCursor(const std::optional<OdGePoint3d>& cursor) { m_cursor = cursor; }
  const std::optional<OdGePoint3d>& cursor() const { return m_cursor; }

  bool isBusy() const { return !m_frames.empty(); }
  /// True if the innermost command waits for input.
  bool isWaiting() const { return request() != nullptr; }
  /// The names of the running commands, outermost first.
  QStringList runningCommands() const;
  /// True while nothing but a command runs that the user gave, typed or by a menu. What a module
  /// types, what a command runs and what the program's start runs are none.
  bool runsUsersCommand() const;
  /// What is asked now; null if nothing is.
  const InputRequest* request() const;
  /// Takes over the sent text that `other` has not taken up yet.
  void takeTextFrom(CommandProcessor& other);

 private:
  struct Frame;
  enum class Outcome { kEnded, kCancelled, kFailed };

  void send(const OdString& text, KeyQueue::Giver giver);
  std::optional<Key> nextKey(bool& fromKeyboard);
  void handle(const Key& key);
  void addToWord(QChar c);
  bool blankBelongsToWord() const;
  void endWord(bool isUsers);
  void takeCommandWord(const OdString& word, bool isUsers);
  void takeAnswer(const OdString& word);
  void settleAnswer(InputRequest::Outcome outcome);
  void showPrompt(Frame& frame);
  void cancelCommands();
  void dropText();

  bool start(const RegisteredCommandPtr& command, IMemParam* parameters, bool* succeeded,
             bool isUsers);
  void runBody(Frame& frame);
  int runModuleCommand(Frame& frame);
  void resume(Frame& frame, const std::function<void()>& step);
  void finish(Outcome outcome, const OdString& message);
  void openUndoStep(Frame& frame);
  void closeUndoStep(const Frame& frame, Outcome outcome);
  /// Tells the drawing's reactors what an input has changed.
  void deliverChanges() const;
  /// Changes of the drawing's variables are part of a command's step where its own code makes them.
  oddb::VariableRecording recordVariables(bool on) const;
  void tell(const std::function<void(HostEditorReactor&)>& event) const;
  void waitWhile(const std::function<bool()>& pending);
  void trouble(const OdString& text);

  Engine& m_engine;
  Document* m_document;
  KeyQueue m_sent;
  std::optional<OdGePoint3d> m_cursor;
  bool m_paused = false;
  OdString m_word;
  bool m_wordTooLong = false;
  std::vector<std::unique_ptr<Frame>> m_frames; // innermost last
};

} // namespace drafton
