// A stored return that was damaged is refused, or reads as the same return, or says which of its lines are
// damaged. It is never read as another one.
#include "file/archive.h"
#include "file/line_codec.h"
#include "file/return_file.h"
#include "file/store_load.h"
#include "temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lodge {
namespace {

using namespace lodge::testing;
using ::testing::ElementsAre;

const std::string storedReturn = LODGE_TEST_DATA "/returns/ordinary-company/01055360003132561100C.txt";

std::string packedReturn() { return bytesOf(storedReturn); }

std::string innerText() { return unpackArchive(packedReturn(), 1).members.at(0).content; }

/// The lines of a text without their ends, and the text of lines.
std::vector<std::string> cut(const std::string& text) {
    std::vector<std::string> lines;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = text.find("\r\n", begin);
        lines.push_back(text.substr(begin, end - begin));
        begin = end + 2;
    }
    return lines;
}

std::string joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines)
        text += line + "\r\n";
    return text;
}

std::string repacked(const std::string& text) { return packArchive("returnM.txt", text, {}).bytes; }

// --- The archive ---

TEST(DamagedArchive, EveryFlippedBitIsRefusedOrChangesNothing) {
    const std::string sound = packedReturn();
    const std::string content = innerText();
    std::size_t harmless = 0;
    for (std::size_t bit = 0; bit < sound.size() * 8; ++bit) {
        std::string damaged = sound;
        damaged[bit / 8] = static_cast<char>(damaged[bit / 8] ^ 1 << bit % 8);
        const Unpacked unpacked = unpackArchive(damaged, 1);
        if (unpacked.fault != ArchiveFault::None) continue;
        ++harmless;
        ASSERT_EQ(unpacked.members.at(0).content, content) << "byte " << bit / 8 << ", bit " << bit % 8;
    }
    // Times, versions, attributes: what nobody reads. The packed bytes are most of the file, and none of
    // theirs is so.
    EXPECT_LT(harmless, 400U);
    EXPECT_GT(harmless, 0U);
}

TEST(DamagedArchive, EveryTruncationIsRefused) {
    const std::string sound = packedReturn();
    for (std::size_t size = 0; size < sound.size(); ++size) {
        EXPECT_NE(unpackArchive(sound.substr(0, size), 1).fault, ArchiveFault::None) << size;
        EXPECT_NE(unpackArchive(sound.substr(sound.size() - size), 1).fault, ArchiveFault::None) << size;
    }
}

// --- The encoded text ---

TEST(DamagedText, EveryChangeOfOneDigitDamagesItsLine) {
    for (const std::string& line : cut(innerText())) {
        for (std::size_t place = 0; place < line.size(); ++place) {
            for (char digit = '0'; digit <= '9'; ++digit) {
                if (digit == line[place]) continue;
                std::string changed = line;
                changed[place] = digit;
                ASSERT_TRUE(decodeLine(changed).damaged) << line << " at " << place << " to " << digit;
            }
        }
    }
}

// One digit of each line in a rebuilt archive, at another place from line to line; and, of each line, its
// first digit, which tells an encoded line from a plain one.
TEST(DamagedText, InAStoredReturnALineOfOneChangedDigitIsReportedAndNoOtherLineChanges) {
    const std::vector<std::string> sound = cut(innerText());
    const auto soundLines = decodeFile(joined(sound));
    for (std::size_t number = 0; number < sound.size(); ++number) {
        for (const std::size_t place :
            {std::size_t{0}, number * 7 % sound[number].size(), sound[number].size() - 1}) {
            std::vector<std::string> lines = sound;
            lines[number][place] =
                lines[number][place] == '9' ? '0' : static_cast<char>(lines[number][place] + 1);
            const Unpacked unpacked = unpackArchive(repacked(joined(lines)), 1);
            ASSERT_EQ(unpacked.fault, ArchiveFault::None);

            ReturnState state;
            const ReadResult result = readReturn(unpacked.members.front().content, state);
            if (number == 0) {
                EXPECT_EQ(result.status, ReadStatus::Refused);
                continue;
            }
            EXPECT_EQ(result.status, ReadStatus::Loaded);
            ASSERT_THAT(result.damagedLines, ElementsAre(number + 1)) << "place " << place;
            const auto read = decodeFile(unpacked.members.front().content);
            for (std::size_t other = 0; other < read.size(); ++other)
                EXPECT_EQ(read[other].text, other == number ? "-1" : soundLines[other].text);
        }
    }
}

TEST(DamagedText, APlainLineInAPlainFileIsNeverTakenForADamagedOne) {
    // "A" encoded, its first digit changed: a text that a plain file may hold as an amount.
    EXPECT_FALSE(decodeFile("|plain|\r\n10650065\r\n").at(1).damaged);
    EXPECT_TRUE(decodeFile(encodeLine("|x|") + "\r\n10650065\r\n").at(1).damaged);
    EXPECT_FALSE(decodeFile(encodeLine("|x|") + "\r\n10650066\r\n").at(1).damaged);
}

} // namespace
} // namespace lodge
