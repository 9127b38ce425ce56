#include "language/own_text_file.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "language/built_in_texts.h"
#include "language/language_file.h"
#include "language/main_texts.h"
#include "storage/record_file.h"
#include "support/file_faults.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

namespace fs = std::filesystem;

// A companion written by hand: one record of one string.
std::string Companion(std::string_view entries) {
  const Text text = Packed(entries);
  std::string bytes("\1\0\0\0", 4);
  bytes += static_cast<char>(text.size() % 256);
  bytes += static_cast<char>(text.size() / 256);
  return bytes + text;
}

class OwnTextFiles : public testing::Test {
 protected:
  [[nodiscard]] std::string Path(const char* name) const {
    return test.program.paths.LanguagePath + name;
  }
  [[nodiscard]] Text Own(OwnText id) const { return OwnTextOf(test.program.texts, id); }

  TestProgram test;
};

TEST_F(OwnTextFiles, EachLanguageFileHasItsCompanionBesideIt) {
  EXPECT_EQ(OwnTextFile("/x/English.lsf"), "/x/English.own");
  EXPECT_EQ(OwnTextFile("/x/FRANS.LSF"), "/x/FRANS.own");
  EXPECT_EQ(OwnTextFile("/x.lsf/a"), "/x.lsf/a.own");
  EXPECT_EQ(OwnTextFile("a"), "a.own");
  EXPECT_TRUE(Check_Language_Files(test.program));
  for (const char* name : {"English.own", "Nederlands.own", "default.own"}) {
    EXPECT_TRUE(FileExists(Path(name))) << name;
  }
}

// The form of the file, byte for byte: the version is the first entry, then the first own text.
TEST_F(OwnTextFiles, BeginWithTheVersionAndHoldEveryTextInOrder) {
  Check_Language_Files(test.program);
  const std::string dutch = ReadFile(Path("Nederlands.own"));
  EXPECT_EQ(dutch.substr(0, 4), std::string("\1\0\0\0", 4));
  const std::size_t length =
      static_cast<unsigned char>(dutch[4]) + 256u * static_cast<unsigned char>(dutch[5]);
  EXPECT_EQ(dutch.size(), 6 + length);
  EXPECT_TRUE(dutch.substr(6).starts_with(
      Packed("2.24~Verplaats naar de ochtend~Verplaats naar de middag~")));
  EXPECT_EQ(std::count(dutch.begin() + 6, dutch.end(), '\xBE'), kOwnTextCount + 1);
  EXPECT_TRUE(ReadFile(Path("default.own"))
                  .substr(6)
                  .starts_with(Packed("2.24~Move to the morning~Move to the afternoon~")));
}

TEST_F(OwnTextFiles, AreReadWithTheirLanguage) {
  Check_Language_Files(test.program);
  Load_Language_File(test.program, Path("Nederlands.lsf"));
  EXPECT_EQ(Own(OwnText::cut_foods), "Knippen");
  Load_Language_File(test.program, Path("English.lsf"));
  EXPECT_EQ(Own(OwnText::cut_foods), "Cut");
}

TEST_F(OwnTextFiles, ATranslationOfAUsersOwnIsShown) {
  Check_Language_Files(test.program);
  Load_Language_File(test.program, Path("Nederlands.lsf"));
  Save_Language_File(test.program, Path("Frans.lsf"));
  WriteFileAnew(Path("Frans.own"), Companion("1.0~Vers le matin~Vers midi~"));
  Load_Language_File(test.program, Path("Frans.lsf"));
  EXPECT_EQ(Own(OwnText::move_to_morning), "Vers le matin");
  EXPECT_EQ(Own(OwnText::move_to_afternoon), "Vers midi");
  // What it lacks is English, whatever language was there before.
  EXPECT_EQ(Own(OwnText::move_to_evening), "Move to the evening");
}

TEST_F(OwnTextFiles, ALanguageWithoutACompanionAndAnEmptyEntryAreEnglish) {
  Check_Language_Files(test.program);
  Load_Language_File(test.program, Path("Nederlands.lsf"));
  Save_Language_File(test.program, Path("Mijn.lsf"));
  fs::remove(Path("Mijn.own"));
  Load_Language_File(test.program, Path("Mijn.lsf"));
  EXPECT_EQ(test.program.texts[main_text::kFile], "Bestand");
  EXPECT_EQ(Own(OwnText::cut_foods), "Cut");
  WriteFileAnew(Path("Mijn.own"), Companion("2.24~~Naar de middag~"));
  Load_Language_File(test.program, Path("Mijn.lsf"));
  EXPECT_EQ(Own(OwnText::move_to_morning), "Move to the morning");
  EXPECT_EQ(Own(OwnText::move_to_afternoon), "Naar de middag");
}

TEST_F(OwnTextFiles, ADamagedCompanionIsEnglishAndSaysNothing) {
  Check_Language_Files(test.program);
  Load_Language_File(test.program, Path("Nederlands.lsf"));
  Save_Language_File(test.program, Path("Mijn.lsf"));
  for (const std::string& bytes :
       {std::string(), std::string("\0\0\0\0", 4), std::string("\1\0\0\0\xFE\xFE", 6),
        Companion(""), Companion("2.24~"), Companion("no end")}) {
    WriteFileAnew(Path("Mijn.own"), bytes);
    Load_Language_File(test.program, Path("Mijn.lsf"));
    EXPECT_EQ(Own(OwnText::move_to_morning), "Move to the morning");
  }
  fs::remove(Path("Mijn.own"));
  fs::create_directory(Path("Mijn.own"));
  Load_Language_File(test.program, Path("Mijn.lsf"));
  EXPECT_EQ(Own(OwnText::move_to_morning), "Move to the morning");
  EXPECT_TRUE(test.boxes.shown.empty());
}

// More entries than there are texts change nothing but their own.
TEST_F(OwnTextFiles, ACompanionThatIsTooLongIsCut) {
  Check_Language_Files(test.program);
  std::string entries = "2.24~";
  for (int i = 0; i < 1000; ++i) entries += "x~";
  Save_Language_File(test.program, Path("Mijn.lsf"));
  WriteFileAnew(Path("Mijn.own"), Companion(entries));
  Load_Language_File(test.program, Path("Mijn.lsf"));
  EXPECT_EQ(test.program.texts.own.size(), static_cast<std::size_t>(kOwnTextCount));
  EXPECT_EQ(Own(OwnText::move_to_morning), "x");
}

TEST_F(OwnTextFiles, StandardOnesAreWrittenAnewForAnotherVersionOrNumberOfTexts) {
  Check_Language_Files(test.program);
  const std::string dutch = ReadFile(Path("Nederlands.own"));
  std::string all_but_one = "2.24~";
  for (int i = 1; i < kOwnTextCount; ++i) all_but_one += "x~";
  for (const std::string& bytes :
       {Companion("2.23~" + all_but_one.substr(5) + "x~"), Companion(all_but_one),
        Companion(all_but_one + "x~x~"), std::string()}) {
    WriteFileAnew(Path("Nederlands.own"), bytes);
    EXPECT_TRUE(Check_Language_Files(test.program));
    EXPECT_EQ(ReadFile(Path("Nederlands.own")), dutch);
  }
  // One of the right version and number is the user's to change.
  const std::string changed = Companion(all_but_one + "x~");
  WriteFileAnew(Path("Nederlands.own"), changed);
  EXPECT_TRUE(Check_Language_Files(test.program));
  EXPECT_EQ(ReadFile(Path("Nederlands.own")), changed);
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(OwnTextFiles, ACompanionThatCannotBeWrittenIsTold) {
  Check_Language_Files(test.program);
  fs::remove(Path("English.own"));
  fs::create_directory(Path("English.own"));
  EXPECT_FALSE(Check_Language_Files(test.program));
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].text,
            "An error occured while saving the languagefile" + Path("English.own"));
}

// One box for the whole folder, not one a file.
TEST_F(OwnTextFiles, AFolderThatTakesNoFileIsToldOnce) {
  const InjectedFault fault({.disk_full_after = 0});
  EXPECT_FALSE(Check_Language_Files(test.program));
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].text,
            "An error occured while saving the languagefile" + Path("English.lsf"));
}

}  // namespace
}  // namespace kelvora
