#include "cli/cli.h"

#include <CLI/CLI.hpp>

#include <ostream>

namespace lodge {

const std::vector<AddCommand>& commands() {
    static const std::vector<AddCommand> table{
        addCheckCommand, addLinesCommand, addShowCommand, addPrintCommand, addRunCommand};
    return table;
}

int runCli(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
    CLI::App app{"lodge77-cli works on corporate income-tax returns, form ก.ข.ค.77, without a screen."};
    app.set_version_flag("--version", "lodge77-cli " LODGE_VERSION);
    app.require_subcommand(1);
    app.get_formatter()->column_width(28);
    CommandContext context{out, err};
    for (const AddCommand add : commands())
        add(app, context);

    std::vector<const char*> pointers;
    pointers.reserve(arguments.size());
    for (const std::string& argument : arguments)
        pointers.push_back(argument.c_str());
    try {
        app.parse(static_cast<int>(pointers.size()), pointers.data());
    } catch (const CLI::ParseError& error) {
        return app.exit(error, out, err) == 0 ? exitDone : exitAtFault;
    }
    return context.exitStatus;
}

} // namespace lodge
