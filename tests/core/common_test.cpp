#include "core/common.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "storage/record_file.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

Text Cleaned(std::string_view text) {
  Text changed(text);
  EXPECT_EQ(&CleanText(changed), &changed);
  return changed;
}

TEST(CleanText, SmallVowelsLoseAcuteAccentAndDiaeresis) {
  EXPECT_EQ(Cleaned("áéíóú äëïöü"_w), "aeiou aeiou");
  EXPECT_EQ(Cleaned("Zoë van Créé"_w), "Zoe van Cree");
}

TEST(CleanText, FourteenCharactersAreTakenOut) {
  EXPECT_EQ(Cleaned("a?b@c#d%e^f&g*h(i)j'k€l$m£n¦o"_w), "abcdefghijklmno");
  EXPECT_EQ(Cleaned("???"), "");
}

TEST(CleanText, CapitalsAndAllElseStay) {
  EXPECT_EQ(Cleaned("Ã"_w), "Ã"_w);
  EXPECT_EQ(Cleaned("ÁËÏ àèñç ½¾ |!\"+-_.,;:<>/\\"_w), "ÁËÏ àèñç ½¾ |!\"+-_.,;:<>/\\"_w);
  EXPECT_EQ(Cleaned(""), "");
}

TEST(CategoryKnown, ComparesExactly) {
  KV_data store;
  store.lst_categorien.Add("Bread.dat");
  EXPECT_TRUE(CategoryKnown(store, "Bread.dat"));
  EXPECT_FALSE(CategoryKnown(store, "bread.dat"));
  EXPECT_FALSE(CategoryKnown(store, "Bread"));
  EXPECT_FALSE(CategoryKnown(store, ""));
}

TEST(FileExists, OnlyARegularFileThatCanBeOpenedIsOne) {
  TemporaryFolder folder;
  WriteFileAnew(folder.Path("file"), "");
  std::filesystem::create_directory(folder.Path("folder"));
  std::filesystem::create_symlink("file", folder.Path("link"));
  std::filesystem::create_symlink("nothing", folder.Path("broken"));
  // Opening a pipe for reading would wait for a writer.
  ASSERT_EQ(mkfifo(folder.Path("pipe").c_str(), 0600), 0);
  EXPECT_TRUE(FileExists(folder.Path("file")));
  EXPECT_TRUE(FileExists(folder.Path("link")));
  EXPECT_FALSE(FileExists(folder.Path("folder")));
  EXPECT_FALSE(FileExists(folder.Path("broken")));
  EXPECT_FALSE(FileExists(folder.Path("pipe")));
  EXPECT_FALSE(FileExists(folder.Path("missing")));
  EXPECT_FALSE(FileExists("/dev/zero"));
  EXPECT_FALSE(FileExists(""));
}

}  // namespace
}  // namespace kelvora
