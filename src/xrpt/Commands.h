// The subcommands. Each registers its options with the program and runs when the command line names it.
#pragma once

namespace CLI {
class App;
}

namespace xrpt {

// `status` receives the exit status of the command that ran.
void AddResave(CLI::App& program, int& status);
void AddInfo(CLI::App& program, int& status);
void AddEdit(CLI::App& program, int& status);
void AddEvaluate(CLI::App& program, int& status);
void AddValidate(CLI::App& program, int& status);
void AddRender(CLI::App& program, int& status);
void AddStyle(CLI::App& program, int& status);
void AddSearch(CLI::App& program, int& status);
void AddReplace(CLI::App& program, int& status);
void AddClean(CLI::App& program, int& status);

}  // namespace xrpt
