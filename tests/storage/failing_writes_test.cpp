// What a full disk, a failing close and a failing delete do to each writer: a box with the right
// code, no part of a file, memory as it was, and a later save that writes every byte.
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "language/language_file.h"
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

constexpr std::string_view kFile = "05032004140709.kvf";

struct Writer {
  const char* name;
  std::string_view box_ends_with;
  bool (*save)(Program&);  // whether it says that the file was written
  std::string (*path)(const Program&);
};

void PrintTo(const Writer& writer, std::ostream* out) {
  *out << writer.name;
}

std::string LanguagePath(const Program& program) {
  return program.paths.LanguagePath + "Mine.lsf";
}

// Says nothing by itself; what it shows tells.
bool SaveLanguage(Program& program) {
  auto& shown = dynamic_cast<RecordingBoxes&>(program.platform.boxes).shown;
  const std::size_t before = shown.size();
  Save_Language_File(program, LanguagePath(program));
  return shown.size() == before;
}

const std::array kWriters = {
    Writer{"Day", "Brelux CODE:#FF1-9", &SaveDay,
           [](const Program& p) { return p.paths.FilesPath + std::string(kFile); }},
    Writer{"Settings", "Brelux CODE:#FF1-0", &Save_Settings,
           [](const Program& p) { return p.paths.SettingsFile; }},
    Writer{"Profile", "Brelux CODE:#FF1-7",
           [](Program& p) { return Save_Profile(p, ProfileFile(p.paths, "Anna")); },
           [](const Program& p) { return ProfileFile(p.paths, "Anna"); }},
    Writer{"Custom", "Brelux CODE:#FF1-5",
           [](Program& p) { return Save_Custom(p, CustomFile(p.paths, "Anna")); },
           [](const Program& p) { return CustomFile(p.paths, "Anna"); }},
    Writer{"Favorites", "Brelux CODE:#FF1-4",
           [](Program& p) { return Save_Favorites(p, FavoritesFile(p.paths, "Anna")); },
           [](const Program& p) { return FavoritesFile(p.paths, "Anna"); }},
    Writer{"Language", "Mine.lsf", &SaveLanguage, &LanguagePath},
};

// Makes a fault, in force until the result is gone.
using Fault = std::function<std::shared_ptr<void>(std::size_t)>;

const Fault kDiskFull = [](std::size_t bytes) {
  return std::make_shared<InjectedFault>(FileFault{.disk_full_after = bytes});
};
const Fault kSizeLimit = [](std::size_t bytes) { return std::make_shared<FileSizeLimit>(bytes); };

class FailingWrite : public testing::TestWithParam<Writer> {
 protected:
  FailingWrite() {
    IgnoreFileSignals();
    test.OpenDay("Anna", kFile);
    Program& program = test.program;
    program.store.L_ochtend.Add(LineOf({.product = "Bread", .gram = "35"}));
    program.store.txt_notities = "a note";
    program.store.Custom_list.Add(LineOf({.product = "Own soup"}));
    program.store.Favorites_list.Add(LineOf({.product = "Apple", .db = "Fruit.dat"}));
    program.profile[ProfileField::name] = "Anna";
    // As short as a language file can be: the tables of this program fill many thousand bytes.
    program.texts = {};
    SetFileChanged(program, true);
    EXPECT_TRUE(GetParam().save(program));
    whole = ReadFile(path());
    SetFileChanged(program, true);
    box_count = test.boxes.shown.size();
  }

  [[nodiscard]] std::string path() const { return GetParam().path(test.program); }

  // Looks at everything that must hold after a save that failed.
  void CheckAfterFailure(const std::string& what) {
    SCOPED_TRACE(what);
    const KV_data& store = test.program.store;
    ASSERT_EQ(test.boxes.shown.size(), box_count + 1);
    EXPECT_TRUE(test.boxes.shown.back().text.ends_with(GetParam().box_ends_with))
        << test.boxes.shown.back().text;
    EXPECT_TRUE(test.program.day.FileChanged);
    EXPECT_EQ(store.L_gegevens.Count(), 15u);
    EXPECT_EQ(store.L_ochtend.Count(), 1u);
    EXPECT_EQ(store.Custom_list.Count(), 1u);
    EXPECT_EQ(store.Favorites_list.Count(), 1u);
    EXPECT_EQ(store.txt_notities, "a note");
    EXPECT_EQ(store.KV_bestand, kFile);
    box_count = test.boxes.shown.size();
  }

  void SaveAgainAndCompare() {
    EXPECT_TRUE(GetParam().save(test.program));
    EXPECT_EQ(test.boxes.shown.size(), box_count);
    EXPECT_EQ(ReadFile(path()), whole);
    EXPECT_EQ(test.program.day.FileChanged, GetParam().name != std::string_view("Day"));
    SetFileChanged(test.program, true);
  }

  void FailAtEveryByte(const Fault& fault) {
    for (std::size_t bytes = 0; bytes < whole.size(); ++bytes) {
      {
        const auto in_force = fault(bytes);
        EXPECT_FALSE(GetParam().save(test.program));
      }
      CheckAfterFailure("after " + std::to_string(bytes) + " bytes");
      ASSERT_FALSE(std::filesystem::exists(path())) << bytes;
      // Not after each of thousands: the later save is the same one each time.
      if (bytes % 16 == 0) SaveAgainAndCompare();
      if (testing::Test::HasFailure()) return;
    }
    SaveAgainAndCompare();
  }

  TestProgram test;
  std::string whole;
  std::size_t box_count = 0;
};

TEST_P(FailingWrite, ADiskThatIsFullAfterAnyNumberOfBytes) {
  FailAtEveryByte(kDiskFull);
}

TEST_P(FailingWrite, AFileThatTheSystemLimitsToAnyNumberOfBytes) {
  FailAtEveryByte(kSizeLimit);
}

TEST_P(FailingWrite, AClosingThatFails) {
  {
    const InjectedFault fault({.close_fails = true});
    EXPECT_FALSE(GetParam().save(test.program));
  }
  CheckAfterFailure("close");
  EXPECT_FALSE(std::filesystem::exists(path()));
  SaveAgainAndCompare();
}

TEST_P(FailingWrite, ASyncThatFails) {
  {
    const InjectedFault fault({.sync_fails = true});
    EXPECT_FALSE(GetParam().save(test.program));
  }
  CheckAfterFailure("sync");
  EXPECT_FALSE(std::filesystem::exists(path()));
  SaveAgainAndCompare();
}

TEST_P(FailingWrite, AFolderThatCannotBeSyncedHoldsTheNewFile) {
  {
    const InjectedFault fault({.folder_sync_fails = true});
    EXPECT_FALSE(GetParam().save(test.program));
  }
  CheckAfterFailure("sync of the folder");
  EXPECT_EQ(ReadFile(path()), whole);
  SaveAgainAndCompare();
}

// A failure before the delete: the old file is not given away for a new one that can't be.
TEST_P(FailingWrite, ADiskWithoutTheRoomLeavesTheOldFileWhole) {
  {
    const InjectedFault fault({.room = 0});
    std::filesystem::create_hard_link(path(), path() + " kept");
    // A file with a second name frees nothing.
    EXPECT_FALSE(GetParam().save(test.program));
  }
  std::filesystem::remove(path() + " kept");
  CheckAfterFailure("no room");
  EXPECT_EQ(ReadFile(path()), whole);
  SaveAgainAndCompare();
}

TEST_P(FailingWrite, ADeleteThatFailsLeavesTheOldFileWhole) {
  {
    const InjectedFault fault({.delete_fails = true});
    EXPECT_FALSE(GetParam().save(test.program));
  }
  CheckAfterFailure("delete");
  EXPECT_EQ(ReadFile(path()), whole);
  SaveAgainAndCompare();
}

TEST_P(FailingWrite, AWriteProtectedFileStaysAsItIs) {
  for (const std::size_t who : {0u, 1u}) {
    std::filesystem::permissions(path(), std::filesystem::perms::owner_read);
    {
      const auto nobody = who == 1 ? std::make_unique<AsNobody>() : nullptr;
      GetParam().save(test.program);
    }
    CheckAfterFailure("write-protected");
    EXPECT_EQ(ReadFile(path()), whole);
    std::filesystem::permissions(
        path(), std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
    SaveAgainAndCompare();
  }
}

TEST_P(FailingWrite, AFolderInThePlaceOfTheFile) {
  std::filesystem::remove(path());
  std::filesystem::create_directory(path());
  EXPECT_FALSE(GetParam().save(test.program));
  CheckAfterFailure("folder");
  EXPECT_TRUE(std::filesystem::is_directory(path()));
  std::filesystem::remove(path());
  SaveAgainAndCompare();
}

// Opening a pipe for writing would wait for a reader.
TEST_P(FailingWrite, APipeInThePlaceOfTheFile) {
  std::filesystem::remove(path());
  ASSERT_EQ(mkfifo(path().c_str(), 0600), 0);
  EXPECT_FALSE(GetParam().save(test.program));
  CheckAfterFailure("pipe");
  std::filesystem::remove(path());
  SaveAgainAndCompare();
}

TEST_P(FailingWrite, AFolderThatIsGone) {
  const std::filesystem::path folder = std::filesystem::path(path()).parent_path();
  std::filesystem::rename(folder, folder.string() + " away");
  EXPECT_FALSE(GetParam().save(test.program));
  CheckAfterFailure("no folder");
  std::filesystem::rename(folder.string() + " away", folder);
  SaveAgainAndCompare();
}

INSTANTIATE_TEST_SUITE_P(Writers, FailingWrite, testing::ValuesIn(kWriters),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace kelvora
