// The 261 lines of a return file as one table of rows that the writer and the reader both walk. A reader does
// not search for a value: it counts lines and takes the tokens between the bars in order. The table's rows
// are the file format; docs/file-format.md shows the same rows to people.
#pragma once

#include "state/return_state.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace lodge {

inline constexpr std::size_t returnLineCount = 261;

/// What stands on a single-value line instead of an empty value. The writer puts it into the field itself,
/// and a load leaves it there; only the writer knows it.
inline constexpr std::string_view emptyValueText = "||||";

/// Collects the tokens of a line and sets the bars.
class TokenWriter {
  public:
    void add(std::string_view token);
    [[nodiscard]] const std::string& line() const { return text; }

  private:
    std::string text = "|";
};

/// Hands out the tokens of a line in order; behind the last one all are empty.
class TokenReader {
  public:
    explicit TokenReader(std::span<const std::string_view> tokens) : tokens(tokens) {}
    std::string_view next();
    void skip() { next(); }

  private:
    std::span<const std::string_view> tokens;
};

/// A text or a number of the return, or an array of them, as the table refers to it.
struct Source {
    std::string_view name; ///< As in field_names.h.
    bool isArray = false;
    std::string& (*text)(ReturnState& state, std::size_t index) = nullptr;
    std::int16_t& (*number)(ReturnState& state, std::size_t index) = nullptr;
};

/// A run of entries of a source: `first`, `first + stride`, and so on; on each further line of a row, `step`
/// more.
struct Entries {
    Source source;
    std::uint8_t first = 0;
    std::uint8_t count = 1;
    std::uint8_t stride = 1;
    std::uint8_t step = 1;

    [[nodiscard]] constexpr std::size_t at(std::size_t place, std::size_t line) const {
        return first + place * stride + line * step;
    }
};

/// Tokens that follow a rule of their own.
struct SpecialToken {
    std::string_view rule; ///< What stands there, for people.
    void (*write)(ReturnState& state, TokenWriter& tokens);
    void (*read)(ReturnState& state, TokenReader& tokens);
    std::span<const Entries> carries; ///< The values that come back from the file through it.
};

enum class TokenKind : std::uint8_t {
    Blank,    ///< Always empty.
    Text,     ///< The text as it stands.
    Number,   ///< A whole number.
    Date,     ///< Day, month and year of a date of eight digits: three tokens.
    MaskDate, ///< The same of a date of ten characters with slashes.
    Amount,   ///< The amount, then a copy of it for the eye, which a reader skips.
    Choice,   ///< One for the whole run: position of the first entry that is "1", "0" for none.
    Sign,     ///< 1, 2 or 0 as the first entry less the second is above, below or equal to zero; skipped by a
              ///< reader.
    Title,    ///< Code and name of the person title whose row number the entry holds: two tokens.
    Plain,    ///< The amount without separators; "0" when empty.
    Special,  ///< A SpecialToken.
};

struct Token {
    TokenKind kind = TokenKind::Blank;
    Entries entries;
    const SpecialToken* special = nullptr;

    /// The same token whose entries grow by `step` from line to line of its row.
    [[nodiscard]] constexpr Token by(std::uint8_t step) const {
        Token token = *this;
        token.entries.step = step;
        return token;
    }
};

enum class LineForm : std::uint8_t {
    Marker,      ///< A fixed text for the eye, "[PAGE1]".
    Tokens,      ///< "|a|b|", read from the second character on.
    PlainTokens, ///< "|a|b|", cut at every bar, whatever stands before the first.
    SingleValue, ///< One value without bars.
};

struct LayoutRow {
    std::uint16_t firstLine = 0;
    std::uint16_t lastLine = 0;
    LineForm form = LineForm::Marker;
    std::string_view marker;
    /// Line of the marker that opens the row's section: its lines are counted from that marker, not from the
    /// top of the file. 0 for a row that is known by its number alone.
    std::uint16_t section = 0;
    std::array<Token, 6> tokens = {};
    std::size_t tokenCount = 0;
    void (*beforeWriting)(ReturnState& state) = nullptr;
    void (*afterReading)(ReturnState& state) = nullptr;

    [[nodiscard]] constexpr std::span<const Token> allTokens() const { return {tokens.data(), tokenCount}; }
    [[nodiscard]] constexpr LayoutRow before(void (*step)(ReturnState&)) const {
        LayoutRow row = *this;
        row.beforeWriting = step;
        return row;
    }
    [[nodiscard]] constexpr LayoutRow after(void (*step)(ReturnState&)) const {
        LayoutRow row = *this;
        row.afterReading = step;
        return row;
    }
    [[nodiscard]] constexpr LayoutRow under(int markerLine) const {
        LayoutRow row = *this;
        row.section = static_cast<std::uint16_t>(markerLine);
        return row;
    }
};

/// All rows in the order of their lines.
std::span<const LayoutRow> layoutRows();

/// The row that a line, counted from 1, belongs to; null behind the last line.
const LayoutRow* rowOfLine(std::size_t line);

/// What stands on the lines of a row, in the notation of docs/file-format.md.
std::string describeRow(const LayoutRow& row);

/// The names of the values that a row carries from a return to the file and back; copies for the eye are
/// none.
std::vector<std::string> carriedNames(const LayoutRow& row);

} // namespace lodge
