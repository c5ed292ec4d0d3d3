// A return as the text of its file, and back.
#pragma once

#include "state/return_state.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lodge {

/// The 261 lines in UTF-8, not encoded. As every store does, this makes regular what the return holds:
/// strTaxYear, the ticks of the tax case, the tax and the balances of item 2 as plain numbers, "||||" in
/// empty single values, and an income edit in force.
std::vector<std::string> returnLines(ReturnState& state);

/// The bytes of the file: the same lines encoded, each ended by carriage return and line feed.
std::string encodeReturn(ReturnState& state);

/// A line of a file as it reads once decoded.
struct FileLine {
    std::string text;     ///< UTF-8; "-1" when damaged.
    bool damaged = false; ///< Its check value or its digits are wrong.
};

/// The lines of a file. A line that begins with "0" is decoded, any other stands for itself, so that a file
/// that was never encoded reads as well. Lines end with carriage return, line feed or both. In a file that
/// begins encoded, a line whose first digit alone hides that it is encoded, too, is a damaged one.
std::vector<FileLine> decodeFile(std::string_view bytes);

/// The number, from 1, of the first line that is too long or one too many to be read; none in an ordinary
/// text. Only a text without such a line is decoded or read.
std::optional<std::size_t> lineBeyondLimits(std::string_view bytes);

/// What the log is told of such a line.
std::string beyondLimitsCause(std::size_t line);

/// The numbers, from 1, of the damaged ones.
std::vector<std::size_t> damagedLineNumbers(const std::vector<FileLine>& lines);

enum class ReadStatus { Loaded, Refused, Unreadable };

struct ReadResult {
    ReadStatus status = ReadStatus::Loaded;
    std::string message;                   ///< For the filer; empty when loaded.
    std::string cause;                     ///< What went wrong, for a log or a command line, English.
    std::vector<std::size_t> damagedLines; ///< Numbers from 1, those behind the point of a refusal included.
};

/// Fills a cleared state from the bytes of a file. Refused with M121 when the header does not carry the
/// version of this program, is damaged or missing; unreadable when a line is too long, one too many, or has
/// more tokens than the form's reader had room for. The state then holds what was read before. A damaged line
/// leaves its fields empty, a short file the fields behind its end.
ReadResult readReturn(std::string_view bytes, ReturnState& state);

/// The tokens of a line: what stands between its bars from the second character on; what stands behind the
/// last bar is none.
std::vector<std::string_view> SplitLine(std::string_view line);

} // namespace lodge
