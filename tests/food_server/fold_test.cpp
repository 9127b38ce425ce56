#include "food_server/fold.h"

#include <gtest/gtest.h>

#include "core/text.h"

namespace kelvora::server {
namespace {

TEST(Fold, LeavesOutCaseAndAccents) {
  EXPECT_EQ(FoldText("Crème FRAÎCHE, 35%"_w), "creme fraiche 35%");
  EXPECT_EQ(FoldText("ÀÁÂÃÄÅÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖØÙÚÛÜÝŠŽŸ"_w), "aaaaaaceeeeiiiidnoooooouuuuyszy");
  EXPECT_EQ(FoldText("àáâãäåçèéêëìíîïðñòóôõöøùúûüýšžÿ"_w), "aaaaaaceeeeiiiidnoooooouuuuyszy");
  EXPECT_EQ(FoldText("Æble, Œuf, Straße, Þ"_w), "aeble oeuf strasse th");
}

TEST(Fold, PartsWordsByOneBlankAndLeavesNoneAtTheEnds) {
  EXPECT_EQ(FoldText("  Bread,brown -- (2 slices)! "_w), "bread brown 2 slices");
  EXPECT_EQ(FoldText("3×4÷2"_w), "3 4 2");
  EXPECT_EQ(FoldText("½¾¼ \t\r\n\0"_w), "");
  EXPECT_EQ(FoldText(""), "");
}

TEST(Fold, KeepsWordsWithApostrophesTogether) {
  EXPECT_EQ(FoldText("Pizza's, M&M’s"_w), "pizzas m ms");
}

TEST(Fold, ReadsUtf8WhereItIsValidAndElseTheCodePage) {
  EXPECT_EQ(FoldBytes("cr\xC3\xA8me"), "creme");
  EXPECT_EQ(FoldBytes("cr\xE8me"), "creme");
  // "e" with a combining grave accent, letters beyond the code page, the ligature of Dutch.
  EXPECT_EQ(FoldBytes("cre\xCC\x80me"), "creme");
  EXPECT_EQ(FoldBytes("P\xC4\x85"
                      "czki \xC5\x82osos \xC4\xB3s"),
            "paczki losos ijs");
  // What can't be folded parts words.
  EXPECT_EQ(FoldBytes("\xD0\xB1\xD0\xBE soup"), "soup");
  EXPECT_EQ(FoldBytes("\xC3"), "a");  // a cut character is none
}

TEST(Fold, NamesEveryLetterOfLatinExtendedA) {
  // By their Unicode names: A WITH MACRON to LONG S, one row of the table an assertion.
  EXPECT_EQ(FoldBytes("ĀāĂăĄąĆćĈĉĊċČčĎďĐđ"), "aaaaaaccccccccdddd");
  EXPECT_EQ(FoldBytes("ĒēĔĕĖėĘęĚěĜĝĞğĠġĢģĤĥĦħ"), "eeeeeeeeeegggggggghhhh");
  EXPECT_EQ(FoldBytes("ĨĩĪīĬĭĮįİıĲĳĴĵĶķĸ"), "iiiiiiiiiiijijjjkkk");
  EXPECT_EQ(FoldBytes("ĹĺĻļĽľĿŀŁłŃńŅņŇňŉŊŋ"), "llllllllllnnnnnnnnn");
  EXPECT_EQ(FoldBytes("ŌōŎŏŐőŒœŔŕŖŗŘřŚśŜŝŞşŠš"), "oooooooeoerrrrrrssssssss");
  EXPECT_EQ(FoldBytes("ŢţŤťŦŧŨũŪūŬŭŮůŰűŲųŴŵŶŷŸŹźŻżŽžſ"), "ttttttuuuuuuuuuuuuwwyyyzzzzzzs");
}

TEST(Fold, ATermHasEachWordOnce) {
  const FoldedTerm term = FoldTerm("ham & Ham-egg");
  EXPECT_EQ(term.text, "ham ham egg");
  EXPECT_EQ(term.words, (std::vector<std::string>{"ham", "egg"}));
  EXPECT_TRUE(FoldTerm("-- ' \xBD").words.empty());
}

TEST(Fold, ATermIsBounded) {
  std::string many;
  for (int i = 0; i < 30; ++i) many += "w" + std::to_string(i) + " ";
  EXPECT_EQ(FoldTerm(many).words.size(), 12U);
  EXPECT_EQ(FoldTerm(std::string(5000, 'x')).text, std::string(200, 'x'));
}

TEST(Fold, AFoodHasItsNamesInBothLanguages) {
  const FoldedFood food = FoldFood(
      "Bread, brown½1 slice½35½347½83½3½1½0½15½0½Bread½bruin brood, Volkoren,,bread brown\r\n2x flour½"_w);
  EXPECT_EQ(food.name, "bread brown");
  EXPECT_EQ(food.names, (std::vector<std::string>{"bread brown", "bruin brood", "volkoren"}));
  EXPECT_EQ(food.text, "bread brown bruin brood volkoren bread brown 2x flour");
}

}  // namespace
}  // namespace kelvora::server
