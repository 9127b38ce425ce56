// The diary's rules without its window: count, line breaks, what is refused, what is stored.
#include "analysis/diary.h"

#include <gtest/gtest.h>

#include "language/built_in_texts.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

class Diary : public testing::Test {
 protected:
  Diary() { test.OpenDay("Anna"); }
  Text& Stored() { return test.program.store.txt_notities; }
  bool Bewaar(std::string_view in_box) { return Bewaar_Notities(test.program, in_box); }

  TestProgram test;
};

TEST_F(Diary, CountsEachLineBreakAsTwo) {
  EXPECT_EQ(Toon_Tekens(test.program, ""),
            "Diary contains 0 characters (there is still room for 5000 characters).");
  EXPECT_EQ(Toon_Tekens(test.program, "ab\ncd\n"),
            "Diary contains 8 characters (there is still room for 4992 characters).");
}

TEST_F(Diary, HasLessThanNoRoomForALongerTextOfAFile) {
  EXPECT_EQ(Toon_Tekens(test.program, Text(5000, 'a')),
            "Diary contains 5000 characters (there is still room for 0 characters).");
  EXPECT_EQ(Toon_Tekens(test.program, Text(5001, 'a')),
            "Diary contains 5001 characters (there is still room for -1 characters).");
  EXPECT_EQ(Toon_Tekens(test.program, Text(1'000'000, 'a')),
            "Diary contains 1000000 characters (there is still room for -995000 characters).");
}

TEST_F(Diary, CountsInDutch) {
  Make_Taal_Dutch(test.program.texts);
  EXPECT_EQ(Toon_Tekens(test.program, "abc"),
            "Het dagboek bevat 3 tekens (er is nog ruimte voor 4997 tekens).");
}

TEST_F(Diary, ShowsEveryKindOfLineBreakAsOne) {
  EXPECT_EQ(DiaryInBox("a\r\nb\rc\nd\r\r\n"), "a\nb\nc\nd\n\n");
}

TEST_F(Diary, KeepsTheTwoTerminatorsFromTheKeys) {
  EXPECT_FALSE(DiaryTakesKey(189));
  EXPECT_FALSE(DiaryTakesKey(190));
  for (const char32_t key : {U'\u00BC', U'\u00BF', U'a', U'\n', U'\u20AC'}) {
    EXPECT_TRUE(DiaryTakesKey(key));
  }
}

TEST_F(Diary, StoresAnEditedTextWithCrLf) {
  Stored() = "old\rtext";
  EXPECT_TRUE(Bewaar("one\ntwo\n"));
  EXPECT_EQ(Stored(), "one\r\ntwo\r\n");
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(Diary, KeepsTheBytesOfATextThatWasNotEdited) {
  for (const char* stored : {"a\nb", "a\rb", "a\r\nb"}) {
    Stored() = stored;
    EXPECT_TRUE(Bewaar("a\nb"));
    EXPECT_EQ(Stored(), stored);
  }
}

TEST_F(Diary, RefusesATextThatHoldsATerminator) {
  for (const char* text : {"a half: \xBD", "three quarters: \xBE", "\xBE and \xBD"}) {
    Stored() = "before";
    test.boxes.shown.clear();
    EXPECT_FALSE(Bewaar(text));
    EXPECT_EQ(Stored(), "before");
    ASSERT_EQ(test.boxes.shown.size(), 1u);
    EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::warning);
    EXPECT_EQ(test.boxes.shown[0].text,
              "The note cannot be saved.\n"
              "The characters half and three-quarters are not allowed in the notes!");
  }
}

TEST_F(Diary, AChangeIsAChangeOfTheDay) {
  const int updates = test.core.updates;
  NoteDiaryChange(test.program);
  EXPECT_TRUE(test.program.day.FileChanged);
  EXPECT_GT(test.core.updates, updates);  // the Save button
}

TEST_F(Diary, TellsAWordThatIsLongerThanADiary) {
  EXPECT_FALSE(HoldsEndlessWord(""));
  EXPECT_FALSE(HoldsEndlessWord(Text(5000, 'w') + " " + Text(5000, 'w') + "\n" + Text(5000, 'w')));
  EXPECT_TRUE(HoldsEndlessWord("a " + Text(5001, 'w') + " b"));
}

TEST_F(Diary, HasItsPanelWidths) {
  EXPECT_EQ(DiaryPanelWidths(6000), (std::array{3500, 1500, 1000}));
}

}  // namespace
}  // namespace kelvora
