#include "drawing/dxf/crew.h"

#include <algorithm>
#include <system_error>

std::size_t OdDbDxfCrew::machineThreads() {
  // What one thread puts in order keeps no more than these busy.
  constexpr std::size_t kUseful = 8;
  // The system reads files to answer that.
  static const auto count =
      std::clamp<std::size_t>(std::thread::hardware_concurrency(), 1, kUseful);
  return count;
}

OdDbDxfCrew::OdDbDxfCrew(std::size_t threads)
  : m_most(std::max<std::size_t>(threads, 1)) {}

OdDbDxfCrew::~OdDbDxfCrew() {
  stop();
  {
    const Lock lock(m_mutex);
    m_end = true;
  }
  m_given.notify_all();
  for (std::thread& thread : m_threads) thread.join();
}

void OdDbDxfCrew::addThread() {
  // The number of threads changes only here, before the new one is there.
  const std::size_t who = m_threads.size() + 1;
  if (who >= m_most) return;
  try {
    m_threads.emplace_back([this, who] { workAlong(who); });
  } catch (const std::system_error&) {
    // The others do its work.
  }
}

OdDbDxfJob* OdDbDxfCrew::nextWaiting() const {
  const auto at = std::find_if(m_jobs.begin(), m_jobs.end(), [](const auto& job) {
    return job->m_state == OdDbDxfJob::kWaiting;
  });
  return at == m_jobs.end() ? nullptr : at->get();
}

void OdDbDxfCrew::carryOut(OdDbDxfJob& job, std::size_t who, Lock& lock) {
  job.m_state = OdDbDxfJob::kBegun;
  ++m_begun;
  lock.unlock();
  try {
    job.work(who);
  } catch (const std::exception&) {
    job.m_error = std::current_exception();
  }
  lock.lock();
  job.m_state = OdDbDxfJob::kDone;
  --m_begun;
}

void OdDbDxfCrew::workAlong(std::size_t who) {
  Lock lock(m_mutex);
  while (!m_end) {
    if (OdDbDxfJob* const job = nextWaiting()) {
      carryOut(*job, who, lock);
      m_done.notify_one();
    } else {
      m_given.wait(lock);
    }
  }
}

void OdDbDxfCrew::give(std::unique_ptr<OdDbDxfJob> job) {
  bool isFirst = false;
  {
    const Lock lock(m_mutex);
    job->m_state = OdDbDxfJob::kWaiting;
    isFirst = m_jobs.empty();
    m_jobs.push_back(std::move(job));
  }
  // The first job is for whoever takes it; who has only one needs no help.
  if (!isFirst) addThread();
  m_given.notify_one();
}

std::unique_ptr<OdDbDxfJob> OdDbDxfCrew::take() {
  Lock lock(m_mutex);
  while (m_jobs.front()->m_state != OdDbDxfJob::kDone) {
    if (OdDbDxfJob* const job = nextWaiting())
      carryOut(*job, 0, lock);
    else
      m_done.wait(lock);
  }
  std::unique_ptr<OdDbDxfJob> job = std::move(m_jobs.front());
  m_jobs.pop_front();
  lock.unlock();
  if (job->m_error) std::rethrow_exception(job->m_error);
  return job;
}

void OdDbDxfCrew::stop() {
  Lock lock(m_mutex);
  for (const auto& job : m_jobs)
    if (job->m_state == OdDbDxfJob::kWaiting) job->m_state = OdDbDxfJob::kDone;
  m_done.wait(lock, [&] { return m_begun == 0; });
}
