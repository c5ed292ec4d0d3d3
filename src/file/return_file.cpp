#include "file/return_file.h"

#include "file/layout.h"
#include "file/line_codec.h"
#include "file/reading_limits.h"
#include "file/token_values.h"
#include "state/lookup_tables.h"
#include "values/code_page.h"
#include "values/messages.h"
#include "values/money.h"
#include "values/text.h"

#include <fmt/format.h>

#include <algorithm>

namespace lodge {

namespace {

constexpr std::string_view lineEnd = "\r\n";

// --- Writing ---

std::string choiceOf(const Entries& entries, std::size_t line, ReturnState& state) {
    for (std::size_t place = 0; place < entries.count; ++place) {
        if (entries.source.text(state, entries.at(place, line)) == "1") return std::to_string(place + 1);
    }
    return "0";
}

std::string signOf(const Entries& entries, ReturnState& state) {
    const double first = readFigure(entries.source.text(state, entries.at(0, 0)));
    const double second = readFigure(entries.source.text(state, entries.at(1, 0)));
    if (first == second) return "0";
    return first > second ? "1" : "2";
}

void writeTitle(const std::string& rowNumber, TokenWriter& tokens) {
    const auto row = static_cast<std::size_t>(std::max<int>(0, readWholeNumber(rowNumber)));
    const auto titles = titleRows();
    tokens.add(row < titles.size() ? titles[row].code : "");
    tokens.add(row < titles.size() ? titles[row].name : "");
}

void writeEntry(
    TokenKind kind, const Entries& entries, std::size_t index, ReturnState& state, TokenWriter& tokens) {
    if (kind == TokenKind::Number) {
        tokens.add(std::to_string(entries.source.number(state, index)));
        return;
    }
    const std::string& text = entries.source.text(state, index);
    switch (kind) {
    case TokenKind::Date:
    case TokenKind::MaskDate: writeDate(text, tokens); break;
    case TokenKind::Amount:
        tokens.add(text);
        tokens.add(amountForTheEye(text));
        break;
    case TokenKind::Title: writeTitle(text, tokens); break;
    case TokenKind::Plain: tokens.add(plainAmount(text)); break;
    default: tokens.add(text); break;
    }
}

void writeToken(const Token& token, std::size_t line, ReturnState& state, TokenWriter& tokens) {
    switch (token.kind) {
    case TokenKind::Blank: tokens.add(""); return;
    case TokenKind::Choice: tokens.add(choiceOf(token.entries, line, state)); return;
    case TokenKind::Sign: tokens.add(signOf(token.entries, state)); return;
    case TokenKind::Special: token.special->write(state, tokens); return;
    default: break;
    }
    for (std::size_t place = 0; place < token.entries.count; ++place) {
        writeEntry(token.kind, token.entries, token.entries.at(place, line), state, tokens);
    }
}

std::string writeRow(const LayoutRow& row, std::size_t line, ReturnState& state) {
    if (row.form == LineForm::Marker) return std::string(row.marker);
    if (row.form == LineForm::SingleValue) {
        const Entries& entries = row.tokens[0].entries;
        std::string& value = entries.source.text(state, entries.at(0, line));
        if (value.empty()) value = emptyValueText;
        return value;
    }
    if (row.beforeWriting != nullptr) row.beforeWriting(state);
    TokenWriter tokens;
    for (const Token& token : row.allTokens())
        writeToken(token, line, state, tokens);
    return tokens.line();
}

// --- Reading ---

void readChoice(const Entries& entries, std::size_t line, std::string_view token, ReturnState& state) {
    const auto chosen = readWholeNumber(token);
    if (chosen < 1 || chosen > entries.count) return;
    entries.source.text(state, entries.at(static_cast<std::size_t>(chosen) - 1, line)) = "1";
}

std::string readTitle(TokenReader& tokens) {
    const std::string_view code = tokens.next();
    const auto row = findTitle(code, tokens.next());
    return row ? std::to_string(*row) : std::string();
}

void readEntry(
    TokenKind kind, const Entries& entries, std::size_t index, ReturnState& state, TokenReader& tokens) {
    if (kind == TokenKind::Number) {
        entries.source.number(state, index) = readWholeNumber(tokens.next());
        return;
    }
    std::string& text = entries.source.text(state, index);
    switch (kind) {
    case TokenKind::Date: text = readPlainDate(tokens); break;
    case TokenKind::MaskDate: text = readMaskDate(tokens); break;
    case TokenKind::Amount:
        text = tokens.next();
        tokens.skip();
        break;
    case TokenKind::Title: text = readTitle(tokens); break;
    default: text = tokens.next(); break;
    }
}

void readToken(const Token& token, std::size_t line, ReturnState& state, TokenReader& tokens) {
    switch (token.kind) {
    case TokenKind::Blank:
    case TokenKind::Sign: tokens.skip(); return;
    case TokenKind::Choice: readChoice(token.entries, line, tokens.next(), state); return;
    case TokenKind::Special: token.special->read(state, tokens); return;
    default: break;
    }
    for (std::size_t place = 0; place < token.entries.count; ++place) {
        readEntry(token.kind, token.entries, token.entries.at(place, line), state, tokens);
    }
}

// The tokens of a line that is cut at every bar: those behind the first one.
std::vector<std::string_view> splitPlainly(std::string_view line) {
    std::vector<std::string_view> pieces = splitBar(line);
    pieces.erase(pieces.begin());
    return pieces;
}

void readRow(const LayoutRow& row, std::size_t line, const FileLine& content, ReturnState& state) {
    if (row.form == LineForm::Marker) return;
    if (row.form == LineForm::SingleValue) {
        const Entries& entries = row.tokens[0].entries;
        entries.source.text(state, entries.at(0, line)) = content.damaged ? std::string() : content.text;
        return;
    }
    const bool isPlain = row.form == LineForm::PlainTokens;
    const auto pieces = isPlain ? splitPlainly(content.text) : SplitLine(content.text);
    TokenReader tokens(pieces);
    for (const Token& token : row.allTokens())
        readToken(token, line, state, tokens);
    if (row.afterReading != nullptr) row.afterReading(state);
}

// --- The lines of a file ---

// Cuts a text at carriage return, line feed or both.
class LineCutter {
  public:
    explicit LineCutter(std::string_view text)
        : text(text), carriageReturn(text.find('\r')), lineFeed(text.find('\n')) {}

    std::optional<std::string_view> next() {
        if (at >= text.size()) return std::nullopt;
        const std::size_t end = std::min({upTo('\r', carriageReturn), upTo('\n', lineFeed), text.size()});
        const std::string_view line = text.substr(at, end - at);
        at = end + (text.substr(end).starts_with(lineEnd) ? lineEnd.size() : 1);
        return line;
    }

  private:
    // Where the character comes next; each is looked for once, however seldom it comes.
    std::size_t upTo(char character, std::size_t& known) const {
        if (known < at) known = text.find(character, at);
        return known;
    }

    std::string_view text;
    std::size_t at = 0;
    std::size_t carriageReturn;
    std::size_t lineFeed;
};

// An encoded line whose first digit was damaged looks like a plain one; the check value still tells.
bool isEncodedButForItsFirstDigit(std::string_view line) {
    if (line.empty() || line.front() < '1' || line.front() > '9') return false;
    std::string mended(line);
    mended.front() = '0';
    return !decodeLine(mended).damaged;
}

// Decodes a file line by line; one line at a time is all that it keeps.
class LineDecoder {
  public:
    explicit LineDecoder(std::string_view bytes) : isEncoded(bytes.starts_with('0')), cutter(bytes) {}

    std::optional<FileLine> next() {
        const auto line = cutter.next();
        if (!line) return std::nullopt;
        if (line->starts_with('0')) {
            const DecodedLine decoded = decodeLine(*line);
            return FileLine{fromCodePage(decoded.text), decoded.damaged};
        }
        if (isEncoded && isEncodedButForItsFirstDigit(*line))
            return FileLine{std::string(damagedLineText), true};
        return FileLine{fromCodePage(*line), false};
    }

  private:
    bool isEncoded;
    LineCutter cutter;
};

// --- Which row a line of the file is ---

// Markers that the reader looks for are known by their first five characters; only those of the headquarters
// attachment go on to say which of its sections they open.
constexpr std::size_t markerLength = 5;
constexpr std::string_view pageMarker = "[PAGE";
constexpr std::string_view ihqMarker = "[IHQ]";
constexpr std::string_view greenMarker = "[GREE";
constexpr std::string_view statedMarker = "[NEW3";

bool opensSection(std::string_view text) {
    return text.starts_with(ihqMarker) || text.starts_with(greenMarker) || text.starts_with(statedMarker);
}

// The line of the table where the section of a marker begins; 0 for a section that the table does not know.
std::size_t sectionOf(std::string_view text) {
    for (const LayoutRow& row : layoutRows()) {
        if (row.form != LineForm::Marker || row.section == 0) continue;
        const bool byWholeText = row.marker.starts_with(ihqMarker);
        if (byWholeText ? text == row.marker : text.starts_with(row.marker.substr(0, markerLength)))
            return row.section;
    }
    return 0;
}

// Follows a file from line to line and tells which row each line is.
class LineCounter {
  public:
    struct Place {
        const LayoutRow* row = nullptr; ///< Null when the line carries nothing.
        std::size_t lineOfRow = 0;
    };

    Place next(std::string_view text) {
        ++line;
        if (text.starts_with(pageMarker)) return {};
        if (opensSection(text)) {
            section = sectionOf(text);
            sectionBegan = line;
            return {};
        }
        if (section != 0) {
            const Place place = placeOf(section + (line - sectionBegan), section);
            if (place.row != nullptr) return place;
        }
        return placeOf(line, 0);
    }

    [[nodiscard]] std::size_t number() const { return line; }

  private:
    static Place placeOf(std::size_t lineOfTable, std::size_t section) {
        const LayoutRow* const row = rowOfLine(lineOfTable);
        if (row == nullptr || row->section != section) return {};
        return {row, lineOfTable - row->firstLine};
    }

    std::size_t line = 0;
    std::size_t section = 0;      ///< As LayoutRow::section; 0 before the first marker.
    std::size_t sectionBegan = 0; ///< Line of the file where its marker stands.
};

// --- Results ---

constexpr std::size_t versionToken = 9;

std::string_view versionOf(std::string_view header) {
    const auto tokens = SplitLine(header);
    return tokens.size() > versionToken ? tokens[versionToken] : std::string_view();
}

ReadResult refusedVersion(const ReturnState& state) {
    return {ReadStatus::Refused, std::string(GetMessage("M121")),
        fmt::format("not a return of version {} (M121)", state.strVersion), {}};
}

ReadResult unreadableLine(std::size_t line, std::string cause) {
    return {
        ReadStatus::Unreadable, fmt::format("ไม่สามารถอ่านไฟล์ข้อมูลได้ (บรรทัดที่ {})", line), std::move(cause), {}};
}

// As SplitLine counts them: one for each bar but the opening one.
bool hasTooManyTokens(std::string_view line) {
    if (line.size() <= readingLimits.tokens) return false;
    return static_cast<std::size_t>(std::ranges::count(line.substr(1), '|')) > readingLimits.tokens;
}

ReadResult tooManyTokens(std::size_t line) {
    return unreadableLine(line, fmt::format("line {} has more than {} fields", line, readingLimits.tokens));
}

} // namespace

std::vector<std::string> returnLines(ReturnState& state) {
    std::vector<std::string> lines;
    lines.reserve(returnLineCount);
    for (const LayoutRow& row : layoutRows()) {
        for (std::size_t line = 0; line + row.firstLine <= row.lastLine; ++line) {
            lines.push_back(writeRow(row, line, state));
        }
    }
    return lines;
}

std::string encodeReturn(ReturnState& state) {
    std::string bytes;
    for (const std::string& line : returnLines(state))
        bytes.append(EnCodeLine(line)).append(lineEnd);
    return bytes;
}

std::vector<FileLine> decodeFile(std::string_view bytes) {
    std::vector<FileLine> lines;
    LineDecoder decoder(bytes);
    while (auto line = decoder.next())
        lines.push_back(std::move(*line));
    return lines;
}

std::optional<std::size_t> lineBeyondLimits(std::string_view bytes) {
    LineCutter cutter(bytes);
    for (std::size_t number = 1; const auto line = cutter.next(); ++number) {
        if (line->size() > readingLimits.lineBytes || number > readingLimits.lines) return number;
    }
    return std::nullopt;
}

std::string beyondLimitsCause(std::size_t line) {
    return fmt::format("line {} is longer than {} bytes or beyond line {}", line, readingLimits.lineBytes,
        readingLimits.lines);
}

std::vector<std::size_t> damagedLineNumbers(const std::vector<FileLine>& lines) {
    std::vector<std::size_t> numbers;
    for (std::size_t k = 0; k < lines.size(); ++k) {
        if (lines[k].damaged) numbers.push_back(k + 1);
    }
    return numbers;
}

std::vector<std::string_view> SplitLine(std::string_view line) {
    if (line.empty()) return {};
    // The first character is the opening bar. A Thai letter in its place has several bytes.
    std::vector<std::string_view> tokens = splitBar(textMid(line, 2));
    tokens.pop_back();
    return tokens;
}

ReadResult readReturn(std::string_view bytes, ReturnState& state) {
    if (const auto line = lineBeyondLimits(bytes)) return unreadableLine(*line, beyondLimitsCause(*line));
    ReadResult result = refusedVersion(state); // Until the header says otherwise.
    std::vector<std::size_t> damaged;
    LineCounter counter;
    LineDecoder decoder(bytes);
    bool isReading = true;
    for (std::size_t number = 1; const auto line = decoder.next(); ++number) {
        if (line->damaged) damaged.push_back(number);
        if (!isReading) continue;
        if (number == 1 && versionOf(line->text) == state.strVersion) result = {};
        const auto [row, lineOfRow] = counter.next(line->text);
        if (hasTooManyTokens(line->text)) {
            result = tooManyTokens(number);
        } else if (row != nullptr) {
            readRow(*row, lineOfRow, *line, state);
        }
        // The header itself is taken in before its version is judged.
        isReading = result.status == ReadStatus::Loaded;
    }
    result.damagedLines = std::move(damaged);
    return result;
}

} // namespace lodge
