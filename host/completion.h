// Completion on the host's command line.
#pragma once

#include "frame/string.h"

#include <functional>
#include <memory>

class QImage;

namespace HostEdCompletion {

/// What happens when an offer is chosen.
class Action {
 public:
  virtual ~Action() = default;
  virtual void run() = 0;
};

/// An action that calls a function.
class CallFunction : public Action {
 public:
  explicit CallFunction(std::function<void()> function) : m_function(std::move(function)) {}
  void run() override {
    if (m_function) m_function();
  }

 private:
  std::function<void()> m_function;
};

/// A small picture beside an offer.
class Pictogram {
 public:
  virtual ~Pictogram() = default;
  /// The picture in `pixels` by `pixels`; a null image if there is none.
  virtual QImage image(int pixels) = 0;
};

/// One offer.
struct Entry {
  OdString text;        ///< what typed text is compared with
  OdString displayText; ///< what the list shows
  int kind = 0;
  std::shared_ptr<Action> action;
  std::shared_ptr<Pictogram> pictogram;
  unsigned flags = 0;
};

using Callback = std::function<void(std::shared_ptr<Entry>)>;
/// Calls the callback once for each offer.
using Provider = std::function<void(const Callback&)>;

/// The host's sources of offers.
class Registry {
 public:
  /// Registers a source; an empty function removes it.
  virtual void registerSource(const OdString& name, Provider provider) = 0;

 protected:
  ~Registry() = default;
};

} // namespace HostEdCompletion
