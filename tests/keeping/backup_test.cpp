#include "keeping/backup.h"

#include "keeping/backup_fixture.h"
#include "storage/disk.h"
#include "support/file_faults.h"

namespace kelvora {
namespace {

namespace fs = std::filesystem;

// The files that a failed or cancelled backup leaves beside its name.
std::size_t FilesBeside(const std::string& path) {
  std::size_t files = 0;
  for (const auto& entry : fs::directory_iterator(fs::path(path).parent_path())) {
    files += entry.path().filename().string().starts_with("backup");
  }
  return files;
}

TEST_F(BackupTest, ComesBackByteForByteInAnEmptyUsersFolder) {
  MakeUser("Anna", {"05032004140709.kvf", "06032004140709.kvf"});
  MakeUser("Bob", {"05032004140709.kvf"});
  const auto before = FilesBelow(UsersPath());
  ASSERT_EQ(before.size(), 9u);
  const std::string path = MakeBackup();
  MoveToAnEmptyUsersFolder();
  const auto result = BringBack(path);
  EXPECT_EQ(result.written, 9u);
  EXPECT_TRUE(result.all);
  EXPECT_EQ(FilesBelow(UsersPath()), before);
  EXPECT_EQ(fs::status(UsersPath() + "Anna").permissions(), fs::perms::owner_all);
  EXPECT_EQ(fs::status(UsersPath() + "Anna/Files/05032004140709.kvf").permissions(),
            fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(BackupTest, HoldsOneUserOnlyWhereOneIsWanted) {
  MakeUser("Anna", {"05032004140709.kvf"});
  MakeUser("Bob", {"05032004140709.kvf"});
  const std::string path = test.folders.home.Path("backup.zip");
  Backup backup(UsersPath(), {UserNamed("Bob")}, path);
  while (backup.Work()) {
  }
  const auto contents = ContentsOf(path);
  ASSERT_EQ(contents.Users().size(), 1u);
  EXPECT_EQ(contents.Users()[0].name, "Bob");
}

TEST_F(BackupTest, TellsHowFarItIs) {
  MakeUser("Anna", {"05032004140709.kvf"});
  const std::string path = test.folders.home.Path("backup.zip");
  Backup backup(UsersPath(), AllUsers(), path);
  std::size_t last = 0;
  while (backup.Work()) {
    EXPECT_GE(backup.Done(), last);
    EXPECT_LE(backup.Done(), backup.Whole());
    last = backup.Done();
    EXPECT_FALSE(fs::exists(path)) << "before it is read back";
  }
  EXPECT_EQ(backup.Files(), 4u);
  EXPECT_TRUE(fs::exists(path));
  EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(BackupTest, GivenUpAtAnyStepLeavesNothingBehindAndTheOldOneWhole) {
  MakeUser("Anna", {"05032004140709.kvf", "06032004140709.kvf"});
  const std::string path = test.folders.home.Path("backup.zip");
  WriteFileAnew(path, "an older backup");
  for (int steps = 0;; ++steps) {
    bool more = true;
    {
      Backup backup(UsersPath(), AllUsers(), path);
      for (int i = 0; i < steps && more; ++i) more = backup.Work();
    }
    EXPECT_EQ(FilesBeside(path), 1u) << steps;
    if (!more) break;
    EXPECT_EQ(ReadFile(path), "an older backup") << steps;
  }
  EXPECT_NE(ReadFile(path), "an older backup");
}

TEST_F(BackupTest, AFullDiskAtAnyByteLeavesNothingBehindAndSaysSo) {
  MakeUser("Anna", {"05032004140709.kvf"});
  const std::string whole_path = MakeBackup();
  const std::size_t size = fs::file_size(whole_path);
  fs::remove(whole_path);
  const std::string path = test.folders.home.Path("backup.zip");
  const std::vector<User> users = AllUsers();
  for (std::size_t room = 0; room < size; room += 13) {
    std::error_code error;
    {
      const InjectedFault fault({.disk_full_after = room});
      Backup backup(UsersPath(), users, path);
      try {
        while (backup.Work()) {
        }
      } catch (const std::system_error& failure) {
        error = failure.code();
      }
      EXPECT_FALSE(backup.Finished());
      EXPECT_FALSE(backup.Work()) << "there is no step behind a failure";
    }
    EXPECT_EQ(error, std::errc::no_space_on_device) << room;
    EXPECT_EQ(FilesBeside(path), 0u) << room;
  }
}

TEST_F(BackupTest, EachFailingStepAtItsEndIsNoticed) {
  MakeUser("Anna", {"05032004140709.kvf"});
  const std::string path = test.folders.home.Path("backup.zip");
  const std::vector<User> users = AllUsers();
  for (const FileFault& fault : {FileFault{.sync_fails = true}, FileFault{.rename_fails = true}}) {
    {
      const InjectedFault injected(fault);
      Backup backup(UsersPath(), users, path);
      EXPECT_THROW(while (backup.Work()){}, std::system_error);
      EXPECT_FALSE(backup.Finished());
    }
    EXPECT_EQ(FilesBeside(path), 0u);
  }
}

TEST_F(BackupTest, WhatWasWrittenOtherwiseThanItReadsBackIsNoBackup) {
  MakeUser("Anna", {"05032004140709.kvf"});
  const std::string path = test.folders.home.Path("backup.zip");
  Backup backup(UsersPath(), AllUsers(), path);
  // A disk that loses a byte: after the writing, before the reading.
  while (backup.Done() < 4) ASSERT_TRUE(backup.Work());
  ASSERT_TRUE(backup.Work());  // finishes the writing
  std::string bytes = ReadFile(path + ".part");
  const std::size_t place = bytes.find("Profile.usr") + 40;
  bytes[place] = static_cast<char>(bytes[place] ^ 1);
  {
    const FileHandle same_file = MakeFile(path + ".part");
    WriteBytes(same_file, bytes);
  }
  EXPECT_THROW(while (backup.Work()){}, std::system_error);
  EXPECT_FALSE(backup.Finished());
  EXPECT_FALSE(fs::exists(path));
}

TEST_F(BackupTest, AWholeArchiveOfOtherBytesIsNoBackupEither) {
  MakeUser("Anna", {});
  WriteDay("Anna", "05032004140709.kvf", "Up at ten.");
  const std::string path = MakeBackup();
  const std::string other = ReadFile(path);
  fs::remove(path);
  WriteDay("Anna", "05032004140709.kvf", "Up at six.");
  Backup backup(UsersPath(), AllUsers(), path);
  while (backup.Done() < 4) ASSERT_TRUE(backup.Work());
  ASSERT_TRUE(backup.Work());  // finishes the writing
  {
    const FileHandle same_file = MakeFile(path + ".part");
    WriteBytes(same_file, other);
  }
  EXPECT_THROW(while (backup.Work()){}, std::system_error);
  EXPECT_FALSE(fs::exists(path));
}

TEST_F(BackupTest, AFolderThatIsNotThereFails) {
  MakeUser("Anna", {});
  Backup backup(UsersPath(), AllUsers(), test.folders.home.Path("stick/backup.zip"));
  EXPECT_THROW((void)backup.Work(), std::system_error);
}

TEST_F(BackupTest, AUserWhoIsDeletedMeanwhileIsNamedAsMissing) {
  MakeUser("Anna", {"05032004140709.kvf", "06032004140709.kvf"});
  MakeUser("Bob", {"05032004140709.kvf"});
  for (int steps = 0; steps < 12; ++steps) {
    const auto kept = FilesBelow(UsersPath());
    const std::string path = test.folders.home.Path("backup.zip");
    Backup backup(UsersPath(), {UserNamed("Anna"), UserNamed("Bob")}, path);
    for (int i = 0; i < steps; ++i) ASSERT_TRUE(backup.Work());
    const std::size_t before = backup.Files();
    fs::rename(UsersPath() + "Anna", test.folders.home.Path("Anna"));
    while (backup.Work()) {
    }
    fs::rename(test.folders.home.Path("Anna"), UsersPath() + "Anna");
    EXPECT_TRUE(backup.Finished());
    EXPECT_EQ(backup.Missing().Empty(), backup.Files() == 9u) << before;
    ASSERT_EQ(FilesBelow(UsersPath()), kept);
  }
}

TEST_F(BackupTest, WhatCantBeReadIsNamedAndTheRestIsThere) {
  MakeUser("Anna", {"05032004140709.kvf"});
  fs::create_symlink("/nowhere", UsersPath() + "Anna/Files/06032004140709.kvf");
  const std::string path = test.folders.home.Path("backup.zip");
  Backup backup(UsersPath(), AllUsers(), path);
  while (backup.Work()) {
  }
  EXPECT_TRUE(backup.Finished());
  EXPECT_EQ(backup.Files(), 4u);
  RecordingBoxes boxes;
  const Text opening = "An error occured.";
  backup.Missing().Report({boxes, opening}, "#F17-3");
  ASSERT_EQ(boxes.shown.size(), 1u);
  EXPECT_EQ(boxes.shown[0].text,
            "An error occured.\n\nNo such file or directory: Anna/Files/06032004140709.kvf\n"
            "Brelux CODE:#F17-3");
}

TEST_F(BackupTest, OnlyFilesOfUsersAreInIt) {
  MakeUser("Anna", {"05032004140709.kvf"});
  WriteFileAnew(UsersPath() + "Anna/Files/letter.txt", "mine");
  WriteFileAnew(UsersPath() + "Anna/Files/.hidden.kvf", "mine");
  WriteFileAnew(UsersPath() + "Anna/photo.jpg", "mine");
  const auto contents = ContentsOf(MakeBackup());
  ASSERT_EQ(contents.Users().size(), 1u);
  EXPECT_EQ(contents.Users()[0].files.size(), 4u);
  EXPECT_EQ(contents.Foreign(), 0u);
}

TEST_F(BackupTest, NamesOutsideWindows1252ComeBackAsTheyAre) {
  MakeUser("Anna", {});
  const std::string folder = UsersPath() + "Зої/";
  MakeUserFoldersAt(folder);
  WriteFileAnew(folder + "Files/日曜日.kvf", "a day");
  WriteFileAnew(folder + "Profile/Profile.usr", "a profile");
  const auto before = FilesBelow(UsersPath());
  const std::string path = MakeBackup();
  MoveToAnEmptyUsersFolder();
  EXPECT_TRUE(BringBack(path).all);
  EXPECT_EQ(FilesBelow(UsersPath()), before);
}

TEST_F(BackupTest, ANameThatIsNoUtf8IsNamedAsMissing) {
  MakeUser("Anna", {});
  WriteFileAnew(UsersPath() + "Anna/Files/caf\xE9.kvf", "a day");
  const std::string path = test.folders.home.Path("backup.zip");
  Backup backup(UsersPath(), AllUsers(), path);
  while (backup.Work()) {
  }
  EXPECT_EQ(backup.Files(), 3u);
  EXPECT_FALSE(backup.Missing().Empty());
}

TEST_F(BackupTest, EmptyAndLargeFilesComeBackToo) {
  MakeUser("Anna", {});
  WriteFileAnew(UsersPath() + "Anna/Files/empty.kvf", "");
  std::string large;
  for (int i = 0; large.size() < (std::size_t{3} << 20); ++i) large += std::to_string(i * 7919);
  WriteFileAnew(UsersPath() + "Anna/Databases/Custom.dat", large);
  const auto before = FilesBelow(UsersPath());
  const std::string path = MakeBackup();
  MoveToAnEmptyUsersFolder();
  EXPECT_TRUE(BringBack(path).all);
  EXPECT_EQ(FilesBelow(UsersPath()), before);
}

TEST_F(BackupTest, TheProposedNameBearsTheDate) {
  EXPECT_EQ(BackupFileName(test.clock.Now()), "Kelvora FOOD 2004-03-05.zip");
}

}  // namespace
}  // namespace kelvora
