#include "core/program.h"

#include "language/message_texts.h"

namespace kelvora {
namespace {

// Below what is no folder there can be nothing.
constexpr const char* kNowhere = "/dev/null/";

}  // namespace

FailureBox Program::FailurePath() {
  return {platform.boxes, texts[message_text::kErrorOccurred], &actions};
}

void SetFileChanged(Program& program, bool changed) {
  program.day.FileChanged = changed;
  if (program.windows.core != nullptr) program.windows.core->UpdateCommands();
}

Priority PriorityOfUser(const Program& program) {
  return PriorityOf(program.profile[ProfileField::type_prioriteit]);
}

std::string UserFolder(const Paths& paths, std::string_view name) {
  if (!CanNameAFolder(name)) return kNowhere;
  return paths.UsersPath + Utf8FromText(name) + "/";
}

void SetCurrentUser(Program& program, std::string_view name) {
  program.paths.UserName = name;
  program.paths.FilesPath = UserFolder(program.paths, name) + "Files/";
}

Text JoinLines(const TextTables& texts, std::initializer_list<std::optional<TextId>> lines) {
  Text joined;
  bool first = true;
  for (const auto& line : lines) {
    if (!first) joined += '\n';
    if (line) joined += texts[*line];
    first = false;
  }
  return joined;
}

void EndProgram(Program& program) {
  program.ending = true;
  program.platform.events.End();
}

void Tell(Program& program, BoxIcon icon, Text text) {
  program.platform.boxes.Show({.title = Text(AppTitle), .text = std::move(text), .icon = icon});
}

}  // namespace kelvora
