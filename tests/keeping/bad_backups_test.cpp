// Archives that no backup is: cut, changed, encrypted, hostile. Whatever they hold, nothing outside
// the users folder is written and nothing existing is lost.
#include <archive.h>
#include <archive_entry.h>

#include "keeping/backup_fixture.h"
#include "storage/zip_file.h"

namespace kelvora {
namespace {

namespace fs = std::filesystem;

using BadBackup = BackupTest;

constexpr const char* kName = "05032004140709.kvf";

// An archive made by the library itself, with what no writer of ours puts in.
class RawZip {
 public:
  explicit RawZip(const std::string& path, const char* passphrase = nullptr)
      : zip_(archive_write_new()) {
    archive_write_set_format_zip(zip_);
    if (passphrase != nullptr) {
      archive_write_set_options(zip_, "zip:encryption=traditional");
      archive_write_set_passphrase(zip_, passphrase);
    }
    archive_write_open_filename(zip_, path.c_str());
  }
  ~RawZip() { archive_write_free(zip_); }
  RawZip(const RawZip&) = delete;
  RawZip& operator=(const RawZip&) = delete;

  void AddFile(const std::string& name, const std::string& piece, std::size_t times = 1) {
    archive_entry* const entry = archive_entry_new();
    archive_entry_set_pathname(entry, name.c_str());
    archive_entry_set_filetype(entry, AE_IFREG);
    archive_entry_set_perm(entry, 0644);
    archive_entry_set_size(entry, static_cast<la_int64_t>(piece.size() * times));
    archive_write_header(zip_, entry);
    for (std::size_t i = 0; i < times; ++i) archive_write_data(zip_, piece.data(), piece.size());
    archive_entry_free(entry);
  }
  void AddLink(const std::string& name, const std::string& target) {
    archive_entry* const entry = archive_entry_new();
    archive_entry_set_pathname(entry, name.c_str());
    archive_entry_set_filetype(entry, AE_IFLNK);
    archive_entry_set_symlink(entry, target.c_str());
    archive_write_header(zip_, entry);
    archive_entry_free(entry);
  }

 private:
  archive* zip_;
};

TEST_F(BadBackup, NamesThatLeadElsewhereArePassedOver) {
  const std::string path = test.folders.home.Path("evil.zip");
  const std::vector<std::string> names = {
      "../evil.kvf",
      "../../.bashrc",
      "/tmp/evil.kvf",
      "Anna/../../evil.kvf",
      "Anna/Files/../../../evil.kvf",
      "Anna/Files/sub/evil.kvf",
      "../Files/evil.kvf",
      "./Files/evil.kvf",
      ".hidden/Files/evil.kvf",
      "Anna/Files/.evil.kvf",
      "Anna/Files/evil.txt",
      "Anna/Files/..kvf/evil.kvf",
      "Anna/Files/.kvf",
      "Anna//Files/evil.kvf",
      "Anna/Profile/Other.usr",
      "Anna/Profile/Profile.usr/evil.kvf",
      "Anna/evil.kvf",
      "evil.kvf",
      std::string(300, 'a') + "/Files/evil.kvf",
      "Anna/Files/" + std::string(300, 'a') + ".kvf",
  };
  {
    RawZip zip(path);
    for (const std::string& name : names) zip.AddFile(name, "evil");
    zip.AddLink("Anna/Files/link.kvf", "/etc/passwd");
    zip.AddFile("Anna/Files/good.kvf", "good");
  }
  const auto before = FilesBelow(test.folders.home.Path());
  const auto contents = ContentsOf(path);
  EXPECT_EQ(contents.Foreign(), names.size() + 1);
  ASSERT_EQ(contents.Users().size(), 1u);
  EXPECT_EQ(contents.Users()[0].files.size(), 1u);
  EXPECT_EQ(BringBack(contents, Differing::take_backup).written, 1u);
  auto after = FilesBelow(test.folders.home.Path());
  EXPECT_EQ(after.erase("Documents/Kelvora FOOD/My Users/Anna/Files/good.kvf"), 1u);
  EXPECT_EQ(after, before);
}

TEST_F(BadBackup, OfTwoEntriesOfOneNameTheFirstCounts) {
  const std::string path = test.folders.home.Path("twice.zip");
  {
    RawZip zip(path);
    zip.AddFile("Anna/Files/day.kvf", "first");
    zip.AddFile("Anna/Files/day.kvf", "second");
  }
  const auto contents = ContentsOf(path);
  EXPECT_EQ(contents.Foreign(), 1u);
  (void)BringBack(contents, Differing::take_backup);
  EXPECT_EQ(ReadFile(UsersPath() + "Anna/Files/day.kvf"), "first");
}

TEST_F(BadBackup, AnEncryptedOneYieldsNothing) {
  const std::string path = test.folders.home.Path("locked.zip");
  {
    RawZip zip(path, "secret");
    zip.AddFile("Anna/Files/day.kvf", "a day of Anna's");
  }
  const auto contents = ContentsOf(path);
  EXPECT_EQ(contents.Encrypted(), 1u);
  EXPECT_TRUE(contents.Users().empty());
}

TEST_F(BadBackup, WhatIsNoZipFails) {
  for (const std::string& bytes :
       {std::string(), std::string("PK"), std::string("a letter"), std::string(5000, '\0')}) {
    const std::string path = test.folders.home.Path("letter.zip");
    WriteFileAnew(path, bytes);
    BackupContents contents(UsersPath(), path);
    EXPECT_THROW(while (contents.Work()){}, std::system_error);
    EXPECT_FALSE(contents.Work());
  }
  BackupContents folder(UsersPath(), test.folders.home.Path());
  EXPECT_THROW((void)folder.Work(), std::system_error);
}

TEST_F(BadBackup, AZipOfOtherThingsFails) {
  const std::string path = test.folders.home.Path("photos.zip");
  { RawZip(path).AddFile("photo.jpg", "photo"); }
  EXPECT_THROW((void)ContentsOf(path), std::system_error);
}

// Every file that comes back is one that was put in, whole.
TEST_F(BadBackup, CutAnywhereItBringsBackWholeFilesOnly) {
  MakeUser("Anna", {kName});
  const auto whole = FilesBelow(UsersPath());
  const std::string path = MakeBackup();
  const std::string bytes = ReadFile(path);
  MoveToAnEmptyUsersFolder();
  std::size_t most = 0;
  for (std::size_t size = 0; size < bytes.size(); ++size) {
    WriteFileAnew(path, bytes.substr(0, size));
    fs::remove_all(UsersPath());
    fs::create_directories(UsersPath());
    BackupContents contents(UsersPath(), path);
    try {
      while (contents.Work()) {
      }
    } catch (const std::system_error&) {
      continue;
    }
    // The last bytes only say that there is no comment.
    EXPECT_TRUE(contents.Cut() || size > bytes.size() - 20) << size;
    (void)BringBack(contents, Differing::keep_both);
    const auto back = FilesBelow(UsersPath());
    most = std::max(most, back.size());
    for (const auto& [name, file] : back) EXPECT_EQ(file, whole.at(name)) << size;
  }
  EXPECT_EQ(most, whole.size()) << "one that lacks only its list yields all files";
}

TEST_F(BadBackup, WithOneChangedByteItBringsBackWholeFilesOnlyAndLosesNothing) {
  MakeUser("Anna", {kName});
  const auto whole = FilesBelow(UsersPath());
  const std::string path = MakeBackup();
  const std::string bytes = ReadFile(path);
  WriteDay("Anna", kName, "Mine.");
  const auto before = FilesBelow(UsersPath());
  for (std::size_t place = 0; place < bytes.size(); ++place) {
    std::string changed = bytes;
    changed[place] = static_cast<char>(changed[place] ^ 0x04);
    WriteFileAnew(path, changed);
    BackupContents contents(UsersPath(), path);
    try {
      while (contents.Work()) {
      }
    } catch (const std::system_error&) {
      continue;
    }
    (void)BringBack(contents, Differing::keep_both);
    for (const auto& [name, file] : FilesBelow(UsersPath())) {
      if (before.contains(name)) {
        EXPECT_EQ(file, before.at(name)) << name << " at " << place;
        continue;
      }
      // A changed name can't be told from another one; what stands under it is whole.
      bool is_whole = false;
      for (const auto& original : whole) is_whole = is_whole || original.second == file;
      EXPECT_TRUE(is_whole) << name << " at " << place;
    }
    fs::remove_all(UsersPath());
    for (const auto& [name, file] : before) {
      fs::create_directories(fs::path(UsersPath() + name).parent_path());
      WriteFileAnew(UsersPath() + name, file);
    }
  }
}

TEST_F(BadBackup, OneThatSwellsBeyondWhatPeopleWriteFails) {
  const std::string path = test.folders.home.Path("bomb.zip");
  {
    RawZip zip(path);
    zip.AddFile("Anna/Databases/Custom.dat", std::string(1 << 20, '\0'), 128);
  }
  ASSERT_LT(fs::file_size(path), std::size_t{1} << 20);
  BackupContents contents(UsersPath(), path);
  EXPECT_THROW(while (contents.Work()){}, std::system_error);
  EXPECT_TRUE(fs::is_empty(UsersPath()));
}

TEST_F(BadBackup, AHundredThousandEntriesAreRead) {
  const std::string path = test.folders.home.Path("many.zip");
  {
    ZipWriter zip(path);
    for (int i = 0; i < 100'000; ++i) {
      zip.Add("Anna/Files/" + std::to_string(i) + ".kvf", "x", 0);
    }
    zip.Finish();
  }
  const auto contents = ContentsOf(path);
  ASSERT_EQ(contents.Users().size(), 1u);
  EXPECT_EQ(contents.Users()[0].files.size(), 100'000u);
}

}  // namespace
}  // namespace kelvora
