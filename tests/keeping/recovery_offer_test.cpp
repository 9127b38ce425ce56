#include "keeping/recovery_offer.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "days/open_day.h"
#include "days/user_list.h"
#include "storage/day_file.h"
#include "storage/folders.h"
#include "storage/profile_file.h"
#include "storage/record_file.h"
#include "support/file_faults.h"
#include "support/other_process.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

namespace fs = std::filesystem;

constexpr const char* kName = "05032004140709.kvf";

struct OpenedDiary : DiaryView {
  std::vector<Text> typed;
  void CloseWindow() override {}
  void Set_Taal() override {}
  void Refresh_Tekst() override {}
  bool HoldsUntakenText() const override { return !typed.empty(); }
  Text TextInBox() const override { return typed.empty() ? Text() : typed.back(); }
  void TypeText(std::string_view text) override { typed.emplace_back(text); }
  bool TakeOver() override { return true; }
};

// A user with a profile and a saved day that holds bread.
void SaveDayOf(TestProgram& test, std::string_view user) {
  test.OpenDay(user);
  test.program.profile = DefaultsOfNewUser();
  test.program.profile[ProfileField::name] = user;
  ASSERT_TRUE(Save_Profile(test.program, ProfileFile(test.program.paths, user)));
  test.program.store.L_ochtend.Add(LineOf({.product = "Bread"}));
  test.program.store.txt_notities = "Up at six.";
  ASSERT_TRUE(SaveDay(test.program));
  CloseDay(test.program);
}

// Another process opens the day, changes it and is killed.
void LeaveCopy(TestProgram& test, std::string_view user, const std::function<void()>& change) {
  ASSERT_TRUE(InAnotherProcess([&] {
    SetCurrentUser(test.program, user);
    LoadDay(test.program, test.program.paths.FilesPath, kName);
    AfterOpenDay(test.program);
    change();
    BringRecoveryCopyUpToDate(test.program);
  }));
}

void AddFoods(TestProgram& test, std::initializer_list<const char*> products) {
  for (const char* product : products) {
    test.program.store.L_middag.Add(LineOf({.product = product}));
  }
}

std::size_t CopiesOf(const TestProgram& test) {
  return RecoveryCopiesLeft(test.program.paths).size();
}

// A start: nobody is the current user yet.
struct RecoveryOffer : testing::Test {
  void StartAnew() {
    SetCurrentUser(test.program, "", "");
    test.program.paths.FilesPath.clear();
    test.core.opened.clear();
    test.boxes.shown.clear();
  }
  TestProgram test;
};

TEST_F(RecoveryOffer, SaysWhoseDayItIsWhenItWasMadeAndWhatDiffers) {
  SaveDayOf(test, "Anna");
  LeaveCopy(test, "Anna", [&] {
    AddFoods(test, {"Soup", "Salad", "Soup"});
    test.program.store.txt_notities = "Up at six. Tired.";
  });
  StartAnew();
  OfferRecoveryCopies(test.program);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  const Box& box = test.boxes.shown[0];
  EXPECT_EQ(box.title, "Kelvora FOOD");
  EXPECT_EQ(box.text,
            "Work was found that had not been saved when Kelvora FOOD ended.\n\n"
            "User: Anna\n"
            "Day: Friday 05-03-04\n"
            "Copy made: 05-03-2004 14:07\n"
            "Compared with the saved day: 3 foods more, diary longer\n");
  EXPECT_EQ(box.buttons, BoxButtons::yes_no_cancel);
  EXPECT_EQ(box.captions,
            (std::vector<Text>{"Open the day with it", "Throw it away", "Keep it for later"}));
}

TEST_F(RecoveryOffer, OpensTheDayWithItMarkedAsChanged) {
  SaveDayOf(test, "Anna");
  LeaveCopy(test, "Anna", [&] { AddFoods(test, {"Soup"}); });
  StartAnew();
  test.boxes.answers = {BoxAnswer::yes};
  OfferRecoveryCopies(test.program);
  EXPECT_EQ(test.program.paths.UserName, "Anna");
  EXPECT_EQ(test.program.store.KV_bestand, kName);
  EXPECT_EQ(test.program.store.L_ochtend.Count(), 1u);
  EXPECT_EQ(test.program.store.L_middag.Count(), 1u);
  EXPECT_TRUE(test.program.day.FileChanged);
  // It is this process's copy now, until the day is saved.
  EXPECT_EQ(CopiesOf(test), 0u);
  EXPECT_TRUE(fs::exists(test.program.recovery.path));
  EXPECT_TRUE(SaveDay(test.program));
  EXPECT_EQ(test.boxes.shown.size(), 1u) << "the file is what it was when the copy was made";
  EXPECT_TRUE(fs::is_empty(test.program.paths.StatePath));
  EXPECT_EQ((*ReadFirstRecord<Rec_DayFile>(PathOfDay(test.program)))[DayFileField::Afternoon],
            LineOf({.product = "Soup"}) + kLineEnd);
}

TEST_F(RecoveryOffer, ADayThatWasNeverSavedOpensTooAndCanBeSaved) {
  SaveDayOf(test, "Anna");
  fs::remove(test.program.paths.UsersPath + "Anna/Files/" + kName);
  ASSERT_TRUE(InAnotherProcess([&] {
    test.OpenDay("Anna");
    AddFoods(test, {"Soup"});
    BringRecoveryCopyUpToDate(test.program);
  }));
  StartAnew();
  test.boxes.answers = {BoxAnswer::yes};
  OfferRecoveryCopies(test.program);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with(
      "The day itself is not on the disk. The copy holds: 1 food more\n"));
  EXPECT_EQ(test.program.store.L_middag.Count(), 1u);
  EXPECT_TRUE(SaveDay(test.program));
  EXPECT_TRUE(fs::exists(test.program.paths.UsersPath + "Anna/Files/" + kName));
}

TEST_F(RecoveryOffer, PutsTheDiarysTextBackIntoItsBox) {
  SaveDayOf(test, "Anna");
  LeaveCopy(test, "Anna", [&] {
    static OpenedDiary diary;
    diary.TypeText("Up at six.\nTired");
    test.program.windows.diary = &diary;
  });
  StartAnew();
  OpenedDiary diary;
  test.program.windows.diary = &diary;
  test.boxes.answers = {BoxAnswer::yes};
  OfferRecoveryCopies(test.program);
  EXPECT_TRUE(test.boxes.shown.at(0).text.ends_with("saved day: diary longer\n"));
  EXPECT_EQ(diary.typed, (std::vector<Text>{"Up at six.\nTired"}));
  EXPECT_EQ(test.program.store.txt_notities, "Up at six.");
  const auto copy = ReadRecoveryCopy(test.program.recovery.path);
  ASSERT_TRUE(copy.has_value());
  EXPECT_EQ(copy->diary, "Up at six.\nTired");
  test.program.windows.diary = nullptr;
}

TEST_F(RecoveryOffer, OpensTheDiaryForItsText) {
  SaveDayOf(test, "Anna");
  LeaveCopy(test, "Anna", [&] {
    static OpenedDiary diary;
    diary.TypeText("Tired");
    test.program.windows.diary = &diary;
  });
  StartAnew();
  test.boxes.answers = {BoxAnswer::yes};
  OfferRecoveryCopies(test.program);
  EXPECT_NE(std::ranges::find(test.core.opened, WindowId::diary), test.core.opened.end());
}

TEST_F(RecoveryOffer, KeptForLaterItIsOfferedAtEveryStart) {
  SaveDayOf(test, "Anna");
  LeaveCopy(test, "Anna", [&] { AddFoods(test, {"Soup"}); });
  for (int start = 0; start < 3; ++start) {
    StartAnew();
    test.boxes.answers = {BoxAnswer::cancel};
    OfferRecoveryCopies(test.program);
    EXPECT_EQ(test.boxes.shown.size(), 1u);
    EXPECT_FALSE(test.program.store.DayIsOpen());
    EXPECT_EQ(CopiesOf(test), 1u);
  }
}

TEST_F(RecoveryOffer, ThrownAwayItIsGone) {
  SaveDayOf(test, "Anna");
  LeaveCopy(test, "Anna", [&] { AddFoods(test, {"Soup"}); });
  StartAnew();
  test.boxes.answers = {BoxAnswer::no};
  OfferRecoveryCopies(test.program);
  EXPECT_EQ(CopiesOf(test), 0u);
  EXPECT_FALSE(test.program.store.DayIsOpen());
}

TEST_F(RecoveryOffer, ThatOfALivingProcessIsNotOffered) {
  SaveDayOf(test, "Anna");
  SetCurrentUser(test.program, "Anna");
  LoadDay(test.program, test.program.paths.FilesPath, kName);
  AddFoods(test, {"Soup"});
  BringRecoveryCopyUpToDate(test.program);
  OfferRecoveryCopies(test.program);
  EXPECT_TRUE(test.boxes.shown.empty());
  EXPECT_TRUE(fs::exists(test.program.recovery.path));
}

TEST_F(RecoveryOffer, OneThatSaysNothingNewGoesWithoutAWord) {
  SaveDayOf(test, "Anna");
  LeaveCopy(test, "Anna", [&] {
    AddFoods(test, {"Soup"});
    WriteRecord(PathOfDay(test.program), PackDay(test.program.store));  // and then it was killed
  });
  StartAnew();
  OfferRecoveryCopies(test.program);
  EXPECT_TRUE(test.boxes.shown.empty());
  EXPECT_EQ(CopiesOf(test), 0u);
}

TEST_F(RecoveryOffer, TellsOfADayThatWasSavedSince) {
  SaveDayOf(test, "Anna");
  LeaveCopy(test, "Anna", [&] { AddFoods(test, {"Soup"}); });
  SetCurrentUser(test.program, "Anna");
  LoadDay(test.program, test.program.paths.FilesPath, kName);
  AddFoods(test, {"Cake", "Tea"});
  ASSERT_TRUE(SaveDay(test.program));
  CloseDay(test.program);
  StartAnew();
  OfferRecoveryCopies(test.program);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with(
      "Compared with the saved day: 1 food more, 2 foods less\n\n"
      "The saved day has changed since then.\n"));
}

TEST_F(RecoveryOffer, OfAUserWhoIsGoneItCanOnlyBeKeptOrThrownAway) {
  SaveDayOf(test, "Anna");
  LeaveCopy(test, "Anna", [&] { AddFoods(test, {"Soup"}); });
  fs::remove_all(test.program.paths.UsersPath + "Anna");
  StartAnew();
  OfferRecoveryCopies(test.program);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].buttons, BoxButtons::yes_no);
  EXPECT_EQ(test.boxes.shown[0].captions,
            (std::vector<Text>{"Throw it away", "Keep it for later"}));
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with(
      "The day can't be opened now: this user is not in the users folder.\n"));
  EXPECT_EQ(CopiesOf(test), 1u) << "No is the default and keeps it";
  EXPECT_FALSE(fs::exists(test.program.paths.UsersPath + "Anna"));
  test.boxes.answers = {BoxAnswer::yes};
  OfferRecoveryCopies(test.program);
  EXPECT_EQ(CopiesOf(test), 0u);
}

TEST_F(RecoveryOffer, OfADayOfAnotherUsersFolderItIsNotOpened) {
  SaveDayOf(test, "Anna");
  LeaveCopy(test, "Anna", [&] { AddFoods(test, {"Soup"}); });
  const std::string elsewhere = test.folders.home.Path("elsewhere/");
  fs::create_directories(elsewhere + "Anna/Files");
  test.program.paths.UsersPath = elsewhere;
  StartAnew();
  OfferRecoveryCopies(test.program);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].buttons, BoxButtons::yes_no);
}

TEST_F(RecoveryOffer, ANoToTheQuestionAboutTheOpenDayKeepsBoth) {
  SaveDayOf(test, "Anna");
  LeaveCopy(test, "Anna", [&] { AddFoods(test, {"Soup"}); });
  StartAnew();
  test.OpenDay("Anna", "06032004140709.kvf");
  AddFoods(test, {"Cake"});
  SetFileChanged(test.program, true);
  test.boxes.answers = {BoxAnswer::yes, BoxAnswer::no};
  OfferRecoveryCopies(test.program);
  ASSERT_EQ(test.boxes.shown.size(), 2u);
  EXPECT_EQ(test.boxes.shown[1].title, "Open file");
  EXPECT_EQ(test.program.store.KV_bestand, "06032004140709.kvf");
  EXPECT_EQ(CopiesOf(test), 1u);
}

TEST_F(RecoveryOffer, SeveralAreOfferedOneByOne) {
  SaveDayOf(test, "Anna");
  SaveDayOf(test, "Bob");
  LeaveCopy(test, "Anna", [&] { AddFoods(test, {"Soup"}); });
  LeaveCopy(test, "Bob", [&] { AddFoods(test, {"Soup", "Cake"}); });
  StartAnew();
  test.boxes.answers = {BoxAnswer::no, BoxAnswer::yes};
  OfferRecoveryCopies(test.program);
  EXPECT_EQ(test.boxes.shown.size(), 2u);
  EXPECT_TRUE(test.program.store.DayIsOpen());
  EXPECT_EQ(CopiesOf(test), 0u);
}

TEST_F(RecoveryOffer, NothingIsOfferedOnceTheProgramEnds) {
  SaveDayOf(test, "Anna");
  LeaveCopy(test, "Anna", [&] { AddFoods(test, {"Soup"}); });
  StartAnew();
  test.program.ending = true;
  OfferRecoveryCopies(test.program);
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(RecoveryOffer, ADiskThatTakesNoNewCopyLeavesTheOldOne) {
  SaveDayOf(test, "Anna");
  LeaveCopy(test, "Anna", [&] { AddFoods(test, {"Soup"}); });
  StartAnew();
  test.boxes.answers = {BoxAnswer::yes};
  {
    const InjectedFault fault({.disk_full_after = 0});
    OfferRecoveryCopies(test.program);
  }
  EXPECT_EQ(test.program.store.L_middag.Count(), 1u);
  EXPECT_EQ(CopiesOf(test), 1u);
}

// By hand: which foods of one list the other lacks, each as often as it stands there.
TEST_F(RecoveryOffer, CountsWhatDiffers) {
  const auto words = [&](std::string_view day, std::string_view diary, std::string_view stored,
                         std::string_view stored_diary) {
    Rec_DayFile here, there;
    here[DayFileField::Morning] = Packed(day);
    there[DayFileField::Morning] = Packed(stored);
    there[DayFileField::Notes] = stored_diary;
    return DifferencesInWords(test.program.texts, here, diary, there);
  };
  EXPECT_EQ(words("a|~b|~", "", "a|~b|~", ""), "");
  EXPECT_EQ(words("a|~b|~", "", "a|~", ""), "1 food more");
  EXPECT_EQ(words("a|~a|~a|~", "", "a|~", ""), "2 foods more");
  EXPECT_EQ(words("a|~", "", "a|~a|~", ""), "1 food less");
  EXPECT_EQ(words("a|~", "", "b|~c|~", ""), "1 food more, 2 foods less");
  EXPECT_EQ(words("a|~b|~", "", "b|~a|~", ""), "foods moved");
  EXPECT_EQ(words("", "one\ntwo", "", "one\r\ntwo"), "");
  EXPECT_EQ(words("", "one", "", "one\r\ntwo"), "diary shorter");
  EXPECT_EQ(words("", "ten", "", "one"), "diary changed");
  EXPECT_EQ(words("a|~", "one", "", ""), "1 food more, diary longer");
  Rec_DayFile heavier, lighter;
  heavier[DayFileField::Header] = Packed("Anna~80~");
  lighter[DayFileField::Header] = Packed("Anna~79~");
  EXPECT_EQ(DifferencesInWords(test.program.texts, heavier, "", lighter),
            "profile of the day changed");
  // The trend text is made of the rest.
  heavier = lighter;
  heavier[DayFileField::Trend] = "1";
  EXPECT_EQ(DifferencesInWords(test.program.texts, heavier, "", lighter), "");
}

}  // namespace
}  // namespace kelvora
