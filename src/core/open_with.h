// Handing over to other programs: opening a file or an address, and running a program.
#pragma once

#include <string>
#include <string_view>

#include "core/program.h"

namespace kelvora {

// Asks the platform to open something, and lets the user choose a program where none is linked.
class Class_Openwith {
 public:
  explicit Class_Openwith(Opener& opener) : opener_(opener) {}
  void OpenDialog(const std::string& address);

 private:
  Opener& opener_;
};

enum class ExportDialog { stays, closes_first };

// Opens a path or an internet address with the user's own program for it. A failure shows "#FF8-1".
void OpenFile(Program& program, const std::string& address, ExportDialog export_dialog);

// Runs a command line without waiting, the program's folder being the current one of what is run.
// This program keeps its own current folder, below which its files may lie. A program that can't be
// started shows "#FF8-2".
void RunProgram(Program& program, std::string_view command_line);

// Takes a command line apart. What stands between two '"' is one part, blanks included; elsewhere
// blanks separate. A quote that nothing closes reaches to the end.
[[nodiscard]] CommandLine SplitCommandLine(std::string_view command_line);

}  // namespace kelvora
