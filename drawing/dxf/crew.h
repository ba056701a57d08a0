// Work that several threads share.
#pragma once

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <exception>
#include <memory>
#include <mutex>

/// One piece of work.
class OdDbDxfJob {
 public:
  virtual ~OdDbDxfJob() = default;
  /// `who` tells the threads of a crew apart: 0 is the one that made it.
  virtual void work(std::size_t who) = 0;

 private:
  friend class OdDbDxfCrew;
  enum State { kWaiting, kBegun, kDone } m_state = kWaiting;
  std::exception_ptr m_error;
};

/// Does jobs with several threads and gives them back in the order in which they came. All calls
/// come from the thread that made the crew, which works as well while it waits for a job.
class OdDbDxfCrew {
 public:
  /// How many threads the machine has; no more than are of use here.
  static std::size_t machineThreads();

  /// `threads` counts the maker. The others begin when there is work for them; there are fewer if
  /// the system gives no more. They outlive the crew for a while, and then serve the next one.
  explicit OdDbDxfCrew(std::size_t threads);
  /// Waits for what has begun; what has not is dropped.
  ~OdDbDxfCrew();
  OdDbDxfCrew(const OdDbDxfCrew&) = delete;
  OdDbDxfCrew& operator=(const OdDbDxfCrew&) = delete;

  std::size_t threads() const { return m_most; }
  bool isEmpty() const { return m_shared->jobs.empty(); }
  /// True if there is enough to do, and more would only take memory.
  bool isFull() const { return m_shared->jobs.size() >= 2 * m_most + 2; }
  /// A job that was taken may be given again.
  void give(std::unique_ptr<OdDbDxfJob> job);
  /// Has another thread come, if there are more: soon there is work for it.
  void call();
  /// The oldest job when it is done. What it raised is raised here.
  std::unique_ptr<OdDbDxfJob> take();
  /// Waits for what has begun. What has not counts as done, though nobody did it.
  void stop();

 private:
  using Lock = std::unique_lock<std::mutex>;
  /// What the threads have in common: it lives as long as one of them looks at it.
  struct Shared {
    OdDbDxfJob* nextWaiting() const;
    void carryOut(OdDbDxfJob& job, std::size_t who, Lock& lock);
    void workAlong(std::size_t who);
    /// Looks around for a moment before the thread sleeps: to be woken takes longer than most jobs.
    void await(std::condition_variable& change, Lock& lock);

    std::mutex mutex;
    std::condition_variable given, done;
    std::deque<std::unique_ptr<OdDbDxfJob>> jobs;
    std::size_t begun = 0;
    bool end = false;
    std::atomic<unsigned> changes = 0; ///< of the jobs and the end, made under the mutex
  };

  const std::size_t m_most;
  std::size_t m_called = 0; ///< threads beside the maker
  const std::shared_ptr<Shared> m_shared = std::make_shared<Shared>();
};
