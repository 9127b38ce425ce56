#include "core/program.h"

#include "language/message_texts.h"

namespace kelvora {
namespace {

// Below what is no folder there can be nothing.
constexpr const char* kNowhere = "/dev/null/";

// What the folder of a user of that name is called; empty for a name that no folder can have.
std::string FolderNameFor(std::string_view name) {
  return CanNameAFolder(name) ? Utf8FromText(name) : std::string();
}

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
  if (name == paths.UserName && !paths.UserFolderName.empty()) {
    return paths.UsersPath + paths.UserFolderName + "/";
  }
  if (!CanNameAFolder(name)) return kNowhere;
  return paths.UsersPath + Utf8FromText(name) + "/";
}

void SetCurrentUser(Program& program, std::string_view name, std::string folder_name) {
  Paths& paths = program.paths;
  paths.UserName = name;
  paths.UserFolderName = std::move(folder_name);
  paths.FilesPath = UserFolder(paths, name) + "Files/";
}

void SetCurrentUser(Program& program, std::string_view name) {
  const Paths& paths = program.paths;
  const bool is_current = name == paths.UserName && !paths.UserFolderName.empty();
  SetCurrentUser(program, name, is_current ? paths.UserFolderName : FolderNameFor(name));
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
