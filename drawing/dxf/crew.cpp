#include "drawing/dxf/crew.h"

#include <QThreadPool>

#include <algorithm>
#include <thread>

namespace {

// What one thread puts in order keeps no more than these busy.
constexpr std::size_t kUseful = 8;

/// Threads that wait for a crew. To make one takes as long as to read a small drawing.
QThreadPool& waitingThreads() {
  struct Pool : QThreadPool {
    Pool() { setMaxThreadCount(static_cast<int>(kUseful)); }
  };
  static Pool pool;
  return pool;
}

} // namespace

std::size_t OdDbDxfCrew::machineThreads() {
  // The system reads files to answer that.
  static const auto count =
      std::clamp<std::size_t>(std::thread::hardware_concurrency(), 1, kUseful);
  return count;
}

OdDbDxfCrew::OdDbDxfCrew(std::size_t threads)
  : m_most(std::max<std::size_t>(threads, 1)) {}

OdDbDxfCrew::~OdDbDxfCrew() {
  stop();
  const Lock lock(m_shared->mutex);
  m_shared->end = true;
  ++m_shared->changes;
  m_shared->given.notify_all();
}

void OdDbDxfCrew::call() {
  const std::size_t who = m_called + 1;
  if (who >= m_most) return;
  // Without one the others do its work.
  if (waitingThreads().tryStart([shared = m_shared, who] { shared->workAlong(who); }))
    m_called = who;
}

OdDbDxfJob* OdDbDxfCrew::Shared::nextWaiting() const {
  const auto at = std::find_if(jobs.begin(), jobs.end(), [](const auto& job) {
    return job->m_state == OdDbDxfJob::kWaiting;
  });
  return at == jobs.end() ? nullptr : at->get();
}

void OdDbDxfCrew::Shared::carryOut(OdDbDxfJob& job, std::size_t who, Lock& lock) {
  job.m_state = OdDbDxfJob::kBegun;
  ++begun;
  lock.unlock();
  try {
    job.work(who);
  } catch (const std::exception&) {
    job.m_error = std::current_exception();
  }
  lock.lock();
  job.m_state = OdDbDxfJob::kDone;
  --begun;
  ++changes;
}

void OdDbDxfCrew::Shared::await(std::condition_variable& change, Lock& lock) {
  constexpr int kLooks = 400;
  const unsigned known = changes;
  lock.unlock();
  for (int i = 0; i < kLooks && changes == known; ++i) std::this_thread::yield();
  lock.lock();
  if (changes == known) change.wait(lock);
}

void OdDbDxfCrew::Shared::workAlong(std::size_t who) {
  Lock lock(mutex);
  while (!end) {
    if (OdDbDxfJob* const job = nextWaiting()) {
      carryOut(*job, who, lock);
      done.notify_one();
    } else {
      await(given, lock);
    }
  }
}

void OdDbDxfCrew::give(std::unique_ptr<OdDbDxfJob> job) {
  bool isFirst = false;
  {
    const Lock lock(m_shared->mutex);
    job->m_state = OdDbDxfJob::kWaiting;
    isFirst = m_shared->jobs.empty();
    m_shared->jobs.push_back(std::move(job));
    ++m_shared->changes;
  }
  // The first job is for whoever takes it; who has only one needs no help.
  if (!isFirst) call();
  m_shared->given.notify_one();
}

std::unique_ptr<OdDbDxfJob> OdDbDxfCrew::take() {
  Lock lock(m_shared->mutex);
  auto& jobs = m_shared->jobs;
  while (jobs.front()->m_state != OdDbDxfJob::kDone) {
    if (OdDbDxfJob* const job = m_shared->nextWaiting())
      m_shared->carryOut(*job, 0, lock);
    else
      m_shared->await(m_shared->done, lock);
  }
  std::unique_ptr<OdDbDxfJob> job = std::move(jobs.front());
  jobs.pop_front();
  lock.unlock();
  if (job->m_error) std::rethrow_exception(job->m_error);
  return job;
}

void OdDbDxfCrew::stop() {
  Lock lock(m_shared->mutex);
  for (const auto& job : m_shared->jobs)
    if (job->m_state == OdDbDxfJob::kWaiting) job->m_state = OdDbDxfJob::kDone;
  m_shared->done.wait(lock, [&] { return m_shared->begun == 0; });
}
