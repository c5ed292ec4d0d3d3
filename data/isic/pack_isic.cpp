// Packs the lists of business codes and countries, which stand in the tree as UTF-8 so that people can read
// and mend them, into the archive that the program reads: Thai code page, lines ended by CR LF.
//
//     pack_isic ISICCODE.UTF8.TXT COUNTRY.UTF8.TXT ARCHIVE
#include "file/archive.h"
#include "file/file_io.h"
#include "file/isic_tables.h"
#include "values/code_page.h"
#include "values/text.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lodge {
namespace {

constexpr std::uint64_t longestSource = 4U << 20U;

std::string contentOf(const std::string& path) {
    FileContent file = readWholeFile(path, longestSource);
    if (!file.error.empty()) {
        throw std::runtime_error(path + ": " + file.error);
    }
    return std::move(file.bytes);
}

/// `"code","name"`; a quote inside would shift the columns that the program reads.
bool isRow(std::string_view line) {
    return line.starts_with('"') && line.ends_with('"') && line.find("\",\"") != std::string_view::npos
           && removeAll(line, "\"").size() + 4 == line.size();
}

std::string inCodePage(const std::string& path) {
    const std::string source = contentOf(path);
    std::string bytes;
    std::size_t number = 0;
    for (std::size_t start = 0; start < source.size();) {
        const std::size_t end = std::min(source.find('\n', start), source.size());
        const std::string_view line = std::string_view(source).substr(start, end - start);
        start = end + 1;
        ++number;
        const std::string row = toCodePage(line);
        if (!isRow(line) || fromCodePage(row) != line) {
            throw std::runtime_error(path + ":" + std::to_string(number) + ": not a quoted code and name");
        }
        bytes += row + "\r\n";
    }
    return bytes;
}

void pack(const std::string& codes, const std::string& countries, const std::string& archive) {
    using namespace std::chrono;
    const std::vector<Member> members = {{.name = isicListName, .content = inCodePage(codes)},
        {.name = "country.txt", .content = inCodePage(countries)}};
    const Packed packed = packArchive(members, local_days{year{2018} / 1 / 1});
    if (!packed.error.empty()) {
        throw std::runtime_error(packed.error);
    }
    // A plain file that everyone may read, unlike a stored return.
    std::ofstream file(archive, std::ios::binary);
    file << packed.bytes;
    if (!file.flush()) {
        throw std::runtime_error(archive + ": cannot be written");
    }
}

} // namespace
} // namespace lodge

int main(int argc, char** argv) {
    if (argc != 4) {
        std::cerr << "usage: pack_isic ISICCODE.UTF8.TXT COUNTRY.UTF8.TXT ARCHIVE\n";
        return 2;
    }
    try {
        lodge::pack(argv[1], argv[2], argv[3]);
    } catch (const std::exception& fault) {
        std::cerr << "pack_isic: " << fault.what() << '\n';
        return 1;
    }
    return 0;
}
