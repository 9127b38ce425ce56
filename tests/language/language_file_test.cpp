#include "language/language_file.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

#include "language/built_in_texts.h"
#include "language/consumption_texts.h"
#include "language/file_info_texts.h"
#include "language/main_texts.h"
#include "storage/record_file.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

std::ptrdiff_t CountTerminators(const Text& text) {
  return std::ranges::count(text, kLineEnd);
}

TEST(LanguageFile, HasTwentySixStringsWith25And201Entries) {
  TextTables texts;
  Make_Taal_English(texts);
  const Rec_Language record = JoinTables(texts);
  EXPECT_EQ(CountTerminators(record.strings[0]), 25);
  for (std::size_t i = 1; i < kTextTableCount; ++i) {
    EXPECT_EQ(CountTerminators(record.strings[i]), 201) << i;
  }
  EXPECT_TRUE(record.strings[0].starts_with("Properties\xBEMain screen\xBE"));
}

TEST(LanguageFile, WritingAndReadingBackYieldsTheSameEntries) {
  TestProgram test;
  Make_Taal_Dutch(test.program.texts);
  const auto before = test.program.texts.entries;
  const std::string path = test.program.paths.LanguagePath + "own.lsf";
  Save_Language_File(test.program, path);
  test.program.texts = {};
  Load_Language_File(test.program, path);
  EXPECT_EQ(test.program.texts.entries, before);
}

TEST(LanguageFile, AShortFileLaysOverWhatIsThereAndALongOneIsCut) {
  TextTables texts;
  texts[{TextTable::taal_main, 0}] = "kept?";
  texts[{TextTable::taal_main, 2}] = "kept";
  Rec_Language record;
  record[TextTable::taal_main] = Packed("a~b~dropped");
  for (int i = 0; i < 300; ++i) record[TextTable::taal_trend] += std::to_string(i) + kLineEnd;
  SplitTables(record, texts);
  EXPECT_EQ((texts[{TextTable::taal_main, 0}]), "a");
  EXPECT_EQ((texts[{TextTable::taal_main, 1}]), "b");
  EXPECT_EQ((texts[{TextTable::taal_main, 2}]), "kept");
  EXPECT_EQ((texts[{TextTable::taal_trend, 200}]), "200");
}

TEST(LanguageFile, AStandardFileOfAnotherVersionIsRewrittenAndAUsersOwnIsNot) {
  TestProgram test;
  const std::string folder = test.program.paths.LanguagePath;
  Make_Taal_English(test.program.texts);
  test.program.texts[main_text::kFile] = "Changed";
  Save_Language_File(test.program, folder + "Nederlands.lsf");
  test.program.texts[file_info_text::kLanguageVersion] = "2.23";
  for (const char* name : {"English.lsf", "own.lsf"}) {
    Save_Language_File(test.program, folder + name);
  }
  Check_Language_Files(test.program);
  Load_Language_File(test.program, folder + "English.lsf");
  EXPECT_EQ(test.program.texts[main_text::kFile], "File");
  EXPECT_EQ(test.program.texts[file_info_text::kLanguageVersion], "2.24");
  Load_Language_File(test.program, folder + "Nederlands.lsf");
  EXPECT_EQ(test.program.texts[main_text::kFile], "Changed");
  Load_Language_File(test.program, folder + "own.lsf");
  EXPECT_EQ(test.program.texts[file_info_text::kLanguageVersion], "2.23");
  EXPECT_TRUE(std::filesystem::exists(folder + "default.lsf"));
}

TEST(LanguageFile, VersionOfAMissingFileIsZero) {
  TestProgram test;
  EXPECT_EQ(Get_Language_Version(test.program, test.program.paths.LanguagePath + "no.lsf"), "0");
}

TEST(LanguageFile, AFileWithoutARecordShowsItsFixedBoxAndChangesNothing) {
  TestProgram test;
  const std::string path = test.program.paths.LanguagePath + "empty.lsf";
  WriteFileAnew(path, std::string(4, '\0'));
  const auto before = test.program.texts.entries;
  Load_Language_File(test.program, path);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].title, "Error during loading #03");
  EXPECT_EQ(test.boxes.shown[0].text,
            "Error during loading!\nThe language file could not be opened");
  EXPECT_EQ(test.program.texts.entries, before);
  EXPECT_EQ(Get_Language_Version(test.program, path), "");
  EXPECT_EQ(test.boxes.shown[1].text,
            "An error occured during language version retrieval in file " + path);
  Save_Language_File(test.program, "/no/such/folder/x.lsf");
  EXPECT_EQ(test.boxes.shown[2].text,
            "An error occured while saving the languagefile/no/such/folder/x.lsf");
}

TEST(BuiltInTexts, StandWhereTheyAreLaidDown) {
  struct Row {
    TextId id;
    std::string_view english, dutch;
  };
  TextTables english, dutch;
  Make_Taal_English(english);
  Make_Taal_Dutch(dutch);
  for (const Row& row : {
           Row{{TextTable::taal_main, 0}, "File", "Bestand"},
           Row{{TextTable::taal_main, 2}, "New file", "Nieuw bestand"},
           Row{{TextTable::taal_main, 3}, "Open file", "Bestand openen"},
           Row{{TextTable::taal_main, 4}, "Save file", "Bestand opslaan"},
           Row{{TextTable::taal_main, 92},
               "All language files are repaired.",
               "Alle taalbestanden zijn hersteld."},
           Row{{TextTable::taal_main, 93}, "Repair language files", "Herstel taalbestanden"},
           Row{{TextTable::taal_morning, 0}, "Morning consumptions", "Ochtendconsumpties"},
           Row{{TextTable::taal_afternoon, 0}, "Afternoon consumptions", "Middagconsumpties"},
           Row{{TextTable::taal_evening, 0}, "Evening consumptions", "Avondconsumpties"},
           Row{{TextTable::taal_messages, 0},
               "An error occured.",
               "Er heeft zich een fout voorgedaan."},
           Row{{TextTable::taal_day_settings, 82},
               "You did not enter your age.",
               "De leeftijd is niet ingevoerd."},
           Row{{TextTable::taal_day_settings, 83},
               "Please enter an age between 13 and 99 years.",
               "Voer een leeftijd in tussen de 13 en 99 jaar."},
           Row{{TextTable::taal_day_settings, 84},
               "You did not enter the date correctly.",
               "De datum is niet correct ingevoerd."},
       }) {
    EXPECT_EQ(english[row.id], row.english);
    EXPECT_EQ(dutch[row.id], row.dutch);
  }
}

TEST(BuiltInTexts, OnlyTheMorningSpeaksOfAnErrorAtTheLimitOfADrop) {
  TextTables english, dutch;
  Make_Taal_English(english);
  Make_Taal_Dutch(dutch);
  const std::size_t drop = consumption_text::kLimitDrop;
  EXPECT_EQ((english[{TextTable::taal_morning, drop}]), "An error occurred while processing data.");
  EXPECT_EQ((english[{TextTable::taal_evening, drop}]), "You can not add more food items.");
  EXPECT_EQ((dutch[{TextTable::taal_morning, drop}]), (dutch[{TextTable::taal_evening, drop}]));
}

TEST(BuiltInTexts, HoldNoTerminator) {
  for (const auto& table : BuiltInTexts()) {
    for (const TextRow& row : table) {
      EXPECT_FALSE(HoldsTerminator(row.english)) << row.english;
      EXPECT_FALSE(HoldsTerminator(row.dutch)) << row.dutch;
    }
  }
}

}  // namespace
}  // namespace kelvora
