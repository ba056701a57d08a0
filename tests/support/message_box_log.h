// Message boxes that a test answers.
#pragma once

#include "host/message_box.h"
#include "support/test_host.h"

#include <vector>

namespace testhost {

/// Keeps what was shown.
class MessageBoxLog : public CKVUnknownImpl<IHostMessageBoxes> {
 public:
  struct Box {
    OdString text;
    OdString caption;
    unsigned style;
  };
  std::vector<Box> boxes;
  messagebox::Answer answer = messagebox::kAnswerOk;

  messagebox::Answer show(const OdString& text, const OdString& caption, unsigned style) override {
    boxes.push_back({text, caption, style});
    return answer;
  }
};

} // namespace testhost
