// Tags from text files, split in a thread of their own.
#pragma once

#include "drawing/dxf/text_source.h"

#include <condition_variable>
#include <deque>
#include <exception>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

/// Gives the tags of a text file, which another thread splits ahead of whoever takes them: on two
/// processors, a large drawing is opened in the time that its objects take. What is split ahead is
/// bounded. The device must not be used by others meanwhile.
class OdDbDxfAheadSource final : public OdDbDxfSource {
 public:
  explicit OdDbDxfAheadSource(OdDbDxfBytes bytes);
  ~OdDbDxfAheadSource() override;
  OdDbDxfAheadSource(const OdDbDxfAheadSource&) = delete;
  OdDbDxfAheadSource& operator=(const OdDbDxfAheadSource&) = delete;

  Result next(OdDbDxfTag& tag) override;
  qint64 line() const override { return m_line; }
  OdString problem() const override { return m_problem; }

 private:
  struct Item {
    OdDbDxfTag tag;
    qint64 line;
  };
  /// Tags that lie in one piece of memory.
  struct Batch {
    std::vector<Item> items;
    std::shared_ptr<char[]> memory;
    Result end = kTag; ///< what follows the last of them
    qint64 endLine = 0;
    OdString problem;
    std::exception_ptr error;
  };

  Batch split();
  void splitAll();
  bool hand(Batch batch);
  void take();

  // Of the thread.
  OdDbDxfTextSource m_source;
  std::optional<Item> m_next; ///< begins the next batch

  Batch m_batch; ///< being given
  std::size_t m_at = 0;
  qint64 m_line = 1;
  OdString m_problem;

  std::mutex m_mutex;
  std::condition_variable m_changed;
  std::deque<Batch> m_ready;
  bool m_stop = false;
  std::thread m_thread;
};
