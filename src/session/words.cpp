#include "session/words.h"

#include "session/fault.h"
#include "session/nearest_name.h"
#include "values/text.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace lodge {

namespace {

struct Escape {
    char letter;
    char character;
};

constexpr std::array escapes = {Escape{'"', '"'}, Escape{'\\', '\\'}, Escape{'n', '\n'}, Escape{'r', '\r'}};

bool isBlank(char c) { return c == ' ' || c == '\t'; }

bool isDigit(char c) { return c >= '0' && c <= '9'; }

class LineReader {
  public:
    LineReader(std::string_view line, const Substitutes& substitutes)
        : line_(line), substitutes_(substitutes) {}

    Words words() {
        Words words;
        while (skipBlanks() && !atComment(words)) {
            words.push_back(peek() == '"' ? quotedWord() : bareWord());
        }
        return words;
    }

  private:
    [[nodiscard]] bool atEnd() const { return at_ == line_.size(); }
    [[nodiscard]] char peek() const { return line_[at_]; }

    /// False at the end of the line.
    bool skipBlanks() {
        while (!atEnd() && isBlank(peek())) {
            ++at_;
        }
        return !atEnd();
    }

    /// Called at the start of a word only. `choose CONTROL #3` means the entry with that index: without it
    /// the command would lack its last word, so no comment is lost.
    [[nodiscard]] bool atComment(const Words& before) const {
        if (peek() != '#') {
            return false;
        }
        const bool choosesByIndex = before.size() == 2 && before.front() == "choose" && at_ + 1 < line_.size()
                                    && isDigit(line_[at_ + 1]);
        return !choosesByIndex;
    }

    std::string bareWord() {
        std::string word;
        while (!atEnd() && !isBlank(peek())) {
            if (peek() == '"') {
                throw ScriptFault("a quotation mark inside a word: put the whole word in double quotes and "
                                  "write \\\" for the mark");
            }
            takeCharacter(word);
        }
        return word;
    }

    std::string quotedWord() {
        std::string word;
        ++at_;
        while (!atEnd() && peek() != '"') {
            if (peek() == '\\') {
                word += escapedCharacter();
            } else {
                takeCharacter(word);
            }
        }
        if (atEnd()) {
            throw ScriptFault("a double quote is not closed");
        }
        ++at_;
        if (!atEnd() && !isBlank(peek())) {
            throw ScriptFault("a blank must follow a closing double quote");
        }
        return word;
    }

    char escapedCharacter() {
        ++at_;
        const char letter = atEnd() ? '\0' : peek();
        const auto* const escape = std::ranges::find(escapes, letter, &Escape::letter);
        if (escape == escapes.end()) {
            throw ScriptFault(
                "unknown escape: inside double quotes a backslash stands before \", \\, n or r; "
                "write \\\\ for a backslash");
        }
        ++at_;
        return escape->character;
    }

    void takeCharacter(std::string& word) {
        if (line_.substr(at_, 2) != "${") {
            word += line_[at_++];
            return;
        }
        const std::size_t close = line_.find('}', at_);
        if (close == std::string_view::npos) {
            throw ScriptFault("${ without its closing brace");
        }
        word += substitute(line_.substr(at_ + 2, close - at_ - 2));
        at_ = close + 1;
    }

    const std::string& substitute(std::string_view name) const {
        const auto found = substitutes_.find(name);
        if (found == substitutes_.end()) {
            throw ScriptFault("nothing is defined for ${" + std::string(name) + "}"
                              + nearestNameHint(name, keysOf(substitutes_)));
        }
        return found->second;
    }

    static std::vector<std::string> keysOf(const Substitutes& substitutes) {
        std::vector<std::string> keys;
        for (const auto& [name, value] : substitutes) {
            keys.push_back(name);
        }
        return keys;
    }

    std::string_view line_;
    const Substitutes& substitutes_;
    std::size_t at_ = 0;
};

} // namespace

Words splitWords(std::string_view line, const Substitutes& substitutes) {
    if (!isUtf8(line)) {
        throw ScriptFault("the line is not UTF-8");
    }
    return LineReader(line, substitutes).words();
}

std::string escaped(std::string_view text) {
    std::string result;
    for (const char c : text) {
        const auto* const escape = std::ranges::find(escapes, c, &Escape::character);
        if (escape != escapes.end()) {
            result += '\\';
            result += escape->letter;
        } else {
            result += c;
        }
    }
    return result;
}

std::string inQuotes(std::string_view text) { return '"' + escaped(text) + '"'; }

bool isUtf8(std::string_view text) {
    constexpr char32_t malformed = 0xFFFD;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t before = at;
        // The replacement character written out has three bytes; a malformed byte stands alone.
        if (nextCharacter(text, at) == malformed && at - before == 1) {
            return false;
        }
    }
    return true;
}

} // namespace lodge
