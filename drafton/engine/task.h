// Coroutines: how a command waits for the user without blocking anything.
#pragma once

#include <coroutine>
#include <exception>
#include <optional>
#include <utility>

namespace drafton {

template <class T>
class Task;

namespace task_detail {

/// What all promises share: a task starts when it is awaited (or started), and hands control to
/// whoever awaited it when it is done.
class PromiseBase {
 public:
  std::suspend_always initial_suspend() noexcept { return {}; }

  struct ToContinuation {
    bool await_ready() noexcept { return false; }
    template <class P>
    std::coroutine_handle<> await_suspend(std::coroutine_handle<P> done) noexcept {
      const std::coroutine_handle<> next = done.promise().m_continuation;
      return next ? next : std::noop_coroutine();
    }
    void await_resume() noexcept {}
  };
  ToContinuation final_suspend() noexcept { return {}; }

  void unhandled_exception() { m_error = std::current_exception(); }
  void setContinuation(std::coroutine_handle<> continuation) { m_continuation = continuation; }

 protected:
  void rethrow() const {
    if (m_error) std::rethrow_exception(m_error);
  }

 private:
  std::coroutine_handle<> m_continuation;
  std::exception_ptr m_error;
};

template <class T>
class Promise : public PromiseBase {
 public:
  Task<T> get_return_object();
  void return_value(T value) { m_value.emplace(std::move(value)); }
  T take() {
    rethrow();
    return std::move(*m_value);
  }

 private:
  std::optional<T> m_value;
};

template <>
class Promise<void> : public PromiseBase {
 public:
  Task<void> get_return_object();
  void return_void() {}
  void take() const { rethrow(); }
};

} // namespace task_detail

/// A coroutine that gives a T. It starts when it is awaited and is ended by its owner: destroying a
/// task that waits unwinds its locals, and with them the tasks that it awaits.
template <class T = void>
class [[nodiscard]] Task {
 public:
  using promise_type = task_detail::Promise<T>;
  using Handle = std::coroutine_handle<promise_type>;

  Task() = default;
  explicit Task(Handle handle)
    : m_handle(handle) {}
  Task(Task&& other) noexcept
    : m_handle(std::exchange(other.m_handle, nullptr)) {}
  Task& operator=(Task&& other) noexcept {
    std::swap(m_handle, other.m_handle);
    return *this;
  }
  ~Task() {
    if (m_handle) m_handle.destroy();
  }

  /// Runs to the first wait or to the end. Only for a task that nobody awaits.
  void start() { m_handle.resume(); }
  bool isDone() const { return !m_handle || m_handle.done(); }
  /// The value of a finished task; raises what the task raised.
  T result() { return m_handle.promise().take(); }

  bool await_ready() const noexcept { return false; }
  std::coroutine_handle<> await_suspend(std::coroutine_handle<> awaiting) noexcept {
    m_handle.promise().setContinuation(awaiting);
    return m_handle;
  }
  T await_resume() { return m_handle.promise().take(); }

 private:
  Handle m_handle;
};

template <class T>
Task<T> task_detail::Promise<T>::get_return_object() {
  return Task<T>(std::coroutine_handle<Promise<T>>::from_promise(*this));
}

inline Task<void> task_detail::Promise<void>::get_return_object() {
  return Task<void>(std::coroutine_handle<Promise<void>>::from_promise(*this));
}

} // namespace drafton
