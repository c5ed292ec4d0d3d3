// What our own code is measured against: the same work by the shortest way there is.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lodge::bench {

/// Four characters for each byte out of a table, and a sum; and back, each group through a table.
std::string encodeByTable(std::string_view bytes);
std::string decodeByTable(std::string_view digits);

/// zlib alone, level 6, raw.
std::string deflateByZlib(std::string_view bytes);
/// zlib alone, read piece by piece as by anybody who believes no claimed size, and the check sum that every
/// reader of a zip archive owes.
std::string inflateByZlib(std::string_view packed);

/// A file written, synced, renamed, its folder synced: the system calls of a safe store and nothing else.
void writeSynced(const std::string& folder, const std::string& name, std::string_view bytes);

/// Runs a program, named by its path before its arguments, throws its output away and waits for its end. The
/// most memory that it held, KiB.
long runProgram(const std::vector<std::string>& call);

} // namespace lodge::bench
