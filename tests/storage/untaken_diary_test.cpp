// The one question before diary text is left behind that was not taken over, from every way on
// which it can go.
#include "storage/untaken_diary.h"

#include <functional>
#include <gtest/gtest.h>

#include "core/frame/commands.h"
#include "days/browser.h"
#include "days/open_day.h"
#include "storage/day_file.h"
#include "storage/folders.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

struct TypedDiary : DiaryView {
  bool untaken = true;
  bool takes = true;  // whether taking over succeeds
  int taken_over = 0, refreshed = 0, closed = 0;
  void CloseWindow() override { ++closed; }
  void Set_Taal() override {}
  void Refresh_Tekst() override {
    ++refreshed;
    untaken = false;
  }
  bool HoldsUntakenText() const override { return untaken; }
  bool TakeOver() override {
    ++taken_over;
    if (takes) untaken = false;
    return takes;
  }
};

class UntakenDiary : public testing::Test {
 protected:
  UntakenDiary() {
    test.OpenDay("Anna");
    SetFileChanged(program, true);
    program.windows.diary = &diary;
  }
  // The texts of the boxes, each cut at its first line.
  [[nodiscard]] std::vector<Text> Asked() const {
    std::vector<Text> lines;
    for (const Box& box : test.boxes.shown)
      lines.push_back(box.text.substr(0, box.text.find('\n')));
    return lines;
  }
  void Answer(std::initializer_list<BoxAnswer> answers) {
    test.boxes.shown.clear();
    test.boxes.answers = answers;
  }

  TestProgram test;
  Program& program = test.program;
  TypedDiary diary;
  const Text question = "You have changed the diary and not saved it yet.";
};

TEST_F(UntakenDiary, AsksWithThreeAnswersOfWhichCancelIsTheDefault) {
  Answer({BoxAnswer::cancel});
  EXPECT_FALSE(MayLeaveDiary(program));
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].buttons, BoxButtons::yes_no_cancel);
  EXPECT_EQ(test.boxes.shown[0].text,
            "You have changed the diary and not saved it yet.\n\n"
            "Save it in the day first? With No the changes are lost.");
  EXPECT_TRUE(diary.untaken);
  EXPECT_EQ(diary.taken_over + diary.refreshed, 0);
}

TEST_F(UntakenDiary, IsTakenOverOrDropped) {
  Answer({BoxAnswer::yes});
  EXPECT_TRUE(MayLeaveDiary(program));
  EXPECT_EQ(diary.taken_over, 1);
  EXPECT_EQ(diary.refreshed, 0);
  diary = {};
  Answer({BoxAnswer::no});
  EXPECT_TRUE(MayLeaveDiary(program));
  EXPECT_EQ(diary.taken_over, 0);
  EXPECT_EQ(diary.refreshed, 1);
}

TEST_F(UntakenDiary, IsNotLeftWhenTakingOverIsRefused) {
  diary.takes = false;
  Answer({BoxAnswer::yes, BoxAnswer::yes});
  EXPECT_FALSE(MayLeaveDiary(program));
  EXPECT_FALSE(MayCloseDiaryWithDay(program));
}

TEST_F(UntakenDiary, AsksNothingWithoutSuchText) {
  diary.untaken = false;
  EXPECT_TRUE(MayLeaveDiary(program));
  diary.untaken = true;
  program.windows.diary = nullptr;
  EXPECT_TRUE(MayLeaveDiary(program));
  program.windows.diary = &diary;
  program.ending = true;
  EXPECT_TRUE(MayLeaveDiary(program));
  program.ending = false;
  program.store.KV_bestand.clear();
  EXPECT_TRUE(MayLeaveDiary(program));
  EXPECT_TRUE(test.boxes.shown.empty());
}

// More is asked about a day than about its diary: the text stays until the day is really closed.
TEST_F(UntakenDiary, StaysInTheWindowWhenItIsDroppedWithTheDay) {
  Answer({BoxAnswer::no, BoxAnswer::no});
  EXPECT_FALSE(MayEndProgram(program));
  EXPECT_EQ(Asked().size(), 2u);
  EXPECT_TRUE(diary.untaken);
  EXPECT_EQ(diary.refreshed, 0);
}

TEST_F(UntakenDiary, IsAskedAboutBeforeTheDayIsSaved) {
  const std::string file = program.paths.FilesPath + Utf8FromText(program.store.KV_bestand);
  MakeUserFolders(program.paths, "Anna");
  Answer({BoxAnswer::cancel});
  EXPECT_FALSE(SaveDay(program));
  EXPECT_EQ(Asked(), std::vector{question});
  EXPECT_FALSE(FileExists(file));
  EXPECT_TRUE(program.day.FileChanged);
  Answer({BoxAnswer::no});
  EXPECT_TRUE(SaveDay(program));
  EXPECT_EQ(diary.refreshed, 1);  // what the file has not, the window has not
  EXPECT_TRUE(FileExists(file));
}

TEST_F(UntakenDiary, IsAskedAboutBeforeEverythingThatClosesTheDay) {
  MakeUserFolders(program.paths, "Anna");
  Answer({BoxAnswer::yes});
  ASSERT_TRUE(SaveDay(program));
  const std::string folder = program.paths.FilesPath;
  const Text name = program.store.KV_bestand;
  const std::array<std::function<void()>, 4> ways = {
      [&] { EXPECT_FALSE(MayEndProgram(program)); },
      [&] { EXPECT_FALSE(MayDropDayForNewOne(program)); },
      [&] { BeginNewDay(program); },
      [&] { LoadDay(program, folder, name); },
  };
  for (const auto& way : ways) {
    diary = {};
    Answer({BoxAnswer::cancel});
    way();
    EXPECT_EQ(Asked(), std::vector{question});
    EXPECT_TRUE(program.store.DayIsOpen());
    EXPECT_EQ(diary.closed, 0);
    EXPECT_TRUE(diary.untaken);
  }
}

TEST_F(UntakenDiary, IsAskedAboutBeforeTheUserChanges) {
  MakeUserFolders(program.paths, "Ben");
  SetCurrentUser(program, "Anna");
  Answer({BoxAnswer::cancel});
  EXPECT_EQ(SwitchUser(program, User{.name = "Ben", .folder_name = "Ben"}), UserSwitch::refused);
  EXPECT_EQ(Asked(), std::vector{question});
  EXPECT_TRUE(program.store.DayIsOpen());
}

TEST_F(UntakenDiary, ClosesWithoutAnotherQuestionWhenTheDayCloses) {
  CloseDay(program);
  EXPECT_EQ(diary.closed, 1);
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(UntakenDiary, IsAskedAboutBeforeAnArrangementClosesAllWindows) {
  for (const Command command : {Command::quick_default, Command::quick_all, Command::quick_reset}) {
    diary = {};
    test.core.opened.clear();
    program.settings[Setting::chk_all_screens] = "unchanged";
    Answer({BoxAnswer::cancel});
    RunCommand(program, command);
    EXPECT_EQ(Asked(), std::vector{question});
    EXPECT_EQ(diary.closed, 0);
    EXPECT_TRUE(test.core.opened.empty());
    EXPECT_EQ(program.settings[Setting::chk_all_screens], "unchanged");
    Answer({BoxAnswer::yes});
    RunCommand(program, command);
    EXPECT_EQ(Asked(), std::vector{question});
    EXPECT_EQ(diary.closed, 1);
  }
}

}  // namespace
}  // namespace kelvora
