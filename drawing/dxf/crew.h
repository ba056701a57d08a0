// Work that several threads share.
#pragma once

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <exception>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

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
  /// the system gives no more.
  explicit OdDbDxfCrew(std::size_t threads);
  /// Waits for what has begun; what has not is dropped.
  ~OdDbDxfCrew();
  OdDbDxfCrew(const OdDbDxfCrew&) = delete;
  OdDbDxfCrew& operator=(const OdDbDxfCrew&) = delete;

  std::size_t threads() const { return m_most; }
  bool isEmpty() const { return m_jobs.empty(); }
  /// True if there is enough to do, and more would only take memory.
  bool isFull() const { return m_jobs.size() >= 2 * m_most + 2; }
  /// A job that was taken may be given again.
  void give(std::unique_ptr<OdDbDxfJob> job);
  /// The oldest job when it is done. What it raised is raised here.
  std::unique_ptr<OdDbDxfJob> take();
  /// Waits for what has begun. What has not counts as done, though nobody did it.
  void stop();

 private:
  using Lock = std::unique_lock<std::mutex>;
  OdDbDxfJob* nextWaiting() const;
  void carryOut(OdDbDxfJob& job, std::size_t who, Lock& lock);
  void workAlong(std::size_t who);
  void addThread();

  const std::size_t m_most;
  std::mutex m_mutex;
  std::condition_variable m_given, m_done;
  std::deque<std::unique_ptr<OdDbDxfJob>> m_jobs;
  std::size_t m_begun = 0;
  bool m_end = false;
  std::vector<std::thread> m_threads;
};
