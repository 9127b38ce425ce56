// Users with days for the tests of backups, and doing all the steps of one.
#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <map>

#include "days/day_settings.h"
#include "days/user_list.h"
#include "keeping/backup.h"
#include "keeping/restore.h"
#include "storage/day_file.h"
#include "storage/folders.h"
#include "storage/food_files.h"
#include "storage/profile_file.h"
#include "storage/record_file.h"
#include "support/test_program.h"

namespace kelvora {

// The bytes of every file below a folder, by the paths from there.
inline std::map<std::string, std::string> FilesBelow(const std::string& folder) {
  std::map<std::string, std::string> files;
  std::error_code none;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder, none)) {
    if (!entry.is_regular_file()) continue;
    files[std::filesystem::relative(entry.path(), folder).string()] =
        ReadFile(entry.path().string());
  }
  return files;
}

struct BackupTest : testing::Test {
  // A user with a profile, two own foods, a favourite and days of these names.
  void MakeUser(std::string_view name, std::initializer_list<std::string_view> days) {
    Program& program = test.program;
    SetCurrentUser(program, name);
    MakeUserFolders(program.paths, name);
    const Paths& paths = program.paths;
    Rec_Profile profile = DefaultsOfNewUser();
    profile[ProfileField::name] = name;
    WriteRecord(ProfileFile(paths, name), profile);
    WriteList(CustomFile(paths, name), {"Own bread", "Own soup"});
    WriteList(FavoritesFile(paths, name), {"Tea"});
    for (const std::string_view day : days) WriteDay(name, day, "Up at six.");
  }
  void WriteList(const std::string& path, std::initializer_list<std::string_view> products) {
    TextList lines;
    for (const std::string_view product : products) lines.Add(LineOf({.product = product}));
    Rec_ListLine list;
    list.strings.front() = PackBlock(lines);
    WriteRecord(path, list);
  }
  void WriteDay(std::string_view user, std::string_view file_name, const Text& diary) {
    Rec_DayFile day;
    day[DayFileField::Notes] = diary;
    day[DayFileField::Header] = Packed(std::string(user) +
                                       "~~~~~1.80~80.5~Male~42~05-03-04~75~"
                                       "Friday~~~~");
    day[DayFileField::Morning] = LineOf({.product = "Bread"}) + kLineEnd;
    WriteRecord(UserFolder(test.program.paths, user) + "Files/" + std::string(file_name), day);
  }

  std::vector<User> AllUsers() { return ReadUsers(test.program).users; }

  // Makes a backup of all users; its path.
  std::string MakeBackup() {
    const std::string path = test.folders.home.Path("backup.zip");
    Backup backup(test.program.paths.UsersPath, AllUsers(), path);
    while (backup.Work()) {
    }
    EXPECT_TRUE(backup.Finished());
    EXPECT_TRUE(backup.Missing().Empty());
    return path;
  }

  [[nodiscard]] std::string UsersPath() const { return test.program.paths.UsersPath; }

  BackupContents ContentsOf(const std::string& path) {
    BackupContents contents(UsersPath(), path);
    while (contents.Work()) {
    }
    return contents;
  }
  // Brings all of it back. The counts are those of the restore.
  struct Result {
    std::size_t written, unchanged;
    bool all;
  };
  Result BringBack(const BackupContents& contents, Differing differing) {
    Restore restore(UsersPath(), contents, differing);
    while (restore.Work()) {
    }
    EXPECT_TRUE(restore.Finished());
    return {restore.Written(), restore.Unchanged(), restore.Missing().Empty()};
  }
  Result BringBack(const std::string& path, Differing differing = Differing::keep_both) {
    return BringBack(ContentsOf(path), differing);
  }
  void MoveToAnEmptyUsersFolder() {
    test.program.paths.UsersPath = test.folders.home.Path("another computer/");
    std::filesystem::create_directories(UsersPath());
  }

  TestProgram test;
};

}  // namespace kelvora
