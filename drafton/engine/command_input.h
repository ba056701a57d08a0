// The prompts of a command: `co_await` one to wait for its answer.
#pragma once

#include "drafton/engine/input_request.h"
#include "drafton/engine/prompt.h"

#include <coroutine>

namespace drafton {

/// What a command asks its user through. Each operation shows the prompt and gives something to
/// await at once:
///
///     const Answer<OdGePoint3d> next = co_await input.point({.text = u"Specify next point",
///                                                            .keywords = u"Close Undo",
///                                                            .base = last});
///
/// While the command waits it is suspended, and nothing blocks. A cancel ends it there: the
/// coroutine is destroyed, its locals are unwound and the drawing goes back to the command's start.
class CommandInput {
 public:
  template <class T>
  class Awaiter {
   public:
    explicit Awaiter(CommandInput& input)
      : m_input(&input) {}
    bool await_ready() const noexcept { return false; }
    void await_suspend(std::coroutine_handle<> command) noexcept { m_input->m_waiting = command; }
    Answer<T> await_resume() { return m_input->take<T>(); }

   private:
    CommandInput* m_input;
  };

  Awaiter<OdGePoint3d> point(const PointPrompt& prompt);
  Awaiter<double> distance(const DistancePrompt& prompt);
  Awaiter<double> angle(const AnglePrompt& prompt);
  Awaiter<int> integer(const IntegerPrompt& prompt);
  Awaiter<double> real(const RealPrompt& prompt);
  Awaiter<OdString> string(const StringPrompt& prompt);
  /// Only keywords are accepted; the answer is a keyword or empty.
  Awaiter<OdString> keyword(const KeywordPrompt& prompt);

 private:
  friend class CommandProcessor;

  template <class T, class Prompt>
  Awaiter<T> ask(const Prompt& prompt) {
    m_request.emplace(prompt);
    m_isNew = true;
    return Awaiter<T>(*this);
  }
  template <class T>
  Answer<T> take() {
    const Answer<T> answer = m_request->answer<T>();
    m_request.reset();
    return answer;
  }

  // What is asked now, if anything; the processor feeds it with typed words and goes on with the
  // waiting command when it is answered.
  std::optional<InputRequest> m_request;
  bool m_isNew = false; // not shown yet
  std::coroutine_handle<> m_waiting;
};

} // namespace drafton
