#include "tpal/picture_workers.h"

#include "frame/error.h"
#include "images/image.h"
#include "images/picture_file.h"
#include "tools/action_agent.h"
#include "tools/source_files.h"
#include "tools/tool_source.h"
#include "tpal/console_host.h"

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace tpal {
namespace {

constexpr std::array kSizes = {tc::OdTcSizeKind::kSmall, tc::OdTcSizeKind::kNormal,
                               tc::OdTcSizeKind::kLarge};

/// So many tools are taken at once, so that those of a small file fall to one thread, which reads
/// it once.
constexpr std::size_t kShare = 32;

MadePictures picturesOf(const tc::OdTcTool& tool, tc::OdTcSourceFiles& files) {
  const tc::OdTcToolActionAgent& agent = *tool.getActionAgent();
  MadePictures made;
  for (const tc::OdTcSizeKind size : kSizes) {
    const tc::OdTcImagePtr image = tc::OdTcImage::createObject();
    image->setSizeKind(static_cast<std::int32_t>(size));
    QByteArray png;
    files.setProblem({});
    if (agent.makePicture(*image, files))
      png = tc::pictureBytes(image->getBitmap(), tc::formatExtension(tc::kPngFormat));
    if (png.isEmpty()) {
      made.pictures.clear();
      made.problem = files.problem();
      if (made.problem.isEmpty()) made.problem = QStringLiteral("there is nothing to see");
      return made;
    }
    made.pictures.push_back({static_cast<int>(image->cx()), image->src(), png});
  }
  return made;
}

/// A drawing that breaks a rule costs its own pictures and not the run.
MadePictures triedPicturesOf(const tc::OdTcTool& tool, tc::OdTcSourceFiles& files) {
  try {
    return picturesOf(tool, files);
  } catch (const OdError& error) {
    return {{}, error.description()};
  }
}

/// Threads that make pictures, and one that takes them in order.
class Workers {
 public:
  explicit Workers(const std::vector<tc::OdTcToolPtr>& tools)
    : m_tools(tools)
    , m_made(tools.size())
    , m_isMade(tools.size(), false) {
    const std::size_t shares = (tools.size() + kShare - 1) / kShare;
    const std::size_t count =
        std::min<std::size_t>(std::max(1u, std::thread::hardware_concurrency()), shares);
    for (std::size_t i = 0; i < count; ++i) m_threads.emplace_back([this] { work(); });
  }
  Workers(const Workers&) = delete;
  Workers& operator=(const Workers&) = delete;
  ~Workers() {
    m_isEnding = true;
    for (std::thread& thread : m_threads) thread.join();
  }

  /// Waits for the pictures of a tool.
  MadePictures wait(std::size_t index) {
    std::unique_lock lock(m_mutex);
    m_hasMade.wait(lock, [&] { return m_isMade[index]; });
    return std::move(m_made[index]);
  }

 private:
  void work() {
    const ConsoleHost::ThreadPreviews previews;
    tc::OdTcSourceFiles files;
    for (;;) {
      const std::size_t from = m_next.fetch_add(kShare);
      for (std::size_t i = from; i < std::min(from + kShare, m_tools.size()); ++i) {
        if (m_isEnding) return;
        MadePictures made = triedPicturesOf(*m_tools[i], files);
        const std::scoped_lock lock(m_mutex);
        m_made[i] = std::move(made);
        m_isMade[i] = true;
        m_hasMade.notify_one();
      }
      if (from >= m_tools.size()) return;
    }
  }

  const std::vector<tc::OdTcToolPtr>& m_tools;
  std::atomic<std::size_t> m_next = 0;
  std::atomic<bool> m_isEnding = false;
  std::mutex m_mutex;
  std::condition_variable m_hasMade;
  std::vector<MadePictures> m_made;
  std::vector<bool> m_isMade;
  std::vector<std::thread> m_threads;
};

} // namespace

void makePictures(const std::vector<tc::OdTcToolPtr>& tools,
                  const std::function<void(std::size_t index, const MadePictures& made)>& take) {
  if (!ConsoleHost::instance().canMakePreviewsInThreads()) {
    tc::OdTcSourceFiles files;
    for (std::size_t i = 0; i < tools.size(); ++i) take(i, triedPicturesOf(*tools[i], files));
    return;
  }
  Workers workers(tools);
  for (std::size_t i = 0; i < tools.size(); ++i) take(i, workers.wait(i));
}

} // namespace tpal
