#include "keeping/restore.h"

#include "keeping/backup_fixture.h"
#include "support/file_faults.h"

namespace kelvora {
namespace {

namespace fs = std::filesystem;

using RestoreTest = BackupTest;

constexpr const char* kName = "05032004140709.kvf";

Text DiaryIn(const std::string& path) {
  return (*ReadFirstRecord<Rec_DayFile>(path))[DayFileField::Notes];
}

TEST_F(RestoreTest, ShowsUsersDaysAndDatesAndHowTheyCompare) {
  MakeUser("Anna", {kName, "06032004140709.kvf"});
  MakeUser("Bob", {});
  const std::string path = MakeBackup();
  WriteDay("Anna", kName, "Changed since.");
  fs::remove(UsersPath() + "Anna/Files/06032004140709.kvf");
  const auto contents = ContentsOf(path);
  ASSERT_EQ(contents.Users().size(), 2u);
  const BackupUser& anna = contents.Users()[0];
  EXPECT_EQ(anna.name, "Anna");
  ASSERT_EQ(anna.files.size(), 5u);
  EXPECT_EQ(anna.files[0].place.part, BackupPart::profile);
  EXPECT_EQ(anna.files[0].here, Here::same);
  EXPECT_EQ(anna.files[1].place.part, BackupPart::own_list);
  EXPECT_EQ(anna.files[2].place.part, BackupPart::favourites);
  EXPECT_EQ(anna.files[3].date, "05-03-04");
  EXPECT_EQ(anna.files[3].weekday, "Friday");
  EXPECT_EQ(anna.files[3].here, Here::differs);
  EXPECT_EQ(anna.files[4].here, Here::absent);
  EXPECT_EQ(contents.Users()[1].files.size(), 3u);
  EXPECT_EQ(contents.Foreign() + contents.Damaged() + contents.Encrypted(), 0u);
  EXPECT_FALSE(contents.Cut());
}

TEST_F(RestoreTest, ReadingTheContentsChangesNothing) {
  MakeUser("Anna", {kName});
  const std::string path = MakeBackup();
  fs::remove_all(UsersPath() + "Anna");
  const auto before = FilesBelow(test.folders.home.Path());
  (void)ContentsOf(path);
  EXPECT_EQ(FilesBelow(test.folders.home.Path()), before);
  EXPECT_FALSE(fs::exists(UsersPath() + "Anna"));
}

TEST_F(RestoreTest, BringsBackOnlyWhatIsTicked) {
  MakeUser("Anna", {kName, "06032004140709.kvf"});
  MakeUser("Bob", {kName});
  const std::string path = MakeBackup();
  MoveToAnEmptyUsersFolder();
  auto contents = ContentsOf(path);
  for (BackupUser& user : contents.Users()) {
    for (BackupFile& file : user.files) {
      file.wanted = user.name == "Anna" && file.place.file_name == kName;
    }
  }
  EXPECT_EQ(BringBack(contents, Differing::keep_both).written, 1u);
  const auto files = FilesBelow(UsersPath());
  ASSERT_EQ(files.size(), 1u);
  EXPECT_EQ(files.begin()->first, std::string("Anna/Files/") + kName);
}

TEST_F(RestoreTest, WhatIsTheSameIsLeftAlone) {
  MakeUser("Anna", {kName});
  const std::string path = MakeBackup();
  for (const Differing differing :
       {Differing::keep_both, Differing::take_backup, Differing::keep_mine}) {
    const InjectedFault nothing_is_written({});
    const auto result = BringBack(path, differing);
    EXPECT_EQ(result.written, 0u);
    EXPECT_EQ(result.unchanged, 4u);
    for (const std::string& change : InjectedFault::Changes()) EXPECT_EQ(change, "close");
  }
}

struct Changed : BackupTest {
  Changed() {
    MakeUser("Anna", {kName});
    path = MakeBackup();
    WriteDay("Anna", kName, "Mine.");
    Rec_Profile profile = *ReadFirstRecord<Rec_Profile>(UsersPath() + "Anna/Profile/Profile.usr");
    profile[ProfileField::weight] = "81";
    WriteRecord(UsersPath() + "Anna/Profile/Profile.usr", profile);
    WriteList(UsersPath() + "Anna/Databases/Custom.dat", {"Own soup", "My cake"});
    before = FilesBelow(UsersPath());
  }
  std::string path;
  std::map<std::string, std::string> before;
};
using RestoreDifferingTest = Changed;

TEST_F(RestoreDifferingTest, KeepingBothLosesNothing) {
  const auto result = BringBack(path, Differing::keep_both);
  EXPECT_EQ(result.written, 2u);
  EXPECT_TRUE(result.all);
  const std::string files = UsersPath() + "Anna/Files/";
  EXPECT_EQ(DiaryIn(files + kName), "Mine.");
  EXPECT_EQ(DiaryIn(files + "05032004140709-2.kvf"), "Up at six.");
  const auto list = ReadFirstRecord<Rec_ListLine>(UsersPath() + "Anna/Databases/Custom.dat");
  EXPECT_EQ(list->strings[0], LineOf({.product = "Own soup"}) + kLineEnd +
                                  LineOf({.product = "My cake"}) + kLineEnd +
                                  LineOf({.product = "Own bread"}) + kLineEnd);
  const auto after = FilesBelow(UsersPath());
  EXPECT_EQ(after.at("Anna/Profile/Profile.usr"), before.at("Anna/Profile/Profile.usr"));
  EXPECT_EQ(after.size(), before.size() + 1);
}

TEST_F(RestoreDifferingTest, KeepingBothTwiceAddsNothingTheSecondTime) {
  (void)BringBack(path, Differing::keep_both);
  const auto once = FilesBelow(UsersPath());
  EXPECT_EQ(BringBack(path, Differing::keep_both).written, 0u);
  EXPECT_EQ(FilesBelow(UsersPath()), once);
}

TEST_F(RestoreDifferingTest, AThirdDayOfTheNameTakesTheNextFreeOne) {
  WriteDay("Anna", "05032004140709-2.kvf", "Another one.");
  (void)BringBack(path, Differing::keep_both);
  EXPECT_EQ(DiaryIn(UsersPath() + "Anna/Files/05032004140709-2.kvf"), "Another one.");
  EXPECT_EQ(DiaryIn(UsersPath() + "Anna/Files/05032004140709-3.kvf"), "Up at six.");
}

TEST_F(RestoreDifferingTest, TakingTheBackupsMakesItAsItWas) {
  const auto result = BringBack(path, Differing::take_backup);
  EXPECT_EQ(result.written, 3u);
  fs::remove(path);
  EXPECT_EQ(DiaryIn(UsersPath() + "Anna/Files/" + kName), "Up at six.");
  EXPECT_EQ(FilesBelow(UsersPath()).size(), before.size());
  const auto list = ReadFirstRecord<Rec_ListLine>(UsersPath() + "Anna/Databases/Custom.dat");
  EXPECT_EQ(list->strings[0], LineOf({.product = "Own bread"}) + kLineEnd +
                                  LineOf({.product = "Own soup"}) + kLineEnd);
}

TEST_F(RestoreDifferingTest, TakingTheBackupsKeepsTheModeOfAFile) {
  const std::string day = UsersPath() + "Anna/Files/" + kName;
  fs::permissions(day, fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
  (void)BringBack(path, Differing::take_backup);
  EXPECT_EQ(fs::status(day).permissions(),
            fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
}

TEST_F(RestoreDifferingTest, KeepingMineChangesNothing) {
  const auto result = BringBack(path, Differing::keep_mine);
  EXPECT_EQ(result.written, 0u);
  EXPECT_EQ(FilesBelow(UsersPath()), before);
}

TEST_F(RestoreDifferingTest, AFullDiskAtAnyByteLosesNothing) {
  for (const Differing differing : {Differing::keep_both, Differing::take_backup}) {
    for (std::size_t room = 0; room < 1200; room += 29) {
      const auto contents = ContentsOf(path);
      {
        const InjectedFault fault({.disk_full_after = room});
        Restore restore(UsersPath(), contents, differing);
        while (restore.Work()) {
        }
      }
      const auto after = FilesBelow(UsersPath());
      for (const auto& [name, bytes] : before) {
        ASSERT_TRUE(after.contains(name)) << name;
        const bool whole = after.at(name) == bytes || differing == Differing::take_backup ||
                           name.ends_with("Custom.dat");
        EXPECT_TRUE(whole) << name;
        EXPECT_FALSE(after.at(name).empty());
      }
      for (const auto& [name, bytes] : after) EXPECT_FALSE(name.ends_with(".restoring")) << name;
      if (differing == Differing::take_backup) {
        // Each file is the old or the new one, never a part of either.
        const Text diary = DiaryIn(UsersPath() + "Anna/Files/" + kName);
        EXPECT_TRUE(diary == "Mine." || diary == "Up at six.") << diary;
      }
    }
  }
}

TEST_F(RestoreDifferingTest, WhatIsReplacedIsSyncedBeforeItTakesItsPlace) {
  auto contents = ContentsOf(path);
  for (BackupFile& file : contents.Users()[0].files) {
    file.wanted = file.place.part == BackupPart::day;
  }
  std::vector<std::string> changes;
  {
    const InjectedFault fault({});
    EXPECT_EQ(BringBack(contents, Differing::take_backup).written, 1u);
    for (const std::string& change : InjectedFault::Changes()) {
      if (change != "room" && change != "close") changes.push_back(change.substr(0, 5));
    }
  }
  EXPECT_EQ(changes, (std::vector<std::string>{"write", "sync", "renam", "sync ", "sync "}));
}

TEST_F(RestoreTest, ADiskThatCantBeSyncedIsNotCalledDone) {
  MakeUser("Anna", {kName});
  const std::string path = MakeBackup();
  MoveToAnEmptyUsersFolder();
  const auto contents = ContentsOf(path);
  const InjectedFault fault({.sync_fails = true});
  Restore restore(UsersPath(), contents, Differing::keep_both);
  EXPECT_THROW(while (restore.Work()){}, std::system_error);
}

TEST_F(RestoreTest, AUserWhoseNameDiffersInCaseOnlyIsAnotherUser) {
  MakeUser("Anna", {kName});
  const std::string path = MakeBackup();
  fs::rename(UsersPath() + "Anna", UsersPath() + "ANNA");
  WriteFileAnew(UsersPath() + "ANNA/Files/" + kName, "mine");
  const auto before = FilesBelow(UsersPath() + "ANNA");
  EXPECT_EQ(BringBack(path, Differing::take_backup).written, 4u);
  EXPECT_EQ(FilesBelow(UsersPath() + "ANNA"), before);
  EXPECT_EQ(DiaryIn(UsersPath() + "Anna/Files/" + kName), "Up at six.");
}

TEST_F(RestoreTest, AListThatHoldsNothingTakesTheBackups) {
  MakeUser("Anna", {});
  const std::string path = MakeBackup();
  WriteFileAnew(UsersPath() + "Anna/Databases/Custom.dat", "");
  (void)BringBack(path, Differing::keep_both);
  const auto list = ReadFirstRecord<Rec_ListLine>(UsersPath() + "Anna/Databases/Custom.dat");
  EXPECT_EQ(list->strings[0], LineOf({.product = "Own bread"}) + kLineEnd +
                                  LineOf({.product = "Own soup"}) + kLineEnd);
}

TEST_F(RestoreTest, NothingGoesThroughALinkOutOfTheUsersFolder) {
  MakeUser("Anna", {kName});
  const std::string path = MakeBackup();
  const std::string outside = test.folders.home.Path("outside");
  for (const std::string link : {"Anna", "Anna/Files"}) {
    fs::remove_all(UsersPath());
    fs::remove_all(outside);
    fs::create_directories(outside);
    fs::create_directories(fs::path(UsersPath() + link).parent_path());
    fs::create_directory_symlink(outside, UsersPath() + link);
    const auto result = BringBack(path, Differing::take_backup);
    EXPECT_FALSE(result.all);
    EXPECT_TRUE(fs::is_empty(outside)) << link;
  }
  // A day that is a link is not written through either.
  fs::remove_all(UsersPath());
  MakeUserFoldersAt(UsersPath() + "Anna/");
  fs::create_directories(UsersPath() + "Anna/Files");
  WriteFileAnew(outside + "/day", "outside");
  fs::create_symlink(outside + "/day", UsersPath() + "Anna/Files/" + kName);
  EXPECT_FALSE(BringBack(path, Differing::take_backup).all);
  EXPECT_EQ(ReadFile(outside + "/day"), "outside");
}

TEST_F(RestoreTest, ABackupThatChangedSinceItWasLookedAtIsNotBroughtBack) {
  MakeUser("Anna", {kName});
  const std::string path = MakeBackup();
  const auto contents = ContentsOf(path);
  WriteDay("Anna", kName, "Another backup.");
  (void)MakeBackup();
  MoveToAnEmptyUsersFolder();
  const auto result = BringBack(contents, Differing::keep_both);
  EXPECT_FALSE(result.all);
  EXPECT_FALSE(fs::exists(UsersPath() + "Anna/Files/" + kName));
  EXPECT_EQ(result.written, 3u);
}

TEST_F(RestoreTest, ABackupThatIsGoneFails) {
  MakeUser("Anna", {kName});
  const std::string path = MakeBackup();
  const auto contents = ContentsOf(path);
  fs::remove(path);
  Restore restore(UsersPath(), contents, Differing::keep_both);
  EXPECT_THROW((void)restore.Work(), std::system_error);
}

}  // namespace
}  // namespace kelvora
