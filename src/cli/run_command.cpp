// `lodge77-cli run`: a session script over the whole program.

#include "cli/cli.h"
#include "program/program_folder.h"
#include "session/run_script.h"

#include <CLI/CLI.hpp>

#include <filesystem>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

namespace lodge {

namespace {

struct RunOptions {
    std::string script;
    std::string programFolder;
    std::vector<std::string> defines;
    bool keepGoing = false;
};

void run(CommandContext& context, const RunOptions& options) {
    const auto defines = parseDefines(options.defines);
    if (!defines) {
        context.err << "--define: write NAME=VALUE\n";
        context.exitStatus = exitAtFault;
        return;
    }
    const ScriptRun scriptRun{.script = options.script,
        .programFolder = options.programFolder.empty()
                             ? programFolder()
                             : std::filesystem::absolute(options.programFolder).lexically_normal(),
        .defines = *defines,
        .keepGoing = options.keepGoing};
    context.exitStatus = static_cast<int>(runScript(scriptRun, std::cin, context.out, context.err));
}

} // namespace

void addRunCommand(CLI::App& app, CommandContext& context) {
    const auto options = std::make_shared<RunOptions>();
    CLI::App* const command = app.add_subcommand("run", "Run a session script over the whole program");
    command->add_option("SCRIPT", options->script, "A UTF-8 text file, or - for standard input")->required();
    command
        ->add_option("--program-folder", options->programFolder,
            "The folder in which the program's files stand (default: that of the executable; where it is "
            "installed for all users, ~/.local/share/lodge77)")
        ->type_name("DIR")
        ->check(CLI::ExistingDirectory);
    command->add_option("--define", options->defines, "What ${NAME} stands for in the script")
        ->type_name("NAME=VALUE")
        ->allow_extra_args(false);
    command->add_flag("--keep-going", options->keepGoing, "Report all failed expectations before the end");
    command->footer(
        "The script types, clicks and answers as a person would and says what it expects to see. Boxes that\n"
        "come up are printed as they do. What does not go through is told on standard error as\n"
        "\"SCRIPT:LINE: cause\". The exit status is 0 when all went through, 1 when an expectation failed,\n"
        "2 when the script itself is at fault.");
    command->callback([options, &context] { run(context, *options); });
}

} // namespace lodge
