// What a store and a load cost, against the least that their work could cost.
#include "file/archive.h"
#include "file/line_codec.h"
#include "file/return_file.h"
#include "file/store_load.h"
#include "ratios.h"
#include "values/code_page.h"
#include "yardsticks.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>

namespace {

using namespace lodge;
using namespace lodge::bench;

/// A stored return in every form that it goes through.
struct Sample {
    ReturnState state;
    std::vector<std::string> texts;   ///< The lines in UTF-8.
    std::vector<std::string> lines;   ///< In the code page.
    std::vector<std::string> encoded; ///< As digits.
    std::string inner;
    std::string packed;
    std::string deflated;
};

Sample readSample() {
    Sample sample;
    const InnerFile file = readInnerFile(LODGE_RETURN);
    if (!file.error.empty() || readReturn(file.bytes, sample.state).status != ReadStatus::Loaded)
        throw std::runtime_error("no sample");
    sample.state.strStoreType = "N";
    sample.texts = returnLines(sample.state);
    for (const std::string& text : sample.texts) {
        sample.lines.push_back(toCodePage(text));
        sample.encoded.push_back(encodeLine(sample.lines.back()));
    }
    sample.inner = encodeReturn(sample.state);
    sample.packed = packArchive("returnM.txt", sample.inner, {}).bytes;
    sample.deflated = deflateByZlib(sample.inner);
    return sample;
}

Sample& sample() {
    static Sample theSample = readSample();
    return theSample;
}

/// A folder of this run's own, beside the program: a store must meet a real disk, and /tmp may be none.
class Folder {
  public:
    Folder() : path(std::filesystem::current_path() / "bench-folder") {
        std::filesystem::create_directories(path);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    ~Folder() { std::filesystem::remove_all(path); }
    std::filesystem::path path;
};

template <typename Line, typename Work>
void overLines(benchmark::State& rounds, const std::vector<Line>& lines, Work work) {
    for ([[maybe_unused]] const auto round : rounds) {
        for (const auto& line : lines)
            benchmark::DoNotOptimize(work(line));
    }
}

void encode(benchmark::State& rounds) { overLines(rounds, sample().lines, encodeLine); }
void encodeYardstick(benchmark::State& rounds) { overLines(rounds, sample().lines, encodeByTable); }
void decode(benchmark::State& rounds) { overLines(rounds, sample().encoded, decodeLine); }
void decodeYardstick(benchmark::State& rounds) { overLines(rounds, sample().encoded, decodeByTable); }

void pack(benchmark::State& rounds) {
    for ([[maybe_unused]] const auto round : rounds)
        benchmark::DoNotOptimize(packArchive("returnM.txt", sample().inner, {}));
}
void packYardstick(benchmark::State& rounds) {
    for ([[maybe_unused]] const auto round : rounds)
        benchmark::DoNotOptimize(deflateByZlib(sample().inner));
}
void unpack(benchmark::State& rounds) {
    for ([[maybe_unused]] const auto round : rounds)
        benchmark::DoNotOptimize(unpackArchive(sample().packed, 1));
}
void unpackYardstick(benchmark::State& rounds) {
    for ([[maybe_unused]] const auto round : rounds)
        benchmark::DoNotOptimize(inflateByZlib(sample().deflated));
}

void store(benchmark::State& rounds) {
    const Folder folder;
    for ([[maybe_unused]] const auto round : rounds) {
        if (!storeReturn(sample().state, folder.path.string(), "0105536000313", {}).error.empty())
            rounds.SkipWithError("not stored");
    }
}
void writeOut(benchmark::State& rounds) {
    for ([[maybe_unused]] const auto round : rounds)
        benchmark::DoNotOptimize(encodeReturn(sample().state));
}
void write(benchmark::State& rounds) {
    const Folder folder;
    for ([[maybe_unused]] const auto round : rounds)
        writeSynced(folder.path.string(), "01055360003132561100N.txt", sample().packed);
}

void load(benchmark::State& rounds) {
    for ([[maybe_unused]] const auto round : rounds) {
        ReturnState state;
        benchmark::DoNotOptimize(loadReturn(LODGE_RETURN, state, 2019));
    }
}

void cliLines(benchmark::State& rounds) {
    for ([[maybe_unused]] const auto round : rounds)
        runProgram({LODGE_CLI, "lines", LODGE_RETURN});
}
void cliYardstick(benchmark::State& rounds) {
    for ([[maybe_unused]] const auto round : rounds)
        runProgram({LODGE_OPEN_ARCHIVE, LODGE_RETURN});
}

// clang-format off
constexpr std::array measurements{
    Measurement{"encode", encode},
    Measurement{"encode-by-table", encodeYardstick},
    Measurement{"decode", decode},
    Measurement{"decode-by-table", decodeYardstick},
    Measurement{"pack", pack},
    Measurement{"zlib-deflate-6", packYardstick},
    Measurement{"unpack", unpack},
    Measurement{"zlib-inflate-crc", unpackYardstick},
    Measurement{"store", store},
    Measurement{"lines-of-return", writeOut},
    Measurement{"write-synced", write},
    Measurement{"load", load},
    Measurement{"cli-lines", cliLines},
    Measurement{"process-with-libzip", cliYardstick},
};
// clang-format on

const std::array ratios{
    Ratio{Clock::Processor, "encode", {"encode-by-table"}, 2.0},
    Ratio{Clock::Processor, "decode", {"decode-by-table"}, 2.0},
    Ratio{Clock::Processor, "pack", {"zlib-deflate-6"}, 1.1},
    Ratio{Clock::Processor, "unpack", {"zlib-inflate-crc"}, 1.2},
    Ratio{Clock::Wall, "store", {"lines-of-return", "zlib-deflate-6", "write-synced"}, 1.5},
    Ratio{Clock::Wall, "cli-lines", {"process-with-libzip"}, 2.0},
};

} // namespace

int main(int argumentCount, char** argumentTexts) {
    return runMeasurements(argumentCount, argumentTexts, benchmark::kMicrosecond, measurements, ratios);
}
