// Lists and profile that could not be read, have changed on the disk or could not be written: what
// is asked before they are written over, and what counts as unsaved work.
#include "storage/kept_files.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "core/frame/commands.h"
#include "storage/day_file.h"
#include "storage/folders.h"
#include "storage/food_files.h"
#include "storage/profile_file.h"
#include "support/file_faults.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

struct Kind {
  const char* name;
  std::string_view code;  // of its writer
  const char* question;   // the first line
  const char* unsaved;
  std::string (*path)(const Paths&, std::string_view);
  void (*load)(Program&, const std::string&);
  bool (*save)(Program&, const std::string&);
  void (*change)(Program&);
};

void PrintTo(const Kind& kind, std::ostream* out) {
  *out << kind.name;
}

const std::array kKinds = {
    Kind{"Custom", "#FF1-5",
         "The file of your own food list could not be read, or has changed since.",
         "Your own food list has not been saved yet.", &CustomFile, &Load_Custom, &Save_Custom,
         [](Program& p) { p.store.Custom_list.Add(LineOf({.product = "New"})); }},
    Kind{"Favorites", "#FF1-4",
         "The file of your favourites could not be read, or has changed since.",
         "Your favourites have not been saved yet.", &FavoritesFile, &Load_Favorites,
         &Save_Favorites,
         [](Program& p) { p.store.Favorites_list.Add(LineOf({.product = "New"})); }},
    Kind{"Profile", "#FF1-7", "The file of the profile could not be read, or has changed since.",
         "The profile has not been saved yet.", &ProfileFile, &Load_Profile, &Save_Profile,
         [](Program& p) { p.profile[ProfileField::city] += "New"; }},
};

class KeptFileOf : public testing::TestWithParam<Kind> {
 protected:
  KeptFileOf() {
    test.OpenDay("Anna");
    test.program.profile[ProfileField::name] = "Anna";
    EXPECT_TRUE(SaveDay(test.program));
    WriteRecord(path, Rec_ListLine{{LineOf({.product = "Old"}) + kLineEnd}});
    before = ReadFile(path);
  }

  void Load() { GetParam().load(test.program, path); }
  bool ChangeAndSave() {
    GetParam().change(test.program);
    return GetParam().save(test.program, path);
  }
  // A save that asks: a No writes nothing, the Yes behind it does.
  void ExpectAQuestion() {
    test.boxes.shown.clear();
    EXPECT_FALSE(ChangeAndSave());
    ASSERT_EQ(test.boxes.shown.size(), 1u);
    EXPECT_EQ(test.boxes.shown[0].text, Text(GetParam().question) +
                                            "\nSaving now replaces what is in it.\n\n"
                                            "Do you want to replace it?");
    EXPECT_EQ(test.boxes.shown[0].buttons, BoxButtons::yes_no);
    EXPECT_TRUE(HoldsUnwrittenWork(test.program));
    EXPECT_EQ(ReadFile(path), before);
    test.boxes.answers = {BoxAnswer::yes};
    EXPECT_TRUE(GetParam().save(test.program, path));
    EXPECT_NE(ReadFile(path), before);
    EXPECT_FALSE(HoldsUnwrittenWork(test.program));
    ExpectNoQuestion();
  }
  void ExpectNoQuestion() {
    test.boxes.shown.clear();
    EXPECT_TRUE(ChangeAndSave());
    EXPECT_TRUE(test.boxes.shown.empty());
    EXPECT_FALSE(HoldsUnwrittenWork(test.program));
  }

  TestProgram test;
  const std::string path = GetParam().path(test.program.paths, "Anna");
  std::string before;
};

TEST_P(KeptFileOf, ThatWasReadIsWrittenWithoutAQuestion) {
  Load();
  ExpectNoQuestion();
  ExpectNoQuestion();
}

TEST_P(KeptFileOf, ThatIsNotThereIsNoFailedRead) {
  std::filesystem::remove(path);
  Load();
  ExpectNoQuestion();
}

// A caller that writes where it has not read has asked by itself.
TEST_P(KeptFileOf, ThatNobodyHasReadYetIsForTheCallerToJudge) {
  ExpectNoQuestion();
}

TEST_P(KeptFileOf, ThatMetAnInputErrorIsAskedAbout) {
  std::size_t failures = 0;
  for (bool failed = true; failed; failures += failed ? 1 : 0) {
    WriteFileAnew(path, before);
    {
      const InjectedFault fault({.reading_call_fails = failures});
      Load();
      failed = InjectedFault::ReadingCallFailed();
    }
    if (failed) {
      ExpectAQuestion();
    } else {
      ExpectNoQuestion();
    }
    if (HasFailure()) FAIL() << "reading call " << failures;
  }
  EXPECT_GE(failures, 4u);  // opening, two states, reading
}

TEST_P(KeptFileOf, ThatWasAwayForAMomentIsAskedAbout) {
  std::filesystem::rename(path, path + " away");
  Load();
  std::filesystem::rename(path + " away", path);
  ExpectAQuestion();
}

TEST_P(KeptFileOf, WhoseTargetIsAwayIsAskedAbout) {
  std::filesystem::rename(path, path + " away");
  std::filesystem::create_symlink("nowhere", path);
  Load();
  test.boxes.shown.clear();
  EXPECT_FALSE(ChangeAndSave());
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.starts_with(GetParam().question));
  EXPECT_TRUE(std::filesystem::is_symlink(path));
}

TEST_P(KeptFileOf, ThatOnePermissionKeepsShutIsAskedAbout) {
  std::filesystem::permissions(test.folders.home.Path(), std::filesystem::perms::all);
  for (auto folder = std::filesystem::path(path).parent_path(); folder != test.folders.home.Path();
       folder = folder.parent_path()) {
    std::filesystem::permissions(folder, std::filesystem::perms::all);
  }
  std::filesystem::permissions(path, std::filesystem::perms::none);
  {
    const AsNobody nobody;
    Load();
  }
  std::filesystem::permissions(path, std::filesystem::perms::owner_all);
  ExpectAQuestion();
}

TEST_P(KeptFileOf, ThatChangedSinceIsAskedAbout) {
  Load();
  before =
      EncodeRecord(Rec_ListLine{{LineOf({.product = "Of another program"}) + kLineEnd}}.strings);
  WriteFileAnew(path, before);
  ExpectAQuestion();
}

// Who knows what lies there then.
TEST_P(KeptFileOf, WhoseStateCannotBeToldAfterASaveIsAskedAbout) {
  const std::string old = before;
  int saves = 0;
  bool failed = true;
  for (std::size_t call = 0; failed; ++call) {
    WriteFileAnew(path, old);
    Load();
    bool saved = false;
    {
      const InjectedFault fault({.reading_call_fails = call});
      saved = ChangeAndSave();
      failed = InjectedFault::ReadingCallFailed();
    }
    if (!failed || !saved) continue;
    ++saves;
    before = ReadFile(path);
    ExpectAQuestion();
  }
  EXPECT_EQ(saves, 1);  // the last call asks for the state of what was written
}

TEST_P(KeptFileOf, ThatFailsToBeWrittenIsUnsavedWorkUntilTheNextSave) {
  Load();
  EXPECT_FALSE(HoldsUnwrittenWork(test.program));
  {
    const InjectedFault fault({.disk_full_after = 10});
    EXPECT_FALSE(ChangeAndSave());
  }
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with(GetParam().code));
  EXPECT_TRUE(HoldsUnwrittenWork(test.program));
  EXPECT_EQ(UnwrittenLines(test.program), Text(GetParam().unsaved) + "\n");
  // The command to save can be given, with or without a day.
  EXPECT_TRUE(ButtonEnabled(test.program, Command::mnu_bestand_opslaan));
  CloseDay(test.program);
  EXPECT_TRUE(ButtonEnabled(test.program, Command::mnu_bestand_opslaan));
  EXPECT_TRUE(CommandEnabled(test.program, Command::mnu_bestand_opslaan));
  RunCommand(test.program, Command::mnu_bestand_opslaan);
  EXPECT_FALSE(HoldsUnwrittenWork(test.program));
  EXPECT_TRUE(FileExists(path));
  EXPECT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_FALSE(CommandEnabled(test.program, Command::mnu_bestand_opslaan));
}

TEST_P(KeptFileOf, ThatFailedIsWrittenWithTheNextSaveOfTheDay) {
  Load();
  {
    const InjectedFault fault({.disk_full_after = 0});
    EXPECT_FALSE(ChangeAndSave());
    // One cause, one box: a day that fails tries nothing else.
    test.boxes.shown.clear();
    EXPECT_FALSE(SaveDay(test.program));
    ASSERT_EQ(test.boxes.shown.size(), 1u);
    EXPECT_TRUE(test.boxes.shown[0].text.ends_with("#FF1-9"));
  }
  EXPECT_FALSE(FileExists(path));
  EXPECT_TRUE(SaveDay(test.program));
  EXPECT_TRUE(FileExists(path));
  EXPECT_FALSE(HoldsUnwrittenWork(test.program));
}

TEST_P(KeptFileOf, ThatIsUnsavedIsAskedAboutAtTheEndAndBeforeAnotherUser) {
  Load();
  EXPECT_TRUE(MayEndProgram(test.program));
  EXPECT_TRUE(MayLeaveUser(test.program));
  {
    const InjectedFault fault({.disk_full_after = 0});
    EXPECT_FALSE(ChangeAndSave());
  }
  test.boxes.shown.clear();
  EXPECT_FALSE(MayEndProgram(test.program));
  EXPECT_FALSE(MayLeaveUser(test.program));
  SetFileChanged(test.program, true);
  EXPECT_FALSE(MayEndProgram(test.program));
  ASSERT_EQ(test.boxes.shown.size(), 3u);
  const Text unsaved = GetParam().unsaved;
  EXPECT_EQ(test.boxes.shown[0].title, "Exit Kelvora FOOD");
  EXPECT_EQ(test.boxes.shown[0].text,
            unsaved + "\nAre you sure that you want to exit Kelvora FOOD?");
  EXPECT_EQ(test.boxes.shown[1].text, unsaved + "\n\nDo you want to go on without saving?");
  EXPECT_EQ(test.boxes.shown[2].text, "The current file has not been saved yet.\n" + unsaved +
                                          "\nAre you sure that you want to exit Kelvora FOOD?");
  test.boxes.answers = {BoxAnswer::yes, BoxAnswer::yes};
  EXPECT_TRUE(MayEndProgram(test.program));
  EXPECT_TRUE(MayLeaveUser(test.program));
}

INSTANTIATE_TEST_SUITE_P(Kinds, KeptFileOf, testing::ValuesIn(kKinds),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(KeptFiles, AProfileThatWasPutBackIsNotUnsaved) {
  TestProgram test;
  test.OpenDay("Anna");
  Program& program = test.program;
  const std::string path = ProfileFile(program.paths, "Anna");
  program.profile[ProfileField::name] = "Anna";
  ASSERT_TRUE(Save_Profile(program, path));
  const Rec_Profile stored = program.profile;
  program.profile[ProfileField::city] = "Leiden";
  {
    const InjectedFault fault({.delete_fails = true});
    EXPECT_FALSE(Save_Profile(program, path));
  }
  EXPECT_TRUE(HoldsUnwrittenWork(program));
  program.profile = stored;
  EXPECT_FALSE(HoldsUnwrittenWork(program));
  // Once the file has gone, the working copy is all that is left.
  {
    const InjectedFault fault({.disk_full_after = 0});
    EXPECT_FALSE(Save_Profile(program, path));
  }
  EXPECT_TRUE(HoldsUnwrittenWork(program));
}

TEST(KeptFiles, AMissingProfileIsWrittenAgainWithTheNextDay) {
  TestProgram test;
  test.OpenDay("Anna");
  Program& program = test.program;
  const std::string path = ProfileFile(program.paths, "Anna");
  program.profile[ProfileField::name] = "Anna";
  ASSERT_TRUE(Save_Profile(program, path));
  const std::string written = ReadFile(path);
  std::filesystem::remove(path);
  EXPECT_TRUE(SaveDay(program));
  EXPECT_EQ(ReadFile(path), written);
  // Nobody gets the profile of another.
  std::filesystem::remove(path);
  program.profile[ProfileField::name] = "Bert";
  EXPECT_TRUE(SaveDay(program));
  EXPECT_FALSE(FileExists(path));
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST(KeptFiles, AUserWhoNeverHadAProfileGetsNoneWithADay) {
  TestProgram test;
  test.OpenDay("Anna");
  Program& program = test.program;
  const std::string path = ProfileFile(program.paths, "Anna");
  program.profile[ProfileField::name] = "Anna";
  Load_Profile(program, path);
  EXPECT_TRUE(SaveDay(program));
  EXPECT_FALSE(FileExists(path));
}

TEST(KeptFiles, AProfileThatWasReadIsKnownAsTheFileHoldsIt) {
  TestProgram test;
  test.OpenDay("Anna");
  Program& program = test.program;
  const std::string path = ProfileFile(program.paths, "Anna");
  Rec_Profile stored;
  stored[ProfileField::name] = "Anna";
  WriteRecord(path, stored);
  const std::string written = ReadFile(path);
  Load_Profile(program, path);
  program.profile[ProfileField::city] = "Leiden";
  {
    const InjectedFault fault({.delete_fails = true});
    EXPECT_FALSE(Save_Profile(program, path));
  }
  EXPECT_TRUE(HoldsUnwrittenWork(program));
  program.profile = stored;
  EXPECT_FALSE(HoldsUnwrittenWork(program));
  std::filesystem::remove(path);
  EXPECT_TRUE(SaveDay(program));
  EXPECT_EQ(ReadFile(path), written);
}

}  // namespace
}  // namespace kelvora
