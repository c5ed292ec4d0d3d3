#include "yardsticks.h"

#include <fmt/format.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <zlib.h>

extern char** environ; // NOLINT(readability-redundant-declaration): POSIX leaves it to the program.

namespace lodge::bench {

namespace {

using Group = std::array<char, 4>;

const auto groups = [] {
    std::array<Group, 256> table{};
    for (unsigned code = 0; code < table.size(); ++code) {
        const std::string digits = fmt::format("{:04}", code);
        std::memcpy(table[code].data(), digits.data(), table[code].size());
    }
    return table;
}();

// The value of a character at each of the four places of a group.
const auto values = [] {
    std::array<std::array<std::uint16_t, 256>, 4> table{};
    for (unsigned digit = 0; digit < 10; ++digit) {
        unsigned weight = 1000;
        for (auto& place : table) {
            place['0' + digit] = static_cast<std::uint16_t>(digit * weight);
            weight /= 10;
        }
    }
    return table;
}();

unsigned groupValue(const char* group) {
    unsigned value = 0;
    for (std::size_t place = 0; place < values.size(); ++place)
        value += values[place][static_cast<unsigned char>(group[place])];
    return value;
}

void demand(bool holds, const char* what) {
    if (!holds) throw std::runtime_error(what);
}

} // namespace

std::string encodeByTable(std::string_view bytes) {
    std::string digits((bytes.size() + 1) * 4, '\0');
    char* at = digits.data();
    unsigned sum = 0;
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        std::memcpy(at, groups[code].data(), 4);
        at += 4;
        sum += code;
    }
    for (char* digit = at + 4; digit-- != at; sum /= 10)
        *digit = static_cast<char>('0' + sum % 10);
    return digits;
}

std::string decodeByTable(std::string_view digits) {
    std::string bytes(digits.size() / 4 - 1, '\0');
    unsigned sum = 0;
    for (std::size_t index = 0; index < bytes.size(); ++index) {
        const unsigned code = groupValue(digits.data() + index * 4);
        bytes[index] = static_cast<char>(static_cast<unsigned char>(code));
        sum += code;
    }
    demand(sum % 10000 == groupValue(digits.data() + bytes.size() * 4), "check value");
    return bytes;
}

std::string deflateByZlib(std::string_view bytes) {
    z_stream stream{};
    demand(deflateInit2(&stream, 6, Z_DEFLATED, -MAX_WBITS, 8, Z_DEFAULT_STRATEGY) == Z_OK, "deflateInit2");
    std::string packed(deflateBound(&stream, bytes.size()), '\0');
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
    stream.avail_in = static_cast<uInt>(bytes.size());
    stream.next_out = reinterpret_cast<Bytef*>(packed.data());
    stream.avail_out = static_cast<uInt>(packed.size());
    const int result = deflate(&stream, Z_FINISH);
    packed.resize(stream.total_out);
    deflateEnd(&stream);
    demand(result == Z_STREAM_END, "deflate");
    return packed;
}

std::string inflateByZlib(std::string_view packed) {
    constexpr std::size_t piece = 16384;
    z_stream stream{};
    demand(inflateInit2(&stream, -MAX_WBITS) == Z_OK, "inflateInit2");
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(packed.data()));
    stream.avail_in = static_cast<uInt>(packed.size());
    std::string bytes;
    uLong checkSum = crc32(0, nullptr, 0);
    int result = Z_OK;
    while (result == Z_OK) {
        const std::size_t before = bytes.size();
        bytes.resize(before + piece);
        auto* const out = reinterpret_cast<Bytef*>(bytes.data() + before);
        stream.next_out = out;
        stream.avail_out = piece;
        result = inflate(&stream, Z_NO_FLUSH);
        bytes.resize(before + piece - stream.avail_out);
        checkSum = crc32(checkSum, out, static_cast<uInt>(piece - stream.avail_out));
    }
    inflateEnd(&stream);
    demand(result == Z_STREAM_END && checkSum != 0, "inflate");
    return bytes;
}

void writeSynced(const std::string& folder, const std::string& name, std::string_view bytes) {
    const std::string temporary = folder + "/temporary";
    const int file = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    demand(file >= 0, "open");
    demand(::write(file, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()), "write");
    demand(::fsync(file) == 0 && ::close(file) == 0, "fsync");
    demand(std::rename(temporary.c_str(), (folder + "/" + name).c_str()) == 0, "rename");
    const int directory = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    demand(directory >= 0 && ::fsync(directory) == 0 && ::close(directory) == 0, "fsync of the folder");
}

long runProgram(const std::vector<std::string>& call) {
    std::vector<char*> arguments;
    arguments.reserve(call.size() + 1);
    for (const std::string& word : call)
        arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t child = 0;
    const int started = posix_spawn(&child, arguments.front(), &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    demand(started == 0, "posix_spawn");
    int status = 0;
    rusage used = {};
    demand(::wait4(child, &status, 0, &used) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0,
        arguments.front());
    return used.ru_maxrss;
}

} // namespace lodge::bench
