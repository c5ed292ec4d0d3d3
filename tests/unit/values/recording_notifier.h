// A notifier for tests: it keeps the heads ("M073") of the messages that were shown, in order.
#pragma once

#include "values/notifier.h"

#include <string>
#include <vector>

namespace lodge {

class RecordingNotifier final : public Notifier {
  public:
    void notify(const std::string& text) override {
        texts.push_back(text);
        codes.push_back(text.substr(0, 4));
    }

    std::vector<std::string> texts;
    std::vector<std::string> codes;
};

} // namespace lodge
