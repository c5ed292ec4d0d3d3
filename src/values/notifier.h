// The one way in which a value service shows a message: a check that refuses a text hands the message to
// the notifier it was given. Programs show a message box, a silent walk over a whole return collects or
// drops.
#pragma once

#include <string>

namespace lodge {

class Notifier {
  public:
    Notifier() = default;
    Notifier(const Notifier&) = delete;
    Notifier& operator=(const Notifier&) = delete;
    virtual ~Notifier() = default;

    // Shows `text` (UTF-8, line breaks as the message has them) and returns once it has been read.
    virtual void notify(const std::string& text) = 0;
};

// Drops every message: for a value that is checked without a person before the screen.
class SilentNotifier : public Notifier {
  public:
    void notify(const std::string& /*text*/) override {}
};

} // namespace lodge
