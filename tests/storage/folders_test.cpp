// Where users and files lie, and what the listings of folders give.
#include "storage/folders.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "storage/record_file.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

std::vector<Text> Lines(const TextList& list) {
  return {list.begin(), list.end()};
}

TEST(Folders, AUserHasThreeFoldersNamedExactlyAsTyped) {
  TestProgram test;
  MakeUserFolders(test.program.paths, " de Vries, J. ");
  for (const char* name : {"Profile", "Files", "Databases"}) {
    EXPECT_TRUE(
        std::filesystem::is_directory(test.program.paths.UsersPath + " de Vries, J. /" + name));
  }
  EXPECT_EQ(Lines(SubFoldersOf(test.program.paths.UsersPath)), std::vector<Text>{" de Vries, J. "});
}

TEST(Folders, ANameThatNoFolderCanHaveGetsNoneInsideOrOutside) {
  TestProgram test;
  const std::string outside = test.folders.Documents() + "/Kelvora FOOD/";
  for (const char* name : {".", "..", "a/b", "/tmp"}) {
    EXPECT_FALSE(CanNameAFolder(name));
    MakeUserFolders(test.program.paths, name);
  }
  EXPECT_FALSE(CanNameAFolder(std::string_view("a\0b", 3)));
  EXPECT_TRUE(CanNameAFolder("..."));
  EXPECT_TRUE(std::filesystem::is_empty(test.program.paths.UsersPath));
  EXPECT_FALSE(std::filesystem::exists(outside + "Profile"));
}

TEST(Folders, TheTwoSpecialFoldersHaveTheirNumbers) {
  TestProgram test;
  EXPECT_EQ(GetSpecialFolder(test.folders, 26), test.folders.ApplicationData());
  EXPECT_EQ(GetSpecialFolder(test.folders, 5), test.folders.Documents());
  EXPECT_EQ(GetSpecialFolder(test.folders, 7), "");
}

struct NoFolders : Folders {
  std::string ApplicationData() const override { return {}; }
  std::string Documents() const override { return std::string("/docs\0rest", 10); }
  std::string State() const override { return {}; }
  std::string UserData() const override { return {}; }
  std::string ProgramFolder() const override { return {}; }
};

TEST(Folders, ASpecialFolderEndsAtTheFirstNulAndIsEmptyWhenThereIsNone) {
  const NoFolders folders;
  EXPECT_EQ(GetSpecialFolder(folders, 26), "");
  EXPECT_EQ(GetSpecialFolder(folders, 5), "/docs");
}

TEST(Folders, DeletingAUserRemovesAllItsFilesEvenProtectedOnes) {
  TestProgram test;
  const std::string users = test.program.paths.UsersPath;
  MakeUserFolders(test.program.paths, "Anna");
  MakeUserFolders(test.program.paths, "Annabel");
  WriteFileAnew(users + "Anna/Files/day.kvf", "x");
  for (const char* name : {"Anna/Files/day.kvf", "Anna/Files"}) {
    std::filesystem::permissions(users + name, std::filesystem::perms::owner_read);
  }
  DeleteUserFolder(test.program.paths, users + "Anna/");
  EXPECT_FALSE(std::filesystem::exists(users + "Anna"));
  EXPECT_TRUE(std::filesystem::exists(users + "Annabel/Files"));
}

TEST(Folders, DeletingReachesNothingOutsideTheUsersFolder) {
  TestProgram test;
  const std::string users = test.program.paths.UsersPath;
  MakeUserFolders(test.program.paths, "Anna");
  for (const std::string& path :
       {users, users + ".", users + "..", users + "../My Reports", users + "Anna/Files",
        test.program.paths.ReportsPath, std::string("Anna"), std::string()}) {
    EXPECT_THROW(DeleteUserFolder(test.program.paths, path), std::system_error) << path;
  }
  EXPECT_TRUE(std::filesystem::exists(users + "Anna/Files"));
  EXPECT_TRUE(std::filesystem::exists(test.program.paths.ReportsPath));
}

TEST(Folders, ALinkedUserIsRemovedAsALink) {
  TestProgram test;
  TemporaryFolder elsewhere;
  WriteFileAnew(elsewhere.Path("keep"), "x");
  const std::string users = test.program.paths.UsersPath;
  std::filesystem::create_symlink(elsewhere.Path(), users + "Linked");
  DeleteUserFolder(test.program.paths, users + "Linked");
  EXPECT_FALSE(std::filesystem::exists(std::filesystem::symlink_status(users + "Linked")));
  EXPECT_TRUE(FileExists(elsewhere.Path("keep")));
}

// What can't be read is listed too: the reader says so instead of a file missing without a word.
TEST(Folders, EverythingButFoldersIsListed) {
  TemporaryFolder folder;
  std::filesystem::create_directory(folder.Path("folder.dat"));
  WriteFileAnew(folder.Path("file.dat"), "");
  std::filesystem::create_symlink("nothing", folder.Path("broken.dat"));
  EXPECT_EQ(Lines(FilesIn(folder.Path() + "/", ".dat")),
            (std::vector<Text>{"broken.dat", "file.dat"}));
}

TEST(Folders, ListingsAreSortedWithoutRegardToCase) {
  TemporaryFolder folder;
  for (const char* name : {"b.lsf", "A.lsf", "c.lsf", "C.lsf", "x.dat"}) {
    WriteFileAnew(folder.Path(name), "");
  }
  EXPECT_EQ(Lines(FilesIn(folder.Path() + "/", ".lsf")),
            (std::vector<Text>{"A.lsf", "b.lsf", "C.lsf", "c.lsf"}));
  EXPECT_TRUE(FilesIn(folder.Path("missing/"), ".lsf").Empty());
}

TEST(Folders, AnEndingCountsInAnyCase) {
  TemporaryFolder folder;
  for (const char* name : {"A.kvf", "B.KVF", "C.Kvf", "D.kvf2", "E.kv", "kvf", ".kvf"}) {
    WriteFileAnew(folder.Path(name), "");
  }
  EXPECT_EQ(Lines(FilesIn(folder.Path() + "/", ".kvf")),
            (std::vector<Text>{"A.kvf", "B.KVF", "C.Kvf"}));
}

TEST(Folders, HiddenFilesAndFoldersArePassedOver) {
  TemporaryFolder folder;
  for (const char* name : {".hidden.dat", "..dat", "shown.dat"}) {
    WriteFileAnew(folder.Path(name), "");
  }
  for (const char* name : {".Trash", "..nobody", "Anna"}) {
    std::filesystem::create_directory(folder.Path(name));
  }
  EXPECT_EQ(Lines(FilesIn(folder.Path() + "/", ".dat")), std::vector<Text>{"shown.dat"});
  EXPECT_EQ(Lines(SubFoldersOf(folder.Path() + "/")), std::vector<Text>{"Anna"});
}

// "Łukasz", a decomposed "Zoë" and "Супы" as bytes: names that text can't hold.
TEST(Folders, NamesThatTextCannotHoldAreFoundByTheirPaths) {
  TemporaryFolder home;
  const std::string folder = home.Path() + "/";
  const std::string lukasz = "\xC5\x81ukasz";
  const std::string zoe = "Zoe\xCC\x88";
  std::filesystem::create_directory(folder + lukasz);
  std::filesystem::create_directory(folder + zoe);
  WriteFileAnew(folder + "readme.txt", "");
  const auto users = FoldersWithPathsIn(folder);
  ASSERT_EQ(users.size(), 2u);
  EXPECT_EQ(users[0].name, "?ukasz");
  EXPECT_EQ(users[0].path, folder + lukasz + "/");
  EXPECT_EQ(users[1].name, "Zoe?");
  EXPECT_EQ(users[1].path, folder + zoe + "/");
  const std::string soups = "\xD0\xA1\xD1\x83\xD0\xBF\xD1\x8B.dat";
  WriteFileAnew(folder + soups, "");
  const auto files = FilesWithPathsIn(folder, ".dat");
  ASSERT_EQ(files.size(), 1u);
  EXPECT_EQ(files[0].name, "????.dat");
  EXPECT_EQ(files[0].path, folder + soups);
}

TEST(Folders, ALinkThatLeadsNowhereAndAPipeEndNoListing) {
  TemporaryFolder home;
  const std::string folder = home.Path() + "/";
  for (const char* name : {"a", "d"}) std::filesystem::create_directory(folder + name);
  std::filesystem::create_symlink("nothing", folder + "b");
  ASSERT_EQ(mkfifo((folder + "c").c_str(), 0600), 0);
  std::filesystem::create_symlink("e", folder + "e");  // a link to itself
  EXPECT_EQ(Lines(SubFoldersOf(folder)), (std::vector<Text>{"a", "b", "c", "d", "e"}));
}

}  // namespace
}  // namespace kelvora
