#include "drafton/engine/command_processor.h"

#include "drafton/engine/engine.h"
#include "drafton/engine/mem_param.h"

#include <algorithm>

namespace drafton {
namespace {

/// A typed word beyond this is refused, so that a text without end costs no memory.
constexpr qsizetype kLongestWord = 1 << 20;
constexpr std::size_t kDeepestNesting = 50;

/// The document of one run of a module's command.
class RunContext : public CKVUnknownImpl<IRunContext> {
 public:
  explicit RunContext(IHostDocument* document)
    : m_document(document) {}
  IHostDocument* document() override { return m_document; }

 private:
  IHostDocument* m_document;
};

/// Commands with such names are typed by modules, not by people.
bool isHidden(const OdString& name) { return name.startsWith(QLatin1String("__")); }

} // namespace

/// One running command. The task stands last: it dies first, and what it uses lives on.
struct CommandProcessor::Frame {
  RegisteredCommandPtr command;
  KVPtr<IMemParam> parameters;
  CommandInput input;
  std::optional<CommandContext> context;
  bool isUsers = false;
  bool isRunning = false; ///< its code is on the stack, so it cannot be destroyed
  bool isCancelled = false;
  bool hasUndoStep = false;
  bool wasModified = false;         ///< the drawing, before the step
  std::optional<OdDbUndoMark> mark; ///< where it began in the step of a command around it
  bool isAnswered = false;          ///< the text that a module's command waited for is there
  bool* succeeded = nullptr;
  Task<> task;
};

CommandProcessor::CommandProcessor(Engine& engine, Document* document)
  : m_engine(engine)
  , m_document(document) {}

CommandProcessor::~CommandProcessor() {
  while (!m_frames.empty()) m_frames.pop_back();
}

void CommandProcessor::sendText(const OdString& text) { send(text, KeyQueue::Giver::kProgram); }

void CommandProcessor::send(const OdString& text, KeyQueue::Giver giver) {
  // The rest of a macro that waits for the user would otherwise stand before the cancel for ever.
  if (m_paused && text.startsWith(QLatin1String("^C"), Qt::CaseInsensitive)) {
    m_sent.clear();
    m_paused = false;
  }
  m_sent.append(text, KeyQueue::Meaning::kMacro, giver);
  m_engine.textQueued();
}

void CommandProcessor::takeTextFrom(CommandProcessor& other) { m_sent.takeAll(other.m_sent); }

QStringList CommandProcessor::runningCommands() const {
  QStringList names;
  for (const auto& frame : m_frames) names << frame->command->name;
  return names;
}

bool CommandProcessor::runsUsersCommand() const {
  return m_frames.size() == 1 && m_frames.front()->isUsers;
}

const InputRequest* CommandProcessor::request() const {
  if (m_frames.empty() || m_frames.back()->isAnswered) return nullptr;
  const std::optional<InputRequest>& request = m_frames.back()->input.m_request;
  return request ? &*request : nullptr;
}

// --- keys

std::optional<Key> CommandProcessor::nextKey(bool& fromKeyboard) {
  fromKeyboard = false;
  while (!m_paused) {
    const std::optional<Key> key = m_sent.take();
    if (!key) break;
    if (key->kind != Key::Kind::kPause) return key;
    m_paused = isWaiting();
  }
  fromKeyboard = true;
  return m_engine.keyboard().take();
}

bool CommandProcessor::step() {
  bool fromKeyboard = false;
  const std::optional<Key> key = nextKey(fromKeyboard);
  if (!key) return false;
  // The user's cancel ends the macro that drives the command as well.
  if (fromKeyboard && key->kind == Key::Kind::kCancel) m_sent.clear();
  handle(*key);
  deliverChanges();
  return true;
}

void CommandProcessor::handle(const Key& key) {
  switch (key.kind) {
  case Key::Kind::kChar:
    addToWord(key.character);
    break;
  case Key::Kind::kBlank:
    if (blankBelongsToWord())
      addToWord(u' ');
    else
      endWord(key.isUsers);
    break;
  case Key::Kind::kEnter:
    endWord(key.isUsers);
    break;
  case Key::Kind::kCancel:
    cancelCommands();
    break;
  case Key::Kind::kPause:
    break;
  }
}

void CommandProcessor::takePendingCancels() {
  if (!m_frames.empty() && m_frames.back()->isRunning && !isWaiting()) return;
  while (!m_paused && m_sent.startsWithCancel()) handle(*m_sent.take());
}

void CommandProcessor::addToWord(QChar c) {
  if (m_word.size() < kLongestWord)
    m_word += c;
  else
    m_wordTooLong = true;
}

bool CommandProcessor::blankBelongsToWord() const {
  const InputRequest* const asked = request();
  if (!asked) return false;
  if (asked->takesBlanks()) return true;
  return asked->takesQuotes() && m_word.startsWith(u'"') &&
         (m_word.size() == 1 || !m_word.endsWith(u'"'));
}

void CommandProcessor::endWord(bool isUsers) {
  const OdString word = std::exchange(m_word, {});
  if (std::exchange(m_wordTooLong, false)) {
    const OdString text =
        translated(u"The text is longer than %1 characters and is not taken.").arg(kLongestWord);
    if (m_frames.empty()) return trouble(text);
    m_engine.print(text);
    return showPrompt(*m_frames.back());
  }
  if (m_frames.empty())
    takeCommandWord(word, isUsers);
  else if (isWaiting())
    takeAnswer(word);
}

void CommandProcessor::takeCommandWord(const OdString& word, bool isUsers) {
  // Enter alone types nothing; a window gives it the meaning of repeating the last command.
  if (word.isEmpty()) return;
  if (!isHidden(word)) {
    m_engine.console().prompt(translated(u"Command: "));
    m_engine.console().echo(word);
  }
  KVPtr<IMemParam> parameters;
  RegisteredCommandPtr command = m_engine.commands().findTyped(word);
  if (OdVariant value; !command && m_document && m_document->variables()->get(word, value)) {
    command = m_engine.commands().find(QStringLiteral("SETVAR"));
    parameters = kvMake<MemParam>();
    parameters->setValue(QStringLiteral("name"), word.toUpper());
  }
  if (!command) {
    trouble(translated(u"Unknown command \"%1\".").arg(word.left(60)));
    // A module that has typed it waits for an end.
    if (m_frames.empty()) tell([&](HostEditorReactor& r) { r.commandFailed(word); });
    return;
  }
  start(command, parameters.get(), nullptr, isUsers);
}

// --- answers

void CommandProcessor::takeAnswer(const OdString& word) {
  InputRequest& asked = *m_frames.back()->input.m_request;
  if (!asked.shown().isEmpty()) m_engine.console().echo(word);
  const PointOrigins origins =
      m_document ? PointOrigins{m_document->lastPoint(), {}, m_document->elevation(), m_cursor}
                 : PointOrigins();
  settleAnswer(asked.accept(word, origins));
}

bool CommandProcessor::givePoint(const OdGePoint3d& point) {
  if (!isWaiting()) return false;
  InputRequest& asked = *m_frames.back()->input.m_request;
  if (asked.kind() == InputRequest::Kind::kPlainText) return false;
  m_word.clear();
  settleAnswer(asked.acceptPoint(point));
  deliverChanges();
  return true;
}

bool CommandProcessor::giveText(const OdString& text) {
  if (!isWaiting()) return false;
  InputRequest& asked = *m_frames.back()->input.m_request;
  if (asked.kind() != InputRequest::Kind::kString) return false;
  m_word.clear();
  m_engine.console().echo(text);
  settleAnswer(asked.acceptText(text));
  deliverChanges();
  return true;
}

void CommandProcessor::settleAnswer(InputRequest::Outcome outcome) {
  Frame& frame = *m_frames.back();
  if (outcome != InputRequest::Outcome::kAnswered) {
    if (outcome == InputRequest::Outcome::kAgain) m_engine.print(frame.input.m_request->message());
    frame.input.m_isNew = true;
    return showPrompt(frame);
  }
  m_paused = false;
  if (const std::optional<OdGePoint3d> point = frame.input.m_request->answeredPoint();
      point && m_document)
    m_document->setLastPoint(*point);
  if (frame.command->body) {
    const std::coroutine_handle<> waiting = std::exchange(frame.input.m_waiting, nullptr);
    resume(frame, [waiting] { waiting.resume(); });
  } else {
    frame.isAnswered = true;
  }
}

void CommandProcessor::showPrompt(Frame& frame) {
  if (!frame.input.m_request || !std::exchange(frame.input.m_isNew, false)) return;
  const OdString text = frame.input.m_request->shown();
  if (!text.isEmpty()) m_engine.console().prompt(text);
}

IHostUserInput::Result CommandProcessor::getString(unsigned flags, const OdString& prompt,
                                                   OdString& out) {
  if (m_frames.empty() || m_frames.back()->command->body) return Result::kCancelled;
  Frame& frame = *m_frames.back();
  const auto waits = [&frame] { return !frame.isAnswered && !frame.isCancelled; };
  for (;;) {
    if (frame.isCancelled) return Result::kCancelled;
    frame.input.m_request.emplace(prompt, (flags & kAllowBlanks) != 0);
    frame.input.m_isNew = true;
    frame.isAnswered = false;
    showPrompt(frame);
    waitWhile(waits);
    const bool answered = std::exchange(frame.isAnswered, false);
    const OdString text = answered ? frame.input.m_request->answer<OdString>().value : OdString();
    frame.input.m_request.reset();
    if (!answered) return Result::kCancelled;
    if (text.isEmpty() && !(flags & kAllowEmpty)) continue;
    out = flags & kKeepCase ? text : text.toUpper();
    return out.isEmpty() ? Result::kEmpty : Result::kValue;
  }
}

void CommandProcessor::waitWhile(const std::function<bool()>& pending) {
  const oddb::VariableRecording paused = recordVariables(false);
  while (pending())
    if (!m_engine.step() && !m_engine.waitForInput()) cancel();
}

// --- running

bool CommandProcessor::run(const OdString& name, IMemParam* parameters) {
  if (!m_frames.empty() && m_frames.back()->isCancelled) return false;
  const RegisteredCommandPtr command = m_engine.commands().find(name);
  if (!command) return false;
  const OdString outerWord = std::exchange(m_word, {});
  const std::size_t depth = m_frames.size();
  bool succeeded = false;
  if (start(command, parameters, &succeeded, false))
    waitWhile([&] { return m_frames.size() > depth; });
  m_word = outerWord;
  deliverChanges();
  return succeeded;
}

bool CommandProcessor::start(const RegisteredCommandPtr& command, IMemParam* parameters,
                             bool* succeeded, bool isUsers) {
  if (!m_document && command->body && !command->has(kNoDocument)) {
    trouble(translated(u"No drawing is open."));
    return false;
  }
  if (m_frames.size() >= kDeepestNesting) {
    trouble(translated(u"Commands run too deep inside each other."));
    return false;
  }
  m_frames.push_back(std::make_unique<Frame>());
  Frame& frame = *m_frames.back();
  frame.command = command;
  frame.parameters = parameters;
  frame.succeeded = succeeded;
  frame.isUsers = isUsers;
  openUndoStep(frame);
  frame.isRunning = true;
  tell([&](HostEditorReactor& r) { r.commandWillStart(command->name); });
  runBody(frame);
  return true;
}

void CommandProcessor::runBody(Frame& frame) {
  frame.context.emplace(m_engine, m_document, frame.input, frame.command->name, frame.parameters);
  if (frame.command->body) {
    frame.task = frame.command->body(*frame.context);
    return resume(frame, [&frame] { frame.task.start(); });
  }
  frame.isRunning = true;
  try {
    const int result = runModuleCommand(frame);
    finish(result == 0 ? Outcome::kEnded : Outcome::kFailed,
           translated(u"%1 failed (%2).").arg(frame.command->name).arg(result));
  } catch (const std::exception& error) {
    finish(Outcome::kFailed, OdString::fromUtf8(error.what()));
  }
}

int CommandProcessor::runModuleCommand(Frame& frame) {
  const oddb::VariableRecording recording = recordVariables(true);
  if (frame.command->function) {
    frame.command->function();
    return 0;
  }
  const auto process = KVPtr<ICmdProcess>::attach(frame.command->creator());
  if (!process) return -1;
  const KVPtr<RunContext> context = kvMake<RunContext>(m_document);
  process->setContext(context.get());
  const int result = process->Run();
  if (frame.isCancelled) process->cancel();
  process->finish();
  process->setContext(nullptr);
  return result;
}

void CommandProcessor::resume(Frame& frame, const std::function<void()>& step) {
  frame.isRunning = true;
  {
    const oddb::VariableRecording recording = recordVariables(true);
    step();
  }
  frame.isRunning = false;
  if (!frame.task.isDone()) {
    if (frame.isCancelled) return finish(Outcome::kCancelled, {});
    return showPrompt(frame);
  }
  try {
    frame.task.result();
  } catch (const CommandCancelled&) {
    return finish(Outcome::kCancelled, {});
  } catch (const CommandFailure& failure) {
    return finish(Outcome::kFailed, failure.message());
  } catch (const std::exception& error) {
    return finish(Outcome::kFailed, OdString::fromUtf8(error.what()));
  }
  finish(Outcome::kEnded, {});
}

void CommandProcessor::finish(Outcome outcome, const OdString& message) {
  const std::unique_ptr<Frame> frame = std::move(m_frames.back());
  m_frames.pop_back();
  if (frame->isCancelled) outcome = Outcome::kCancelled;
  frame->task = {}; // what the command holds goes before its changes are taken back
  const bool isOutermost = m_frames.empty();
  closeUndoStep(*frame, outcome);
  if (isOutermost && m_document) m_document->chosen().clear();
  if (frame->succeeded) *frame->succeeded = outcome == Outcome::kEnded;
  if (outcome == Outcome::kFailed) trouble(message);

  const OdString& name = frame->command->name;
  const auto tellEnd = [&] {
    tell([&](HostEditorReactor& r) {
      if (outcome == Outcome::kEnded) r.commandEnded(name);
      if (outcome == Outcome::kFailed) r.commandFailed(name);
      // One cancel is one event, that of the outermost command: what it ran ends with it. A module
      // that sends a cancel and waits for its event would take a second one for the user's. A
      // command that gives up by itself while the one around it goes on has an event of its own.
      if (outcome == Outcome::kCancelled && (isOutermost || !frame->isCancelled))
        r.commandCancelled(name);
    });
  };
  // Commands that wait in other documents than the active one are cancelled too. One that has ended
  // well may have made another document the active one.
  if (m_document && outcome != Outcome::kEnded)
    m_engine.documents().withCurrent(*m_document, tellEnd);
  else
    tellEnd();
  // A macro that opens a drawing goes on in it.
  if (CommandProcessor& now = m_engine.currentProcessor(); isOutermost && &now != this)
    now.takeTextFrom(*this);
}

void CommandProcessor::openUndoStep(Frame& frame) {
  OdDbDatabase* const database = m_document ? m_document->database() : nullptr;
  if (!database) return;
  if (std::any_of(m_frames.begin(), m_frames.end(), [](const auto& f) { return f->hasUndoStep; })) {
    frame.mark = database->undoMark();
  } else if (!frame.command->has(kNoUndoStep)) {
    database->startUndoRecord(frame.command->name);
    frame.hasUndoStep = true;
    frame.wasModified = database->isModified();
  }
}

void CommandProcessor::closeUndoStep(const Frame& frame, Outcome outcome) {
  OdDbDatabase* const database = m_document ? m_document->database() : nullptr;
  if (!database) return;
  const bool keeps = outcome == Outcome::kEnded;
  if (frame.mark && !keeps) database->rollbackTo(*frame.mark);
  if (!frame.hasUndoStep) {
    if (!frame.mark) m_document->forgetHatchChanges();
    return;
  }
  if (keeps) {
    m_document->updateHatches();
    database->endUndoRecord();
  } else {
    database->abandonUndoRecord();
    if (!frame.wasModified) database->setSaved();
    m_document->forgetHatchChanges();
  }
  m_document->resumeLockStep();
}

oddb::VariableRecording CommandProcessor::recordVariables(bool on) const {
  return oddb::VariableRecording(m_document ? m_document->database() : nullptr, on);
}

void CommandProcessor::tell(const std::function<void(HostEditorReactor&)>& event) const {
  // What is put back after a command is no part of it.
  const oddb::VariableRecording paused = recordVariables(false);
  m_engine.events().fire(event);
}

void CommandProcessor::deliverChanges() const {
  if (OdDbDatabase* const database = m_document ? m_document->database() : nullptr)
    database->deliverChanges();
}

// --- cancelling

void CommandProcessor::cancel() {
  m_sent.clear();
  cancelCommands();
}

void CommandProcessor::cancelCommands() {
  m_word.clear();
  m_wordTooLong = false;
  m_paused = false;
  if (m_frames.empty()) {
    if (m_document) m_document->preselection().clear();
    return;
  }
  m_engine.print(translated(u"*Cancel*"));
  for (const auto& frame : m_frames) frame->isCancelled = true;
  // All but the innermost are on the stack and see the mark when control comes back to them.
  if (m_frames.back()->command->body && !m_frames.back()->isRunning)
    finish(Outcome::kCancelled, {});
}

void CommandProcessor::dropText() {
  m_sent.clear();
  m_engine.keyboard().clear();
}

void CommandProcessor::trouble(const OdString& text) {
  // What follows was meant for the command that is not there.
  dropText();
  m_engine.print(text);
  m_engine.console().commandTrouble(text);
}

} // namespace drafton
