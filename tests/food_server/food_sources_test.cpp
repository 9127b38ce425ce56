#include "food_server/food_sources.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "core/store.h"
#include "food_server/food_line.h"
#include "storage/record_file.h"
#include "support/test_program.h"

namespace kelvora::server {
namespace {

constexpr std::string_view kHead =
    "name\tunit\tgram\tkj\tkcal\tprotein\tfat_u\tfat_s\tcarbs\tsodium\tgroup\tremark\n";
constexpr std::string_view kRow = "Crème\t1 cup\t10\t1\t2\t3\t4\t5\t6\t7\tDairy\troom\n";
constexpr std::string_view kRye = "Rye bread½1 slice½35½1½2½3½4½5½6½7½Bread½½"_w;

class FoodSources : public testing::Test {
 protected:
  void Write(const std::string& name, std::string_view bytes) {
    WriteFileAnew(folder_.Path() + "/" + name, bytes);
  }
  void WriteDatabase(const std::string& name, std::string_view lines) {
    WriteRecord(folder_.Path() + "/" + name, Rec_ListLine{{Text(lines)}});
  }
  ReadFoods Read() { return ReadAllFoods(FilesOf({folder_.Path()})); }

  TemporaryFolder folder_;
};

TEST_F(FoodSources, AreTablesAndDatabasesInOrderOfName) {
  Write("b.TSV", std::string(kHead) + std::string(kRow));
  WriteDatabase("a.dat", std::string(kRye) + kLineEnd);
  Write("notes.txt", "x");
  Write(".hidden.dat", "x");
  const ReadFoods foods = Read();
  ASSERT_EQ(foods.lines.Count(), 2U);
  EXPECT_EQ(foods.lines[0], kRye);
  EXPECT_EQ(foods.lines[1], "Crème½1 cup½10½1½2½3½4½5½6½7½Dairy½room½"_w);
  EXPECT_EQ(foods.passed, 0U);
}

TEST_F(FoodSources, PassOverRowsThatAreNoFood) {
  Write("a.tsv", std::string(kHead) + "too\tshort\n\n" + std::string(kRow) +
                     "\t1\t1\t1\t1\t1\t1\t1\t1\t1\t\t\n");
  const ReadFoods foods = Read();
  EXPECT_EQ(foods.lines.Count(), 1U);
  EXPECT_EQ(foods.passed, 2U);
}

TEST_F(FoodSources, AnUnreadableOneFailsAsAWhole) {
  WriteDatabase("a.dat", std::string(kRye) + kLineEnd);
  const std::string whole = ReadFile(folder_.Path() + "/a.dat");
  for (std::size_t size = 0; size < whole.size(); ++size) {
    Write("a.dat", std::string_view(whole).substr(0, size));
    EXPECT_THROW((void)Read(), std::runtime_error) << size;
  }
  Write("a.dat", whole);
  EXPECT_EQ(Read().lines.Count(), 1U);
  std::filesystem::create_directory(folder_.Path() + "/b.dat");
  EXPECT_THROW((void)Read(), std::system_error);
  EXPECT_THROW((void)FilesOf({folder_.Path(), folder_.Path() + "/nowhere"}), std::system_error);
}

TEST_F(FoodSources, HaveOneStateWhateverTheirFilesLookLike) {
  Write("a.tsv", std::string(kHead) + std::string(kRow));
  const auto files = FilesOf({folder_.Path()});
  const std::string state = ReadAllFoods(files).state;
  Write("a.tsv", std::string(kHead) + std::string(kRow) + "\n");
  EXPECT_NE(FilesOf({folder_.Path()}), files);
  EXPECT_EQ(Read().state, state);
  Write("a.tsv", std::string(kHead) + "B" + std::string(kRow));
  EXPECT_NE(Read().state, state);
}

TEST(FoodLine, HasTwelveCleanFields) {
  EXPECT_EQ(CleanFoodLine(" A ½b½c½"_w), "A½b½c½½½½½½½½½½"_w);
  EXPECT_EQ(CleanFoodLine("A½½½½½½½½½½½r½bread.dat½"_w), "A½½½½½½½½½½½r½"_w);
  EXPECT_EQ(CleanFoodLine("Melon ¼\t\x01½½½½½½½½½½g\r\nh½r\r\ns\x7F½"_w),
            "Melon 1/4½½½½½½½½½½g  h½r\r\ns½"_w);
  EXPECT_EQ(CleanFoodLine("½b½"_w), std::nullopt);
  EXPECT_EQ(CleanFoodLine(" ½b½"_w), std::nullopt);
  EXPECT_EQ(CleanFoodLine(""), std::nullopt);
  EXPECT_EQ(CleanFoodLine("A¾B½"_w), std::nullopt);
  EXPECT_EQ(CleanFoodLine(std::string(121, 'x') + kFieldEnd), std::nullopt);
}

}  // namespace
}  // namespace kelvora::server
