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

TEST(LanguageFile, AMissingOneChangesNothingAndSaysNothing) {
  TestProgram test;
  const auto before = test.program.texts.entries;
  Load_Language_File(test.program, test.program.paths.LanguagePath + "no.lsf");
  EXPECT_EQ(test.program.texts.entries, before);
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST(LanguageFile, OneCutAnywhereOverlaysWhatIsThereWithoutAMessage) {
  TestProgram test;
  const std::string path = test.program.paths.LanguagePath + "cut.lsf";
  Make_Taal_Dutch(test.program.texts);
  const auto dutch = test.program.texts.entries;
  Make_Taal_English(test.program.texts);
  const auto english = test.program.texts.entries;
  Make_Taal_Dutch(test.program.texts);
  Save_Language_File(test.program, path);
  const std::string whole = ReadFile(path);
  // Every byte at the front, and a stride that meets every place of a string in the rest.
  for (std::size_t size = 4; size < whole.size(); size += size < 400 ? 1 : 37) {
    test.program.texts.entries = english;
    WriteFileAnew(path, std::string_view(whole).substr(0, size));
    Load_Language_File(test.program, path);
    ASSERT_TRUE(test.boxes.shown.empty()) << size;
    for (std::size_t table = 0; table < kTextTableCount; ++table) {
      for (std::size_t index = 0; index < 201; ++index) {
        const Text& entry = test.program.texts.entries[table][index];
        ASSERT_TRUE(entry == english[table][index] || entry == dutch[table][index])
            << size << " " << table << " " << index;
      }
    }
  }
  test.program.texts.entries = english;
  WriteFileAnew(path, whole);
  Load_Language_File(test.program, path);
  EXPECT_EQ(test.program.texts.entries, dutch);
}

TEST(LanguageFile, CutInsideItsCountChangesNothingAndSaysNothing) {
  TestProgram test;
  const auto before = test.program.texts.entries;
  const std::string path = test.program.paths.LanguagePath + "cut.lsf";
  for (const std::string_view bytes : {std::string_view(), std::string_view("\0\0\0", 3)}) {
    WriteFileAnew(path, bytes);
    Load_Language_File(test.program, path);
    EXPECT_TRUE(test.boxes.shown.empty());
    EXPECT_EQ(test.program.texts.entries, before);
  }
}

TEST(LanguageFile, WithoutARecordShowsItsFixedBox) {
  TestProgram test;
  const std::string path = test.program.paths.LanguagePath + "bad.lsf";
  for (const std::string_view bytes :
       {std::string_view("\0\0\0\0", 4), std::string_view("\xFF\xFF\xFF\xFF")}) {
    test.boxes.shown.clear();
    WriteFileAnew(path, bytes);
    Load_Language_File(test.program, path);
    ASSERT_EQ(test.boxes.shown.size(), 1u);
    EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::error);
    EXPECT_EQ(test.boxes.shown[0].title, "Error during loading #03");
  }
}

TEST(LanguageFile, AFieldOfAnyLengthIsReadWhole) {
  TestProgram test;
  const std::string path = test.program.paths.LanguagePath + "long.lsf";
  for (const std::size_t size : {65533u, 65534u, 200000u}) {
    Rec_Language record;
    record[TextTable::taal_diary] = Text(size, 'x') + kLineEnd;
    WriteRecord(path, record);
    Load_Language_File(test.program, path);
    EXPECT_EQ((test.program.texts[{TextTable::taal_diary, 0}]), Text(size, 'x'));
  }
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST(LanguageFile, TheVersionIsTheSecondItemAndLeavesItsTableOnePlaceTooHigh) {
  TestProgram test;
  const std::string path = test.program.paths.LanguagePath + "own.lsf";
  Rec_Language record;
  record[TextTable::taal_file_info] = Packed("product~1.99~someone~");
  WriteRecord(path, record);
  EXPECT_EQ(Get_Language_Version(test.program, path), "1.99");
  EXPECT_EQ((test.program.texts[{TextTable::taal_file_info, 0}]), "Kelvora FOOD");
  EXPECT_EQ((test.program.texts[{TextTable::taal_file_info, 1}]), "product");
  EXPECT_EQ((test.program.texts[{TextTable::taal_file_info, 3}]), "someone");
}

TEST(LanguageFile, AStandardFileThatCanNotBeReadIsMadeAnewAfterItsBox) {
  TestProgram test;
  const std::string path = test.program.paths.LanguagePath + "English.lsf";
  WriteFileAnew(path, std::string(4, '\0'));
  Check_Language_Files(test.program);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::error);
  EXPECT_EQ(test.boxes.shown[0].text,
            "An error occured during language version retrieval in file " + path);
  EXPECT_EQ(Get_Language_Version(test.program, path), "2.24");
}

// What the file before it said of its version says nothing of this one.
TEST(LanguageFile, AStandardFileThatIsCutShortIsMadeAnew) {
  TestProgram test;
  Check_Language_Files(test.program);
  for (const char* name : {"Nederlands.lsf", "default.lsf"}) {
    const std::string path = test.program.paths.LanguagePath + name;
    const std::string whole = ReadFile(path);
    const Text first_text = (*ReadFirstRecord<Rec_Language>(path)).strings[0];
    for (const std::size_t size : {0u, 3u, 4u}) {
      WriteFileAnew(path, std::string_view(whole).substr(0, size));
      Check_Language_Files(test.program);
      EXPECT_EQ(Get_Language_Version(test.program, path), "2.24") << name << size;
      EXPECT_EQ(ReadFirstRecord<Rec_Language>(path)->strings[0], first_text) << name << size;
    }
  }
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST(LanguageFile, AWriteProtectedStandardFileOfAnotherVersionStaysAndTheProgramGoesOn) {
  TestProgram test;
  const std::string path = test.program.paths.LanguagePath + "English.lsf";
  test.program.texts[file_info_text::kLanguageVersion] = "2.23";
  Save_Language_File(test.program, path);
  std::filesystem::permissions(path, std::filesystem::perms::owner_read);
  Check_Language_Files(test.program);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].text, "An error occured while saving the languagefile" + path);
  EXPECT_EQ(Get_Language_Version(test.program, path), "2.23");
  EXPECT_TRUE(FileExists(test.program.paths.LanguagePath + "Nederlands.lsf"));
  EXPECT_TRUE(FileExists(test.program.paths.LanguagePath + "default.lsf"));
}

struct TableCount {
  TextTable table;
  std::size_t assigned, fillers;
};
constexpr std::array kCounts = {
    TableCount{TextTable::taal_properties, 75, 4},
    TableCount{TextTable::taal_main, 131, 8},
    TableCount{TextTable::taal_new_food, 62, 3},
    TableCount{TextTable::taal_export_form, 50, 6},
    TableCount{TextTable::taal_popup, 13, 0},
    TableCount{TextTable::taal_day_settings, 111, 12},
    TableCount{TextTable::taal_browse, 52, 9},
    TableCount{TextTable::taal_day_summary, 111, 8},
    TableCount{TextTable::taal_food_details, 91, 9},
    TableCount{TextTable::taal_update, 22, 4},
    TableCount{TextTable::taal_lists, 68, 7},
    TableCount{TextTable::taal_diary, 8, 0},
    TableCount{TextTable::taal_trend, 158, 10},
    TableCount{TextTable::taal_compare, 42, 3},
    TableCount{TextTable::taal_wizard, 20, 0},
    TableCount{TextTable::taal_evening, 50, 7},
    TableCount{TextTable::taal_afternoon, 50, 7},
    TableCount{TextTable::taal_morning, 51, 7},
    TableCount{TextTable::taal_common, 68, 33},
    TableCount{TextTable::taal_print, 48, 0},
    TableCount{TextTable::taal_export, 56, 0},
    TableCount{TextTable::taal_reserved, 0, 0},
    TableCount{TextTable::taal_messages, 2, 1},
    TableCount{TextTable::taal_empty, 0, 0},
    TableCount{TextTable::taal_file_info, 5, 0},
};
constexpr TextId kAstray{TextTable::taal_properties, 113};
constexpr TextId kDiagnose{TextTable::taal_main, 113};

// Assigned and filler entries of a table, as they stand in the tables; the entry that went astray
// counts for its own table.
TableCount CountEntries(const TextTables& texts, TextTable table) {
  TableCount count{table, 0, 0};
  for (std::size_t index = 0; index < 201; ++index) {
    const Text& entry = texts[{table, index}];
    const bool filler =
        entry == "-EMPTY-" || entry == "- EMPTY -" || entry == "-EMPTY" || entry == "-LEEG-";
    const bool astray = TextId{table, index} == kAstray;
    count.assigned += !entry.empty() && !astray ? 1 : 0;
    count.fillers += filler ? 1 : 0;
  }
  const bool misses_one = table == TextTable::taal_main && !texts[kAstray].empty();
  count.assigned += misses_one ? 1 : 0;
  return count;
}

TEST(BuiltInTexts, EachTableHasItsNumberOfEntriesAndFillersInBothLanguages) {
  for (const auto make : {&Make_Taal_English, &Make_Taal_Dutch}) {
    TextTables texts;
    make(texts);
    for (const auto& [table, assigned, fillers] : kCounts) {
      const TableCount found = CountEntries(texts, table);
      EXPECT_EQ(found.assigned, assigned) << static_cast<int>(table);
      EXPECT_EQ(found.fillers, fillers) << static_cast<int>(table);
    }
    EXPECT_EQ(std::ranges::count_if(texts.entries[0], [](const Text& t) { return !t.empty(); }),
              23);
  }
}

TEST(BuiltInTexts, TheNameOfTheDiagnoseGoesAstrayInEnglishOnly) {
  TextTables english, dutch;
  Make_Taal_English(english);
  Make_Taal_Dutch(dutch);
  EXPECT_EQ(english[kDiagnose], "");
  EXPECT_EQ(english[kAstray], "System diagnose");
  EXPECT_EQ(dutch[kDiagnose], "Computer diagnose");
  EXPECT_EQ(dutch[kAstray], "");
}

TEST(BuiltInTexts, TheSectionTitlesAreEnglishInBothSetsButForTwoSpellings) {
  TextTables english, dutch;
  Make_Taal_English(english);
  Make_Taal_Dutch(dutch);
  for (std::size_t index = 1; index <= 25; ++index) {
    const TextId id{TextTable::taal_sections, index};
    if (index == 5) {
      EXPECT_EQ(dutch[id], "Pop-Up");
    } else if (index == 7) {
      EXPECT_EQ(dutch[id], "Browse Days");
    } else {
      EXPECT_EQ(dutch[id], english[id]);
    }
  }
}

TEST(BuiltInTexts, DutchIsNoCopyOfEnglish) {
  std::size_t same = 0, all = 0;
  for (const auto& table : BuiltInTexts()) {
    if (table[0].id.table == TextTable::taal_sections ||
        table[0].id.table == TextTable::taal_file_info) {
      continue;
    }
    for (const TextRow& row : table) {
      ++all;
      same += row.english == row.dutch && row.english.size() > 12 ? 1 : 0;
    }
  }
  // Names and addresses only.
  EXPECT_LT(same * 50, all);
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
           Row{{TextTable::taal_diary, 0},
               "The characters half and three-quarters are not allowed in the notes!",
               "De tekens half en driekwart zijn niet toegestaan in het dagboek!"},
           Row{{TextTable::taal_diary, 2}, "Diary", "Dagboek"},
           Row{{TextTable::taal_print, 0},
               "Kelvora FOOD Summary of this day",
               "Kelvora FOOD Daguittreksel"},
           Row{{TextTable::taal_print, 35}, "Morning:", "Ochtend:"},
           Row{{TextTable::taal_print, 37}, "Afternoon:", "Middag:"},
           Row{{TextTable::taal_print, 38}, "Evening:", "Avond:"},
           Row{{TextTable::taal_print, 41},
               "Kelvora FOOD couldn't find a printer.",
               "Kelvora FOOD kan geen printer vinden voor deze functie."},
           Row{{TextTable::taal_print, 42},
               "Select a printer in the settings screen and try again.",
               "Selecteer een printer in het instellingenscherm en probeer opnieuw."},
           Row{{TextTable::taal_export, 12}, "Back to index", "terug naar index"},
           Row{{TextTable::taal_export, 24},
               "Total nutritional values:",
               "Totale voedingswaarden:"},
           Row{{TextTable::taal_export, 25}, "This page is created on", "Deze pagina is op"},
           Row{{TextTable::taal_export, 32}, "Kelvora FOOD summary", "Kelvora FOOD uittreksel"},
           Row{{TextTable::taal_export_form, 27},
               "You did not select any days!",
               "Er zijn geen dagen geselecteerd om te exporteren."},
           Row{{TextTable::taal_export_form, 29},
               "You have selected more than 92 days.",
               "Je hebt meer dan 92 dagen geselecteerd om te exporteren."},
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
      // The third of them is a mark of the food server.
      EXPECT_EQ((Text(row.english) + Text(row.dutch)).find('\xBC'), Text::npos) << row.english;
    }
  }
}

}  // namespace
}  // namespace kelvora
