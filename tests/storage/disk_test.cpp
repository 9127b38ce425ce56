// In which order a file takes the place of another, with which modes, and what is asked before.
#include "storage/disk.h"

#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "storage/day_file.h"
#include "storage/folders.h"
#include "storage/food_files.h"
#include "storage/profile_file.h"
#include "storage/record_file.h"
#include "storage/settings_file.h"
#include "support/file_faults.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

unsigned ModeOf(const std::string& path) {
  struct stat info {};
  return stat(path.c_str(), &info) == 0 ? info.st_mode & 07777u : 0;
}

// A mask for what is made meanwhile.
class Mask {
 public:
  explicit Mask(mode_t mask) : before_(umask(mask)) {}
  ~Mask() { umask(before_); }
  Mask(const Mask&) = delete;
  Mask& operator=(const Mask&) = delete;

 private:
  mode_t before_;
};

// Every save of something of the user's.
void SaveEverything(Program& program) {
  EXPECT_TRUE(SaveDay(program));
  EXPECT_TRUE(Save_Profile(program, ProfileFile(program.paths, "Anna")));
  EXPECT_TRUE(Save_Custom(program, CustomFile(program.paths, "Anna")));
  EXPECT_TRUE(Save_Favorites(program, FavoritesFile(program.paths, "Anna")));
}

std::vector<std::string> FilesOfAnna(const Program& program) {
  return {program.paths.FilesPath + "05032004140709.kvf", ProfileFile(program.paths, "Anna"),
          CustomFile(program.paths, "Anna"), FavoritesFile(program.paths, "Anna")};
}

TEST(Disk, AllBytesGoOutInOneWriteBetweenDeleteAndSyncs) {
  TemporaryFolder folder;
  const std::string path = folder.Path("file");
  WriteFileAnew(path, "old");
  for (const std::size_t size : {1u, 4096u, 4097u, 100'000u, 5'000'000u}) {
    const InjectedFault watched({});
    WriteFileAnew(path, std::string(size, 'x'));
    auto changes = InjectedFault::Changes();
    // Whether the file may be written is tried before anything is changed.
    EXPECT_EQ(changes[0], "close");
    changes.erase(changes.begin());
    EXPECT_EQ(changes, (std::vector<std::string>{"room", "delete", "write " + std::to_string(size),
                                                 "sync", "close", "sync folder", "close"}));
  }
}

TEST(Disk, PiecesFollowEachOtherAndNeedTheRoomOfAll) {
  TemporaryFolder folder;
  const std::string path = folder.Path("file");
  const std::vector<Text> pieces = {"one", "", std::string(5000, 'x'), "end"};
  {
    const InjectedFault watched({});
    WriteFileAnew(path, pieces);
    EXPECT_EQ(InjectedFault::Changes(),
              (std::vector<std::string>{"room", "write 3", "write 5000", "write 3", "sync", "close",
                                        "sync folder", "close"}));
  }
  EXPECT_EQ(ReadFile(path), "one" + std::string(5000, 'x') + "end");
  {
    const InjectedFault fault({.room = 5000});  // two blocks are needed where one is free
    EXPECT_THROW(WriteFileAnew(folder.Path("other"), pieces), std::system_error);
  }
  {
    const InjectedFault fault({.disk_full_after = 100});
    EXPECT_THROW(WriteFileAnew(folder.Path("other"), pieces), std::system_error);
  }
  EXPECT_FALSE(std::filesystem::exists(folder.Path("other")));
}

TEST(Disk, AFileThatFitsOnlyIntoTheRoomOfTheOldOneIsWritten) {
  TemporaryFolder folder;
  const std::string path = folder.Path("file");
  WriteFileAnew(path, std::string(100'000, 'o'));
  {
    const InjectedFault fault({.room = 0});
    EXPECT_THROW(WriteFileAnew(path, std::string(200'000, 'n')), std::system_error);
    EXPECT_EQ(ReadFile(path), std::string(100'000, 'o'));
    WriteFileAnew(path, std::string(90'000, 'n'));
  }
  EXPECT_EQ(ReadFile(path), std::string(90'000, 'n'));
}

TEST(Disk, ANewFileNeedsRoomOfItsOwn) {
  TemporaryFolder folder;
  const InjectedFault fault({.room = 8192});
  EXPECT_THROW(WriteFileAnew(folder.Path("large"), std::string(8193, 'x')), std::system_error);
  WriteFileAnew(folder.Path("small"), std::string(8192, 'x'));
  EXPECT_FALSE(FileExists(folder.Path("large")));
  EXPECT_TRUE(FileExists(folder.Path("small")));
}

TEST(Disk, AFileKeepsItsModeWhenItIsSaved) {
  TestProgram test;
  test.OpenDay("Anna");
  SaveEverything(test.program);
  for (const unsigned mode : {0600u, 0640u, 0664u, 0755u}) {
    for (const std::string& path : FilesOfAnna(test.program)) {
      ASSERT_EQ(chmod(path.c_str(), mode), 0);
    }
    const Mask mask(mode == 0755u ? 0077 : 0022);
    SaveEverything(test.program);
    for (const std::string& path : FilesOfAnna(test.program)) EXPECT_EQ(ModeOf(path), mode) << path;
  }
  const std::string& settings = test.program.paths.SettingsFile;
  EXPECT_TRUE(Save_Settings(test.program));
  ASSERT_EQ(chmod(settings.c_str(), 0600), 0);
  EXPECT_TRUE(Save_Settings(test.program));
  EXPECT_EQ(ModeOf(settings), 0600u);
}

TEST(Disk, WhatIsNewOfAUserIsTheUsersAlone) {
  for (const mode_t masked : {0000u, 0022u, 0777u}) {
    TestProgram test;
    {
      const Mask mask(masked);
      test.OpenDay("Anna");
      SaveEverything(test.program);
    }
    const std::string folder = test.program.paths.UsersPath + "Anna";
    for (const char* name : {"", "/Profile", "/Files", "/Databases"}) {
      EXPECT_EQ(ModeOf(folder + name), 0700u) << name;
    }
    for (const std::string& path : FilesOfAnna(test.program))
      EXPECT_EQ(ModeOf(path), 0600u) << path;
  }
}

TEST(Disk, AFolderThatWasThereKeepsItsMode) {
  TestProgram test;
  const std::string folder = test.program.paths.UsersPath + "Anna";
  std::filesystem::create_directory(folder);
  ASSERT_EQ(chmod(folder.c_str(), 0750), 0);
  MakeUserFolders(test.program.paths, "Anna");
  EXPECT_EQ(ModeOf(folder), 0750u);
  EXPECT_EQ(ModeOf(folder + "/Files"), 0700u);
}

TEST(Disk, DeletingALinkThatLeadsNowhereDeletesTheLink) {
  TemporaryFolder folder;
  std::filesystem::create_symlink("nothing", folder.Path("link"));
  DeleteFileIfThere(folder.Path("link"));
  EXPECT_FALSE(std::filesystem::is_symlink(folder.Path("link")));
  std::filesystem::create_directory(folder.Path("folder"));
  EXPECT_THROW(DeleteFileIfThere(folder.Path("folder")), std::system_error);
  EXPECT_TRUE(std::filesystem::exists(folder.Path("folder")));
}

TEST(Disk, ADiskThatTellsNoSizeIsWrittenTo) {
  TemporaryFolder folder;
  const InjectedFault fault({.disk_tells_no_size = true});
  WriteFileAnew(folder.Path("file"), "new");
  EXPECT_EQ(ReadFile(folder.Path("file")), "new");
}

// A program that is started without an input gets the number of it for the first file that it
// opens.
TEST(Disk, TheNumberZeroIsAFileLikeAnyOther) {
  TemporaryFolder folder;
  const int input = dup(0);
  close(0);
  EXPECT_NO_THROW(WriteFileAnew(folder.Path("file"), "new"));
  EXPECT_EQ(fcntl(0, F_GETFD), -1);  // given back
  EXPECT_EQ(ReadFile(folder.Path("file")), "new");
  if (input >= 0) {
    dup2(input, 0);
    close(input);
  }
}

TEST(Disk, WhatIsNoFileIsNotDeleted) {
  TemporaryFolder folder;
  ASSERT_EQ(mkfifo(folder.Path("pipe").c_str(), 0600), 0);
  EXPECT_THROW(DeleteFileIfThere(folder.Path("pipe")), std::system_error);
  EXPECT_TRUE(PathIsTaken(folder.Path("pipe")));
}

}  // namespace
}  // namespace kelvora
