#include "storage/recovery_copy.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "storage/day_file.h"
#include "storage/record_file.h"
#include "support/file_faults.h"
#include "support/other_process.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

namespace fs = std::filesystem;

struct TypedDiary : DiaryView {
  Text typed;
  bool untaken = false;
  void CloseWindow() override {}
  void Set_Taal() override {}
  void Refresh_Tekst() override { untaken = false; }
  bool HoldsUntakenText() const override { return untaken; }
  Text TextInBox() const override { return typed; }
  void TypeText(std::string_view text) override {
    typed = text;
    untaken = true;
  }
  bool TakeOver() override { return true; }
};

std::vector<std::string> CopiesOf(const TestProgram& test) {
  std::vector<std::string> paths;
  std::error_code none;
  for (const auto& entry : fs::directory_iterator(test.program.paths.StatePath, none)) {
    paths.push_back(entry.path().string());
  }
  return paths;
}

// A day that lies in its file, one food in it.
void OpenSavedDay(TestProgram& test) {
  test.OpenDay("Anna");
  test.program.store.L_ochtend.Add(LineOf({.product = "Bread"}));
  ASSERT_TRUE(SaveDay(test.program));
}

Text BlockOf(std::string_view product) {
  return LineOf({.product = product}) + kLineEnd;
}

void AddFood(TestProgram& test, std::string_view product) {
  test.program.store.L_middag.Add(LineOf({.product = product}));
}

RecoveryCopy OnlyCopyOf(const TestProgram& test) {
  const auto paths = CopiesOf(test);
  EXPECT_EQ(paths.size(), 1u);
  const auto copy = paths.empty() ? std::nullopt : ReadRecoveryCopy(paths.front());
  EXPECT_TRUE(copy.has_value());
  return copy.value_or(RecoveryCopy());
}

TEST(RecoveryCopy, ADayThatLiesInItsFileHasNone) {
  TestProgram test;
  OpenSavedDay(test);
  BringRecoveryCopyUpToDate(test.program);
  EXPECT_TRUE(CopiesOf(test).empty());
}

TEST(RecoveryCopy, WithoutAnOpenDayThereIsNone) {
  TestProgram test;
  BringRecoveryCopyUpToDate(test.program);
  WriteRecoveryCopy(test.program);
  EXPECT_TRUE(CopiesOf(test).empty());
}

TEST(RecoveryCopy, ANewDayHasOneBeforeItIsSavedForTheFirstTime) {
  TestProgram test;
  test.OpenDay("Anna");
  BringRecoveryCopyUpToDate(test.program);
  const RecoveryCopy copy = OnlyCopyOf(test);
  EXPECT_EQ(copy.day_path, test.program.paths.FilesPath + "05032004140709.kvf");
  EXPECT_EQ(copy.stored, "");
  EXPECT_EQ(copy.day, PackDay(test.program.store));
}

TEST(RecoveryCopy, AChangedDayHasOneWhateverFileChangedSays) {
  TestProgram test;
  OpenSavedDay(test);
  AddFood(test, "Soup");
  ASSERT_FALSE(test.program.day.FileChanged);
  BringRecoveryCopyUpToDate(test.program);
  const RecoveryCopy copy = OnlyCopyOf(test);
  EXPECT_EQ(copy.day[DayFileField::Afternoon], BlockOf("Soup"));
  EXPECT_EQ(copy.stored, TraceOf(*test.program.day_on_disk.strings));
  EXPECT_EQ(copy.made, "05-03-2004 14:07");
  EXPECT_EQ(copy.process, OwnProcess());
  EXPECT_FALSE(copy.holds_untaken_diary);
}

TEST(RecoveryCopy, EachOfTheSixStringsCounts) {
  for (std::size_t i = 0; i < Rec_DayFile::kSize; ++i) {
    TestProgram test;
    OpenSavedDay(test);
    KV_data& store = test.program.store;
    if (i == 0) store.txt_trenddata += "1";
    if (i == 1) store.txt_notities += "1";
    if (i == 2) store.L_gegevens.Replace(HeaderRow::kWeight, "81");
    if (i >= 3) store.ListOf(kDayParts[i - 3]).Add(LineOf({.product = "Soup"}));
    BringRecoveryCopyUpToDate(test.program);
    EXPECT_EQ(CopiesOf(test).size(), 1u) << i;
  }
}

TEST(RecoveryCopy, ItGoesWhenTheDayIsWhatItsFileHolds) {
  TestProgram test;
  OpenSavedDay(test);
  AddFood(test, "Soup");
  BringRecoveryCopyUpToDate(test.program);
  test.program.store.L_middag.Clear();
  BringRecoveryCopyUpToDate(test.program);
  EXPECT_TRUE(CopiesOf(test).empty());
}

TEST(RecoveryCopy, TextInTheDiarysBoxThatWasNotTakenOverIsInIt) {
  TestProgram test;
  OpenSavedDay(test);
  TypedDiary diary;
  test.program.windows.diary = &diary;
  diary.TypeText("Slept\nwell");
  BringRecoveryCopyUpToDate(test.program);
  const RecoveryCopy copy = OnlyCopyOf(test);
  EXPECT_TRUE(copy.holds_untaken_diary);
  EXPECT_EQ(copy.diary, "Slept\nwell");
  EXPECT_EQ(copy.day[DayFileField::Notes], "");
  test.program.windows.diary = nullptr;
}

TEST(RecoveryCopy, IsTheUsersAloneInAFolderThatIsTheUsersAlone) {
  TestProgram test;
  test.OpenDay("Anna");
  BringRecoveryCopyUpToDate(test.program);
  ASSERT_EQ(CopiesOf(test).size(), 1u);
  EXPECT_EQ(fs::status(CopiesOf(test)[0]).permissions(),
            fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(fs::status(test.folders.home.Path("state/kelvora-food")).permissions(),
            fs::perms::owner_all);
}

TEST(RecoveryCopy, IsWrittenBesideItsPredecessorSyncedAndPutInItsPlace) {
  TestProgram test;
  OpenSavedDay(test);
  AddFood(test, "Soup");
  BringRecoveryCopyUpToDate(test.program);
  AddFood(test, "Salad");
  const InjectedFault fault({});
  BringRecoveryCopyUpToDate(test.program);
  std::vector<std::string> changes;
  for (const std::string& change : InjectedFault::Changes()) {
    if (change != "room" && change != "close") changes.push_back(change.substr(0, 5));
  }
  EXPECT_EQ(changes, (std::vector<std::string>{"write", "sync", "renam", "sync "}));
}

TEST(RecoveryCopy, ASaveDeletesTheDayOnlyOnceItIsThereAndRemovesItAtTheEnd) {
  TestProgram test;
  OpenSavedDay(test);
  AddFood(test, "Soup");
  std::vector<std::string> changes;
  {
    const InjectedFault fault({});
    ASSERT_TRUE(SaveDay(test.program));
    for (const std::string& change : InjectedFault::Changes()) {
      if (change != "room" && change != "close") changes.push_back(change.substr(0, 5));
    }
  }
  // The copy, the day, the copy again.
  EXPECT_EQ(changes, (std::vector<std::string>{"write", "sync", "renam", "sync ",  //
                                               "delet", "write", "sync", "sync ",  //
                                               "delet"}));
  EXPECT_TRUE(CopiesOf(test).empty());
}

TEST(RecoveryCopy, ASaveOfAnUnchangedDayWritesOneTooForItsFileIsDeleted) {
  TestProgram test;
  OpenSavedDay(test);
  const InjectedFault fault({});
  ASSERT_TRUE(SaveDay(test.program));
  const auto& changes = InjectedFault::Changes();
  const auto renamed = std::ranges::find(changes, "rename");
  const auto deleted = std::ranges::find(changes, "delete");
  EXPECT_LT(renamed - changes.begin(), deleted - changes.begin());
}

TEST(RecoveryCopy, AFailedSaveLeavesItThere) {
  TestProgram test;
  OpenSavedDay(test);
  AddFood(test, "Soup");
  BringRecoveryCopyUpToDate(test.program);
  {
    // Enough for the copy, which is there already, and not for the day.
    const InjectedFault fault({.disk_full_after = 10});
    EXPECT_FALSE(SaveDay(test.program));
  }
  EXPECT_FALSE(fs::exists(PathOfDay(test.program)));
  EXPECT_EQ(OnlyCopyOf(test).day, PackDay(test.program.store));
  // The file that was deleted held what the day holds again; it is not there any more.
  test.program.store.L_middag.Clear();
  BringRecoveryCopyUpToDate(test.program);
  EXPECT_EQ(OnlyCopyOf(test).day, PackDay(test.program.store));
  EXPECT_TRUE(SaveDay(test.program));
  EXPECT_TRUE(CopiesOf(test).empty());
}

TEST(RecoveryCopy, ADayThatIsClosedOnPurposeTakesItAlong) {
  TestProgram test;
  test.OpenDay("Anna");
  BringRecoveryCopyUpToDate(test.program);
  ASSERT_EQ(CopiesOf(test).size(), 1u);
  CloseDay(test.program);
  EXPECT_TRUE(CopiesOf(test).empty());
}

TEST(RecoveryCopy, AFullDiskLeavesThePredecessorWhole) {
  for (std::size_t room = 0; room < 350; room += 7) {  // the copy takes more
    TestProgram test;
    OpenSavedDay(test);
    AddFood(test, "Soup");
    BringRecoveryCopyUpToDate(test.program);
    const Rec_DayFile before = PackDay(test.program.store);
    AddFood(test, "Salad");
    {
      const InjectedFault fault({.disk_full_after = room});
      BringRecoveryCopyUpToDate(test.program);
    }
    EXPECT_EQ(OnlyCopyOf(test).day, before) << room;
    EXPECT_TRUE(test.boxes.shown.empty());
    BringRecoveryCopyUpToDate(test.program);
    EXPECT_EQ(OnlyCopyOf(test).day, PackDay(test.program.store));
  }
}

TEST(RecoveryCopy, EachFailingStepLeavesOneWholeCopy) {
  for (const FileFault& fault : {FileFault{.close_fails = true}, FileFault{.sync_fails = true},
                                 FileFault{.rename_fails = true}, FileFault{.room = 100}}) {
    TestProgram test;
    OpenSavedDay(test);
    AddFood(test, "Soup");
    BringRecoveryCopyUpToDate(test.program);
    const Rec_DayFile before = PackDay(test.program.store);
    AddFood(test, "Salad");
    {
      const InjectedFault injected(fault);
      BringRecoveryCopyUpToDate(test.program);
    }
    EXPECT_EQ(OnlyCopyOf(test).day, before);
    EXPECT_TRUE(test.boxes.shown.empty());
  }
}

TEST(RecoveryCopy, WithoutAStateFolderTheProgramGoesOnAsWithout) {
  TestProgram test;
  fs::create_directories(test.folders.home.Path("state"));
  std::ofstream(test.folders.home.Path("state/kelvora-food")) << "a file";
  OpenSavedDay(test);
  AddFood(test, "Soup");
  BringRecoveryCopyUpToDate(test.program);
  EXPECT_TRUE(SaveDay(test.program));
  EXPECT_TRUE(RecoveryCopiesLeft(test.program.paths).empty());
  EXPECT_TRUE(test.boxes.shown.empty());

  test.program.paths.StatePath.clear();  // where the platform names none
  AddFood(test, "Salad");
  BringRecoveryCopyUpToDate(test.program);
  EXPECT_TRUE(SaveDay(test.program));
  EXPECT_TRUE(RecoveryCopiesLeft(test.program.paths).empty());
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST(RecoveryCopy, WithAStateFolderThatMayNotBeWrittenTheProgramGoesOnAsWithout) {
  TestProgram test;
  OpenSavedDay(test);
  fs::create_directories(test.program.paths.StatePath);
  fs::permissions(test.program.paths.StatePath, fs::perms::owner_read | fs::perms::owner_exec);
  fs::permissions(test.folders.home.Path(), fs::perms::all);
  fs::permissions(test.folders.home.Path("state"), fs::perms::all);
  AddFood(test, "Soup");
  {
    const AsNobody nobody;
    BringRecoveryCopyUpToDate(test.program);
  }
  EXPECT_TRUE(CopiesOf(test).empty());
  EXPECT_TRUE(test.boxes.shown.empty());
  EXPECT_TRUE(SaveDay(test.program));
}

TEST(RecoveryCopy, ADayThatChangesIsWrittenAtRestAndAtTheThirdLookAtTheLatest) {
  TestProgram test;
  OpenSavedDay(test);
  const auto foods_in_copy = [&test] {
    return CopiesOf(test).empty()
               ? std::size_t{0}
               : std::size_t{OnlyCopyOf(test).day[DayFileField::Afternoon].size()};
  };
  const std::size_t line = BlockOf("1").size();
  AddFood(test, "1");
  LookAfterRecoveryCopy(test.program);
  EXPECT_EQ(foods_in_copy(), 0u);
  LookAfterRecoveryCopy(test.program);
  EXPECT_EQ(foods_in_copy(), line) << "at rest since the look before";
  // Somebody types on and on.
  for (const char* food : {"2", "3"}) {
    AddFood(test, food);
    LookAfterRecoveryCopy(test.program);
    EXPECT_EQ(foods_in_copy(), line);
  }
  AddFood(test, "4");
  LookAfterRecoveryCopy(test.program);
  EXPECT_EQ(foods_in_copy(), 4 * line);
  AddFood(test, "5");
  LookAfterRecoveryCopy(test.program);
  EXPECT_EQ(foods_in_copy(), 4 * line);
}

// Four looks, the first of which may come a moment after the change, are less than two seconds.
static_assert(kRecoveryLookMilliseconds * 3 < 2000 - 100);

TEST(RecoveryCopy, AnUnchangedDayIsNotWrittenAgain) {
  TestProgram test;
  test.OpenDay("Anna");
  BringRecoveryCopyUpToDate(test.program);
  const InjectedFault fault({});
  for (int look = 0; look < 5; ++look) LookAfterRecoveryCopy(test.program);
  EXPECT_TRUE(InjectedFault::Changes().empty());
}

TEST(RecoveryCopy, OneThatIsGoneIsWrittenAgain) {
  TestProgram test;
  test.OpenDay("Anna");
  BringRecoveryCopyUpToDate(test.program);
  fs::remove_all(test.program.paths.StatePath);
  BringRecoveryCopyUpToDate(test.program);
  EXPECT_EQ(CopiesOf(test).size(), 1u);
}

TEST(RecoveryCopy, TheUnansweredOneOfAnotherProcessIsNeverWrittenOver) {
  TestProgram test;
  OpenSavedDay(test);
  ASSERT_TRUE(InAnotherProcess([&] {
    AddFood(test, "Soup");
    BringRecoveryCopyUpToDate(test.program);
  }));
  ASSERT_EQ(RecoveryCopiesLeft(test.program.paths).size(), 1u);
  AddFood(test, "Salad");
  BringRecoveryCopyUpToDate(test.program);
  EXPECT_EQ(CopiesOf(test).size(), 2u);
  const auto left = RecoveryCopiesLeft(test.program.paths);
  ASSERT_EQ(left.size(), 1u) << "this process lives";
  EXPECT_EQ(left[0].day[DayFileField::Afternoon], BlockOf("Soup"));
  ASSERT_TRUE(SaveDay(test.program));
  EXPECT_EQ(CopiesOf(test).size(), 1u);
  EXPECT_EQ(RecoveryCopiesLeft(test.program.paths).size(), 1u);
}

TEST(RecoveryCopy, ItsNameTellsDaysOfOneNameApartByTheirFolders) {
  TestProgram test;
  test.OpenDay("Anna");
  BringRecoveryCopyUpToDate(test.program);
  const std::string first = test.program.recovery.path;
  CloseDay(test.program);
  test.OpenDay("Bob");
  BringRecoveryCopyUpToDate(test.program);
  EXPECT_NE(test.program.recovery.path, first);
}

TEST(RecoveryCopy, AnotherUsersFolderMeansAnotherCopyAndTheOldOneGoes) {
  TestProgram test;
  test.OpenDay("Anna");
  BringRecoveryCopyUpToDate(test.program);
  test.program.paths.UsersPath = test.folders.home.Path("elsewhere/");
  SetCurrentUser(test.program, "Anna");
  BringRecoveryCopyUpToDate(test.program);
  EXPECT_EQ(OnlyCopyOf(test).day_path,
            test.folders.home.Path("elsewhere/Anna/Files/05032004140709.kvf"));
}

TEST(RecoveryCopy, WhatIsCutOrChangedAnywhereIsNone) {
  TestProgram test;
  test.OpenDay("Anna");
  AddFood(test, "Soup");
  BringRecoveryCopyUpToDate(test.program);
  const std::string path = CopiesOf(test).at(0);
  const std::string whole = ReadFile(path);
  ASSERT_TRUE(ReadRecoveryCopy(path).has_value());
  for (std::size_t size = 0; size < whole.size(); ++size) {
    WriteFileAnew(path, whole.substr(0, size));
    EXPECT_FALSE(ReadRecoveryCopy(path).has_value()) << size;
  }
  // The count of records may say more than there are.
  for (std::size_t place = 4; place < whole.size(); ++place) {
    std::string changed = whole;
    changed[place] = static_cast<char>(changed[place] ^ 0x10);
    WriteFileAnew(path, changed);
    // A length that reaches beyond the end means what is there.
    const auto copy = ReadRecoveryCopy(path);
    EXPECT_TRUE(!copy || copy->day == PackDay(test.program.store)) << place;
  }
}

TEST(RecoveryCopy, WhatIsForeignInTheFolderStaysAndIsPassedOver) {
  TestProgram test;
  const std::string& folder = test.program.paths.StatePath;
  fs::create_directories(folder + "folder.copy");
  std::ofstream(folder + "notes.copy") << "mine";
  std::ofstream(folder + "letter.new") << "mine";
  fs::create_symlink("/dev/zero", folder + "endless.copy");
  EXPECT_TRUE(RecoveryCopiesLeft(test.program.paths).empty());
  EXPECT_EQ(CopiesOf(test).size(), 4u);
}

TEST(RecoveryCopy, WhatAKilledProcessHadHalfWrittenIsRemoved) {
  TestProgram test;
  test.OpenDay("Anna");
  const std::string& folder = test.program.paths.StatePath;
  fs::create_directories(folder);
  std::string left;
  ASSERT_TRUE(InAnotherProcess(
      [&] { std::ofstream(folder + OwnProcess().number + "-0123456789abcdef.new") << "half"; }));
  ASSERT_EQ(CopiesOf(test).size(), 1u);
  EXPECT_TRUE(RecoveryCopiesLeft(test.program.paths).empty());
  EXPECT_TRUE(CopiesOf(test).empty());
}

TEST(RecoveryCopy, DeletingAUserRemovesThoseOfItsDaysOnly) {
  TestProgram test;
  for (const char* user : {"Anna", "Anna Maria", "Bob"}) {
    ASSERT_TRUE(InAnotherProcess([&] {
      test.OpenDay(user);
      BringRecoveryCopyUpToDate(test.program);
    }));
  }
  RemoveRecoveryCopiesBelow(test.program.paths, test.program.paths.UsersPath + "Anna/");
  std::vector<std::string> users;
  for (const RecoveryCopy& copy : RecoveryCopiesLeft(test.program.paths)) {
    users.push_back(copy.day[DayFileField::Header].substr(0, 4));
  }
  std::ranges::sort(users);
  EXPECT_EQ(users, (std::vector<std::string>{"Anna", "Bob\xBE"}));
}

}  // namespace
}  // namespace kelvora
