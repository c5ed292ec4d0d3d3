// Where the business lines of page 1 come from: the table of ISIC codes beside the program.
#pragma once

namespace lodge {

class IsicTables {
  public:
    virtual ~IsicTables() = default;
    /// Reads the tables when the start screen loads. A missing or broken table shows its cause itself.
    virtual void LoadIsicTables() = 0;
};

} // namespace lodge
