#include "core/open_with.h"

#include <filesystem>
#include <optional>

namespace kelvora {
namespace {

// Takes the next part from the front; nothing if only blanks are left.
std::optional<std::string> TakePart(std::string_view& rest) {
  rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
  if (rest.empty()) return std::nullopt;
  const bool quoted = rest.front() == '"';
  if (quoted) rest.remove_prefix(1);
  const std::string part(rest.substr(0, rest.find(quoted ? '"' : ' ')));
  rest.remove_prefix(std::min(part.size() + 1, rest.size()));
  return part;
}

}  // namespace

void Class_Openwith::OpenDialog(const std::string& address) {
  if (!opener_.Open(address)) opener_.OpenWithChosenProgram(address);
}

void OpenFile(Program& program, const std::string& address, ExportDialog export_dialog) {
  program.Guard("#FF8-1", [&] {
    WindowView* const dialog = program.windows.export_html;
    if (export_dialog == ExportDialog::closes_first && dialog != nullptr) dialog->CloseWindow();
    Class_Openwith(program.platform.opener).OpenDialog(address);
  });
}

void RunProgram(Program& program, std::string_view command_line) {
  program.Guard("#FF8-2", [&] {
    const CommandLine command = SplitCommandLine(command_line);
    const std::string folder = std::filesystem::path(command.program).parent_path().string();
    if (!program.platform.opener.Start(command, folder)) {
      ThrowSystemError(std::errc::no_such_file_or_directory);
    }
  });
}

CommandLine SplitCommandLine(std::string_view command_line) {
  CommandLine command;
  command.program = TakePart(command_line).value_or(std::string());
  while (auto part = TakePart(command_line)) command.arguments.push_back(*std::move(part));
  return command;
}

}  // namespace kelvora
