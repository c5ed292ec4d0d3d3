// The two ways in which a line of a session script does not go through, and what a run ends with.
#pragma once

#include <stdexcept>

namespace lodge {

/// How a run ended, as the program's exit status.
enum class SessionEnd { AllWentThrough = 0, ExpectationFailed = 1, ScriptAtFault = 2 };

/// The script itself is at fault: a name that nobody knows, a field that a person could not reach, a question
/// without an answer. Ends the run.
class ScriptFault : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The program does not show what the script expects to see.
class FailedExpectation : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

} // namespace lodge
