// Stands in for a page that the program does not have yet: a page with its title and nothing on it.
#pragma once

#include "program/page_form.h"
#include "program/program.h"
#include "shell/page_table.h"

namespace lodge {

class EmptyPage : public PageForm {
  public:
    EmptyPage(Program& program, const PageRow& row) : PageForm(program.desk, row.form, row.title) {}
};

} // namespace lodge
