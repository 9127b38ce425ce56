#include "days/user_list.h"

#include <filesystem>
#include <system_error>

#include "storage/folders.h"
#include "storage/record_file.h"

namespace kelvora {
namespace {

namespace fs = std::filesystem;

// Throws std::system_error for what is no folder or can't be entered.
void CheckIsFolder(const std::string& path) {
  std::error_code failure;
  const fs::directory_iterator entries(path, failure);
  if (failure) throw std::system_error(failure);
}

Text NameInProfile(const std::string& path) {
  const auto profile = ReadFirstRecord<Rec_Profile>(path);
  return profile ? (*profile)[ProfileField::name] : Text();
}

}  // namespace

User UserNamed(std::string_view name) {
  return {Text(name), Utf8FromText(name)};
}

bool IsCurrent(const Program& program, const User& user) {
  const Paths& paths = program.paths;
  return !paths.UserName.empty() && user.folder_name == paths.UserFolderName;
}

bool HasFolder(const Program& program, const User& user) {
  std::error_code ignored;
  return fs::is_directory(program.paths.UsersPath + user.folder_name, ignored);
}

bool BelongsTo(const Rec_Profile& profile, std::string_view name) {
  return profile[ProfileField::name] == name;
}

UserList ReadUsers(Program& program) {
  UserList list;
  const std::vector<FolderFile> folders = FoldersWithPathsIn(program.paths.UsersPath);
  program.store.lst_data_dir.Clear();
  for (const FolderFile& folder : folders) {
    if (!list.unread.Try(folder.name, [&] { CheckIsFolder(folder.path); })) continue;
    program.store.lst_data_dir.Add(folder.name);
    User user{{}, fs::path(folder.path).parent_path().filename().string()};
    list.unread.Try(folder.name, [&] { user.name = NameInProfile(ProfileFileIn(folder.path)); });
    if (user.name.empty()) user.name = folder.name;
    list.users.push_back(std::move(user));
  }
  return list;
}

std::optional<User> OnlyUser(const Program& program, const UserList& list) {
  const bool chosen = !program.paths.UserName.empty() || program.store.DayIsOpen();
  if (chosen || list.users.size() != 1 || !list.unread.Empty()) return std::nullopt;
  return list.users.front();
}

}  // namespace kelvora
