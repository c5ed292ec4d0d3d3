// The ISIC codes beside the program: the archive "isic_country_57.txt" with the list "isiccode.txt", in which
// a line is a code of six digits and a name, both quoted, in the Thai code page. A list of countries stands
// in the archive, too; nothing reads it.
#pragma once

#include "program/isic_tables.h"
#include "program/program.h"

#include <string>
#include <string_view>

namespace lodge {

inline constexpr const char* isicArchiveName = "isic_country_57.txt";
inline constexpr const char* isicListName = "isiccode.txt";

/// Fills strIsicCode, strIsicName and intIsicCount from the bytes of a list. Characters 2 to 7 of a line are
/// the code, 11 to the last but one the name; the others are not looked at. An empty line ends the list.
void readIsicList(std::string_view bytes, ReturnState& state);

/// Reads the archive in memory, so that it needs no folder to write into and leaves no file behind.
class IsicArchive : public IsicTables {
  public:
    explicit IsicArchive(Program& program) : program_(program) {}

    /// The list is empty after a failure, whose cause is shown in a box under the archive's name.
    void LoadIsicTables() override;

  private:
    void tell(const std::string& cause);

    Program& program_;
};

} // namespace lodge
