#include "storage/folders.h"

#include <algorithm>
#include <filesystem>
#include <tuple>

#include "storage/disk.h"

namespace kelvora {
namespace {

namespace fs = std::filesystem;

// Numbers of the special folders.
constexpr int kApplicationData = 26;
constexpr int kDocuments = 5;

// What `wanted` takes of a folder by its path and is not hidden, sorted by name without regard to
// case.
template <class Wanted>
std::vector<FolderFile> EntriesIn(const std::string& folder, std::error_code& failure,
                                  Wanted wanted) {
  struct Entry {
    Text key;
    FolderFile file;
  };
  std::vector<Entry> entries;
  const FolderNames found = NamesIn(folder);
  failure = found.failure;
  for (const std::string& name_on_disk : found.names) {
    std::string path = folder + name_on_disk;
    if (name_on_disk.starts_with('.') || !wanted(fs::path(path))) continue;
    const Text name = TextFromUtf8(name_on_disk);
    entries.push_back({LowerCase(name), {name, std::move(path)}});
  }
  std::ranges::sort(entries, [](const Entry& a, const Entry& b) {
    return std::tie(a.key, a.file.name, a.file.path) < std::tie(b.key, b.file.name, b.file.path);
  });
  std::vector<FolderFile> files;
  files.reserve(entries.size());
  for (Entry& entry : entries) files.push_back(std::move(entry.file));
  return files;
}

// Makes a folder that only its owner may enter, whatever the system's mask; one that is there stays
// as it is.
void MakePrivateFolder(const std::string& path) {
  std::error_code ignored;
  if (fs::create_directory(path, ignored)) fs::permissions(path, fs::perms::owner_all, ignored);
}

TextList NamesOf(const std::vector<FolderFile>& files) {
  TextList names;
  for (const FolderFile& file : files) names.Add(file.name);
  return names;
}

// Lets the owner change every folder below, which is what removing its content takes.
void GrantAllRightsBelow(const fs::path& folder) {
  std::error_code ignored;
  fs::permissions(folder, fs::perms::owner_all, fs::perm_options::add, ignored);
  for (const fs::directory_entry& entry : fs::directory_iterator(folder, ignored)) {
    if (entry.is_directory(ignored) && !entry.is_symlink(ignored)) GrantAllRightsBelow(entry);
  }
}

}  // namespace

std::string GetSpecialFolder(const Folders& folders, int number) {
  std::string path;
  if (number == kApplicationData) path = folders.ApplicationData();
  if (number == kDocuments) path = folders.Documents();
  return path.substr(0, path.find('\0'));
}

std::string DefaultUsersPath(const Folders& folders) {
  return GetSpecialFolder(folders, kDocuments) + "/Kelvora FOOD/My Users/";
}

std::string ProgramDatabases(const Paths& paths) {
  return paths.ProgramPath + "Databases/";
}

std::string UserDatabasesIn(const std::string& user_data) {
  return user_data.empty() ? std::string() : user_data + "/kelvora-food/Databases/";
}

void DetermineFolders(Program& program) {
  const Folders& folders = program.platform.folders;
  const std::string application_data = GetSpecialFolder(folders, kApplicationData);
  const std::string documents = GetSpecialFolder(folders, kDocuments);
  Paths& paths = program.paths;

  paths.ProgramPath = folders.ProgramFolder() + "/";
  paths.UserDatabases = UserDatabasesIn(folders.UserData());
  MakeFolder(application_data + "/Brelux/");
  for (const char* folder : {"", "/My Users", "/My Reports", "/My Language"}) {
    MakeFolder(documents + "/Kelvora FOOD" + folder);
  }
  paths.UsersPath = DefaultUsersPath(folders);
  paths.ReportsPath = documents + "/Kelvora FOOD/My Reports/";
  paths.LanguagePath = documents + "/Kelvora FOOD/My Language/";
  paths.SettingsFile = application_data + "/Brelux/kvfset.dat";
  const std::string state = folders.State();
  if (!state.empty()) paths.StatePath = state + "/kelvora-food/";
}

void ApplyAlternativeUsersFolder(Program& program) {
  const Rec_Settings& settings = program.settings;
  if (settings[Setting::chk_map] != "1" || settings[Setting::txt_map].empty()) return;
  program.paths.UsersPath = Utf8FromText(program.settings[Setting::txt_map]);
}

bool MakeFolder(const std::string& path) {
  std::error_code failure;
  fs::create_directories(path.ends_with('/') ? path : path + "/", failure);
  return !failure;
}

bool MakeStateFolder(const Paths& paths) {
  if (paths.StatePath.empty()) return false;
  const std::string folder = paths.StatePath.substr(0, paths.StatePath.size() - 1);
  std::error_code ignored;
  fs::create_directories(fs::path(folder).parent_path(), ignored);
  MakePrivateFolder(folder);
  return fs::is_directory(folder, ignored);
}

void MakeUserFolders(const Paths& paths, std::string_view name) {
  if (!CanNameAFolder(name)) return;
  MakeFolder(paths.UsersPath);
  MakeUserFoldersAt(UserFolder(paths, name));
}

void MakeUserFoldersAt(const std::string& folder) {
  for (const char* part : {"", "Profile", "Files", "Databases"}) MakePrivateFolder(folder + part);
}

std::string FolderOfDay(const Program& program) {
  const Paths& paths = program.paths;
  const std::string_view name = program.store.L_gegevens[HeaderRow::kName];
  const std::string by_name = UserFolder(paths, name);
  std::error_code ignored;
  const bool use_name = paths.UserName.empty() || fs::is_directory(by_name, ignored);
  return use_name ? by_name : UserFolder(paths, paths.UserName);
}

void DeleteUserFolder(const Paths& paths, const std::string& path) {
  const bool below = path.starts_with(paths.UsersPath);
  std::string_view name = std::string_view(path).substr(below ? paths.UsersPath.size() : 0);
  if (name.ends_with('/')) name.remove_suffix(1);
  if (!below || !IsFolderName(name)) {
    ThrowSystemError(std::errc::invalid_argument);
  }
  const fs::path folder = paths.UsersPath + std::string(name);
  if (fs::is_directory(fs::symlink_status(folder))) GrantAllRightsBelow(folder);
  fs::remove_all(folder);
}

std::string ProfileFile(const Paths& paths, std::string_view name) {
  return ProfileFileIn(UserFolder(paths, name));
}

std::string CustomFile(const Paths& paths, std::string_view name) {
  return CustomFileIn(UserFolder(paths, name));
}

std::string FavoritesFile(const Paths& paths, std::string_view name) {
  return FavoritesFileIn(UserFolder(paths, name));
}

std::string ProfileFileIn(const std::string& folder) {
  return folder + "Profile/Profile.usr";
}

std::string CustomFileIn(const std::string& folder) {
  return folder + "Databases/Custom.dat";
}

std::string FavoritesFileIn(const std::string& folder) {
  return folder + "Databases/Favorites.dat";
}

std::vector<FolderFile> FoldersWithPathsIn(const std::string& path) {
  std::error_code ignored;
  auto folders = EntriesIn(path, ignored, [&ignored](const fs::path& entry) {
    return !fs::is_regular_file(entry, ignored);
  });
  for (FolderFile& folder : folders) folder.path += '/';
  return folders;
}

std::vector<FolderFile> FilesWithPathsIn(const std::string& path, std::string_view extension,
                                         std::error_code& failure) {
  return EntriesIn(path, failure, [extension](const fs::path& entry) {
    std::error_code ignored;
    return LowerCase(entry.extension().string()) == extension && !fs::is_directory(entry, ignored);
  });
}

std::vector<FolderFile> FilesWithPathsIn(const std::string& path, std::string_view extension) {
  std::error_code ignored;
  return FilesWithPathsIn(path, extension, ignored);
}

TextList SubFoldersOf(const std::string& path) {
  return NamesOf(FoldersWithPathsIn(path));
}

TextList FilesIn(const std::string& path, std::string_view extension) {
  return NamesOf(FilesWithPathsIn(path, extension));
}

}  // namespace kelvora
