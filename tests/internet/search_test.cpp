// Searching on the food server: each step that the view is told of, each box, and what is counted.
#include "internet/search.h"

#include <gtest/gtest.h>

#include "language/built_in_texts.h"
#include "storage/settings_file.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

// Remembers the steps, and the list as it was at each.
struct NotedView final : InternetSearchView {
  explicit NotedView(TextList& list) : found(list) {}
  void ShowSearching() override { Note("searching"); }
  void AllowSearching() override { Note("allowed"); }
  void ShowFound() override { Note("found"); }
  void ShowNothingFound() override { Note("nothing"); }
  void Note(const char* step) {
    if (!steps.empty()) steps += ' ';
    steps += step + std::to_string(found.Count());
  }
  TextList& found;
  std::string steps;
};

class Searching : public testing::Test {
 protected:
  Searching() { program.servers.search = "http://nl.example/modules/kvzoek.php"; }

  void Begin(std::string_view term) { search->Zoek_Op_Internet(term); }
  void Find(std::string_view term, std::deque<std::string> chunks) {
    Begin(term);
    test.transfers.Complete(std::move(chunks));
  }
  Text& Counted(Setting setting) { return program.settings[setting]; }
  std::string ShownBox(std::size_t place) {
    const Box& box = test.boxes.shown.at(place);
    return box.title + "|" + box.text;
  }

  TestProgram test;
  Program& program = test.program;
  TextList found;
  NotedView view{found};
  std::unique_ptr<InternetSearch> search = std::make_unique<InternetSearch>(program, found, view);
};

TEST_F(Searching, AsksForTheTermAsItStands) {
  for (const auto& [term, item] :
       {std::pair<std::string_view, std::string_view>{"appel taart", "appel taart"},
        {"", ""},
        {" %20&x=#?\xE9\xBD ", " %20&x=#?\xE9\xBD "},
        {"soup\r\nHost: elsewhere", "soup"},
        {std::string_view("a\0b", 3), "a"}}) {
    Find(term, {});
    EXPECT_EQ(test.transfers.addresses.back(),
              "http://nl.example/modules/kvzoek.php?item=" + std::string(item));
  }
}

TEST_F(Searching, ShowsTheFoodsOfTheReplyFromAnyChunks) {
  Find("a", {"Appel\xBD", "1\xBD\xBCPeer\xBD", "\xBC", "Pruim\xBD\xBC the rest"});
  ASSERT_EQ(found.Count(), 3u);
  EXPECT_EQ(found[0],
            "Appel\xBD"
            "1\xBD");
  EXPECT_EQ(found[1], "Peer\xBD");
  EXPECT_EQ(found[2], "Pruim\xBD");
  EXPECT_EQ(view.steps, "searching0 allowed0 found3");
  EXPECT_TRUE(test.boxes.shown.empty());
  EXPECT_FALSE(search->IsRunning());
  EXPECT_EQ(program.store.txt_internetzoekdata,
            "Appel\xBD"
            "1\xBD\xBCPeer\xBD\xBCPruim\xBD\xBC the rest");
}

TEST_F(Searching, TheListIsEmptyMeanwhileAndAnotherReplyReplacesIt) {
  Find("a", {"Appel\xBC"});
  Begin("b");
  EXPECT_TRUE(found.Empty());
  EXPECT_EQ(program.store.txt_internetzoekdata, "");
  test.transfers.Complete({"Bier\xBC"});
  ASSERT_EQ(found.Count(), 1u);
  EXPECT_EQ(found[0], "Bier");
}

TEST_F(Searching, WithoutAFoodTheListIsThatOfBeforeAndABoxTellsTheTerm) {
  Find("a", {"Appel\xBC"});
  view.steps.clear();
  Find("zz & 'top'", {"Sorry, ", "nothing"});
  EXPECT_EQ(view.steps, "searching0 allowed1 nothing1");
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(ShownBox(0),
            "Kelvora FOOD|Kelvora FOOD did not find any results for your search 'zz & 'top''\n"
            "Please enter another search.");
  EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::information);
  EXPECT_EQ(found[0], "Appel");
}

TEST_F(Searching, AFailedConnectionTellsSoAndThenThatNothingWasFound) {
  Find("a", {"Appel\xBC"});
  view.steps.clear();
  Begin("soup");
  test.transfers.Fail();
  ASSERT_EQ(test.boxes.shown.size(), 2u);
  EXPECT_EQ(ShownBox(0),
            "Error #F11-4|An error occured while searching the internet.\n"
            "Please check your internet connection and try again.");
  EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::error);
  EXPECT_EQ(ShownBox(1),
            "Kelvora FOOD|Kelvora FOOD did not find any results for your search 'soup'\n"
            "Please enter another search.");
  EXPECT_EQ(view.steps, "searching0 allowed1 nothing1");
  EXPECT_EQ(program.store.txt_internetzoekdata, "");
}

TEST_F(Searching, WithoutAServerItFailsAtOnceAndSendsNothing) {
  program.servers.search.clear();
  Begin("soup");
  EXPECT_TRUE(test.transfers.addresses.empty());
  ASSERT_EQ(test.boxes.shown.size(), 2u);
  EXPECT_TRUE(ShownBox(0).starts_with("Error #F11-4|"));
  EXPECT_EQ(view.steps, "searching0 allowed0 nothing0");
  EXPECT_EQ(Counted(Setting::SearchCount), "1");
}

TEST_F(Searching, SpeaksDutch) {
  Make_Taal_Dutch(program.texts);
  Begin("soep");
  test.transfers.Fail();
  EXPECT_EQ(ShownBox(0),
            "Fout #F11-4|Er is een fout opgetreden tijdens het zoeken op internet.\n"
            "Controleer je internetverbinding en probeer het opnieuw.");
  EXPECT_EQ(ShownBox(1),
            "Kelvora FOOD|Kelvora FOOD heeft niets gevonden voor je zoekopdracht 'soep'\n"
            "Vul een andere zoekopdracht in.");
}

TEST_F(Searching, CountsSearchesAndBytesAndSavesThem) {
  Counted(Setting::SearchCount) = "";
  Counted(Setting::SearchBytes) = "";
  Find("a", {"123", "45678\xBC"});  // 9 bytes
  EXPECT_EQ(Counted(Setting::SearchCount), "1");
  EXPECT_EQ(Counted(Setting::SearchBytes), "9");
  Find("a", {"nothing"});  // 7 bytes
  Begin("a");
  test.transfers.Fail();
  EXPECT_EQ(Counted(Setting::SearchCount), "3");
  EXPECT_EQ(Counted(Setting::SearchBytes), "16");
  Counted(Setting::SearchCount) = Counted(Setting::SearchBytes) = "?";
  ASSERT_TRUE(ReadSettingsFile(program));
  EXPECT_EQ(Counted(Setting::SearchCount), "3");
  EXPECT_EQ(Counted(Setting::SearchBytes), "16");
}

TEST_F(Searching, WaitsWithTheHourglassWhateverRestoresThePointer) {
  Begin("a");
  EXPECT_TRUE(test.pointer.waiting);
  test.pointer.ShowWait();
  test.pointer.Restore();
  EXPECT_TRUE(test.pointer.waiting);
  test.transfers.Complete({"Appel\xBC"});
  EXPECT_FALSE(test.pointer.waiting);
  Begin("a");
  test.transfers.Fail();
  EXPECT_FALSE(test.pointer.waiting);
}

TEST_F(Searching, ASecondSearchAtOnceIsNone) {
  Begin("a");
  Begin("b");
  EXPECT_EQ(test.transfers.addresses.size(), 1u);
  test.transfers.Complete({"Appel\xBC"});
  EXPECT_EQ(found.Count(), 1u);
  EXPECT_EQ(Counted(Setting::SearchCount), "1");
}

TEST_F(Searching, OneThatIsGivenUpCountsAndSaysNothing) {
  Find("a", {"Appel\xBC"});
  view.steps.clear();
  Begin("b");
  search->GiveUp();
  EXPECT_EQ(test.transfers.cancelled, 1);
  EXPECT_FALSE(search->IsRunning());
  EXPECT_FALSE(test.pointer.waiting);
  EXPECT_EQ(view.steps, "searching0 allowed1");
  EXPECT_EQ(Counted(Setting::SearchCount), "2");
  EXPECT_EQ(Counted(Setting::SearchBytes), "6");
  EXPECT_TRUE(test.boxes.shown.empty());
  search->GiveUp();
  EXPECT_EQ(Counted(Setting::SearchCount), "2");
  Find("c", {"Citroen\xBC"});
  EXPECT_EQ(found[0], "Citroen");
}

TEST_F(Searching, OneWhoseWindowIsGoneIsNotHeardOfAgain) {
  Begin("a");
  search.reset();
  EXPECT_EQ(test.transfers.cancelled, 1);
  EXPECT_FALSE(test.pointer.waiting);
  EXPECT_EQ(view.steps, "searching0");
  EXPECT_TRUE(test.boxes.shown.empty());
}

// The window may go while a box is looked at.
struct ClosingBoxes : RecordingBoxes {
  std::function<void()> on_show;
  BoxAnswer Show(const Box& box) override {
    if (on_show) on_show();
    return RecordingBoxes::Show(box);
  }
};

TEST(SearchingBehindABox, AWindowThatGoesMeanwhileIsLeftAlone) {
  for (const int box : {1, 2}) {
    TestProgram test;
    ClosingBoxes boxes;
    Platform platform{boxes,         test.pointer,  test.locale,         test.folders,
                      test.clock,    test.screen,   test.events,         test.opener,
                      test.printers, test.printing, test.folder_chooser, test.transfers};
    Program program(platform);
    program.paths = test.program.paths;
    program.servers.search = "http://nl.example/";
    auto found = std::make_unique<TextList>();
    auto view = std::make_unique<NotedView>(*found);
    auto search = std::make_unique<InternetSearch>(program, *found, *view);
    int shown = 0;
    boxes.on_show = [&] {
      if (++shown != box) return;
      search.reset();
      view.reset();
      found.reset();
    };
    search->Zoek_Op_Internet("a");
    test.transfers.Fail();
    EXPECT_EQ(boxes.shown.size(), static_cast<std::size_t>(box));
    EXPECT_FALSE(test.pointer.waiting);
  }
}

TEST(FoodsOfReply, AreWhatEachQuarterCloses) {
  EXPECT_FALSE(FoodsOfReply("").has_value());
  EXPECT_FALSE(FoodsOfReply("Bread\xBD\xBE").has_value());
  EXPECT_EQ(FoodsOfReply("\xBC")->Count(), 1u);
  EXPECT_EQ(FoodsOfReply("\xBC\xBC\xBC x")->Count(), 3u);
  const auto foods = FoodsOfReply(std::string_view("a\0b\xBD\r\n\xBC<b>\xC3\xBC", 12));
  ASSERT_EQ(foods->Count(), 2u);
  EXPECT_EQ((*foods)[0], std::string_view("a\0b\xBD\r\n", 6));
  EXPECT_EQ((*foods)[1], "<b>\xC3");
}

TEST(FoodsOfReply, AreAMillionAtTheMost) {
  EXPECT_EQ(FoodsOfReply(std::string(1'000'000, '\xBC'))->Count(), 1'000'000u);
  EXPECT_EQ(FoodsOfReply(std::string(1'000'001, '\xBC'))->Count(), 1'000'000u);
}

// The end of a line inside a food would make two foods of it in the day and in the own list.
TEST(FoodsOfReply, HoldNoEndOfALine) {
  const auto foods = FoodsOfReply(
      "Soup\xBE\xBD"
      "1\xBE\xBD\xBE\xBC");
  ASSERT_EQ(foods->Count(), 1u);
  EXPECT_EQ((*foods)[0],
            "Soup\xBD"
            "1\xBD");
}

}  // namespace
}  // namespace kelvora
