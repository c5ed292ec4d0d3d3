// Builds zip archives field by field, right ones and such as no zip program would make.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace lodge::testing {

/// The raw deflate stream of a text.
std::string deflated(const std::string& content, int level = 6);

struct PlannedMember {
    std::string name = "01055360003132561100CM.txt";
    std::string content;
    std::uint16_t method = 8;
    std::uint16_t flags = 0;
    std::uint8_t madeBy = 0; ///< 0 DOS, 3 Unix.
    std::uint32_t attributes = 0;
    std::uint16_t disk = 0;
    std::string localExtra = {};
    std::string extra = {};
    std::string descriptor = {}; ///< Behind the packed bytes.

    // What is claimed in place of the truth: in both headers, in the directory alone, in the local header
    // alone.
    std::optional<std::string> packed = {};
    std::optional<std::uint32_t> checkSum = {}, packedSize = {}, size = {};
    std::optional<std::uint32_t> directoryCheckSum = {}, directoryPackedSize = {}, directorySize = {},
                                 offset = {};
    std::optional<std::uint32_t> localCheckSum = {}, localPackedSize = {}, localSize = {};
    std::optional<std::string> localName = {};
    std::optional<std::uint16_t> localMethod = {}, localFlags = {}, localNameLength = {};
    std::optional<std::uint16_t> nameLength = {}, extraLength = {};
};

struct PlannedArchive {
    std::vector<PlannedMember> members;
    std::string before = {};        ///< In front of everything.
    bool offsetsCountBefore = true; ///< Whether the offsets know of it.
    std::string beforeDirectory = {};
    std::string behindDirectory = {}; ///< Between the directory and its end.
    std::string comment = {};
    std::string behind = {};
    std::optional<std::uint16_t> count = {}, countOfThisDisk = {}, disk = {}, commentLength = {};
    std::optional<std::uint32_t> directorySize = {}, directoryOffset = {};
};

std::string build(const PlannedArchive& plan);

/// Little-endian numbers of two, four and eight bytes.
std::string two(std::uint64_t number);
std::string four(std::uint64_t number);
std::string eight(std::uint64_t number);

} // namespace lodge::testing
