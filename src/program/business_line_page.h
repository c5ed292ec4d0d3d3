// A page that takes a business line chosen in the ISIC dialog. The dialog finds the page on screen by this
// interface and need not know the page's form.
#pragma once

#include <string>

namespace lodge {

class BusinessLinePage {
  public:
    virtual ~BusinessLinePage() = default;
    /// Takes the name and the six-digit code into a row, which only page 1 has more than one of. False, with
    /// nothing taken, when the code stands in another row already.
    virtual bool takeBusinessLine(int row, const std::string& name, const std::string& code) = 0;
};

} // namespace lodge
