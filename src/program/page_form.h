// A page of the return or a screen of the shell: it stands in the main frame and has no frame of its own.
#pragma once

#include "controls/form.h"

namespace lodge {

class PageForm : public Form {
  public:
    using Form::Form;
    [[nodiscard]] bool isClosable() const override { return false; }
};

} // namespace lodge
