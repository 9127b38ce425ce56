#include "core/frame/outside_commands.h"

#include "core/open_with.h"
#include "internet/servers.h"
#include "language/main_texts.h"
#include "language/own_texts.h"

namespace kelvora {
namespace {

using namespace main_text;

constexpr std::string_view kDiagnoseProgram = "Diagnoza.exe";

void OpenHomePage(Program& program, std::string ServerHosts::*host) {
  program.Guard("#F4-0", [&] {
    const std::string address = ReadServerHosts(program.paths).*host;
    if (address.empty()) {
      return Tell(program, BoxIcon::warning,
                  JoinLines(program.texts, {kAddressUnknown, kAddressAdvice}));
    }
    OpenFile(program, address, ExportDialog::stays);
  });
}

std::string HelpFolder(const Program& program) {
  const bool dutch = LanguageOf(program.texts) == Language::dutch;
  return program.paths.ProgramPath + (dutch ? "help/nl/" : "help/en/");
}

}  // namespace

void OpenWebsite(Program& program) {
  OpenHomePage(program, &ServerHosts::website);
}

void OpenFoodServerHomePage(Program& program) {
  const bool english = program.settings[Setting::opt_server] == "1";
  OpenHomePage(program, english ? &ServerHosts::english : &ServerHosts::dutch);
}

void RunDiagnose(Program& program) {
  program.Guard("#F4-1", [&] {
    const std::string& folder = program.paths.ProgramPath;
    const std::string path = folder + std::string(kDiagnoseProgram);
    if (FileExists(path)) return RunProgram(program, '"' + path + '"');
    const TextTables& texts = program.texts;
    Tell(program, BoxIcon::warning,
         JoinLines(texts, {kDiagnoseMissing, kDiagnoseFolder}) + "\n" + TextFromUtf8(folder) +
             "\n\n" + texts[kDiagnoseAdvice]);
  });
}

void OpenHelp(Program& program, std::string_view name) {
  program.Guard("#F4-2", [&] {
    const std::string folder = HelpFolder(program);
    const std::string page = folder + std::string(name) + ".html";
    if (FileExists(page)) return OpenFile(program, page, ExportDialog::stays);
    Tell(program, BoxIcon::warning,
         JoinLines(program.texts, {kHelpMissing, kHelpFolder}) + "\n" + TextFromUtf8(folder));
  });
}

}  // namespace kelvora
