// What an input error at any call does to each reader: nothing is taken for read that was not, and
// at most one box with the reader's own code is shown.
#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <limits>
#include <sys/stat.h>

#include "language/language_file.h"
#include "storage/day_file.h"
#include "storage/folders.h"
#include "storage/food_files.h"
#include "storage/profile_file.h"
#include "storage/record_file.h"
#include "storage/settings_file.h"
#include "support/file_faults.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

constexpr std::size_t kNoCompanion = std::numeric_limits<std::size_t>::max();
constexpr std::string_view kDay = "05032004140709.kvf";

struct Reader {
  const char* name;
  std::string_view box_ends_with;
  // The call from which on it reads what stands beside the file, and goes on without it.
  std::size_t companion_from;
  void (*read)(Program&);
  // What the program has of the files, "" for nothing.
  Text (*held)(const Program&);
};

void PrintTo(const Reader& reader, std::ostream* out) {
  *out << reader.name;
}

Text Joined(const TextList& list) {
  Text lines;
  for (const std::string_view line : list) lines.append(line) += '|';
  return lines;
}

const std::array kReaders = {
    Reader{"Day", "#FF1-8", kNoCompanion, [](Program& p) { LoadDay(p, p.paths.FilesPath, kDay); },
           [](const Program& p) { return p.store.KV_bestand + p.store.txt_notities; }},
    Reader{"Profile", "#FF1-6", kNoCompanion,
           [](Program& p) { Load_Profile(p, ProfileFile(p.paths, "Anna")); },
           [](const Program& p) { return p.profile[ProfileField::city]; }},
    Reader{"Custom", "#FF1-2", kNoCompanion,
           [](Program& p) { Load_Custom(p, CustomFile(p.paths, "Anna")); },
           [](const Program& p) { return Joined(p.store.Custom_list); }},
    Reader{"Favorites", "#FF1-3", kNoCompanion,
           [](Program& p) { Load_Favorites(p, FavoritesFile(p.paths, "Anna")); },
           [](const Program& p) { return Joined(p.store.Favorites_list); }},
    Reader{"Settings", "", kNoCompanion,
           [](Program& p) {
             if (!ReadSettingsFile(p)) p.settings = {};
           },
           [](const Program& p) { return p.settings[Setting::txt_map]; }},
    Reader{"Language", "could not be opened", 4,
           [](Program& p) { Load_Language_File(p, p.paths.LanguagePath + "Mine.lsf"); },
           [](const Program& p) {
             return p.texts[{TextTable::taal_main, 1}];
           }},
};

class FailingRead : public testing::TestWithParam<Reader> {
 protected:
  FailingRead() {
    test.OpenDay("Anna", kDay);
    Program& program = test.program;
    program.store.txt_notities = "a note";
    program.store.Custom_list.Add("soup");
    program.store.Favorites_list.Add("apple");
    program.profile[ProfileField::city] = "Leiden";
    program.settings[Setting::txt_map] = "/elsewhere";
    EXPECT_TRUE(SaveDay(program));
    EXPECT_TRUE(Save_Profile(program, ProfileFile(program.paths, "Anna")));
    EXPECT_TRUE(Save_Custom(program, CustomFile(program.paths, "Anna")));
    EXPECT_TRUE(Save_Favorites(program, FavoritesFile(program.paths, "Anna")));
    EXPECT_TRUE(Save_Settings(program));
    Save_Language_File(program, program.paths.LanguagePath + "Mine.lsf");
    Empty();
  }
  // As at the start, with nothing read.
  void Empty() {
    Program& program = test.program;
    CloseDay(program);
    program.opened_day.reset();
    program.kept = {};
    program.store.Custom_list.Clear();
    program.store.Favorites_list.Clear();
    program.profile = {};
    program.settings = {};
    program.texts = {};
    test.boxes.shown.clear();
  }
  TestProgram test;
};

TEST_P(FailingRead, TakesNothingAndShowsNoMoreThanOneBox) {
  std::size_t call = 0;
  for (bool failed = true; failed; call += failed ? 1 : 0) {
    Empty();
    {
      const InjectedFault fault({.reading_call_fails = call});
      GetParam().read(test.program);
      failed = InjectedFault::ReadingCallFailed();
    }
    EXPECT_EQ(GetParam().held(test.program).empty(), failed && call < GetParam().companion_from)
        << call;
    ASSERT_LE(test.boxes.shown.size(), 1u) << call;
    for (const Box& box : test.boxes.shown) {
      EXPECT_TRUE(failed && box.text.ends_with(GetParam().box_ends_with)) << call << box.text;
    }
  }
  EXPECT_GE(call, 3u);
  // The same file is read as soon as the disk gives it again.
  EXPECT_FALSE(GetParam().held(test.program).empty());
}

INSTANTIATE_TEST_SUITE_P(Readers, FailingRead, testing::ValuesIn(kReaders),
                         [](const auto& info) { return std::string(info.param.name); });

class FailingCategories : public testing::Test {
 protected:
  FailingCategories() {
    std::filesystem::create_directories(folder);
    for (const char* name : {"Bread.dat", "Fruit.dat", "Soups.dat"}) {
      WriteRecord(folder + name, Rec_ListLine{{Packed("a food|~")}});
    }
  }
  [[nodiscard]] Text Foods() const { return Joined(test.program.store.Default_list); }

  TestProgram test;
  const std::string folder = test.program.paths.ProgramPath + "Databases/";
};

TEST_F(FailingCategories, AnInputErrorAtAnyCallHidesNoOtherCategoryAndIsNamedOnce) {
  Load_Databases(test.program);
  const Text all = Foods();
  std::size_t calls_on_files = 0;
  std::size_t call = 0;
  for (bool failed = true; failed; ++call) {
    test.boxes.shown.clear();
    {
      const InjectedFault fault({.reading_call_fails = call});
      Load_Databases(test.program);
      failed = InjectedFault::ReadingCallFailed();
    }
    if (!failed) break;
    ASSERT_EQ(test.boxes.shown.size(), 1u) << call;
    const Text& text = test.boxes.shown[0].text;
    EXPECT_TRUE(text.ends_with("\nBrelux CODE:#FF1-1"));
    if (text.find("Input/output error: Databases") != Text::npos) continue;
    ++calls_on_files;
    std::size_t named = 0;
    for (const char* name : {"Bread.dat", "Fruit.dat", "Soups.dat"}) {
      const bool unread = text.find("Input/output error: " + Text(name)) != Text::npos;
      named += unread ? 1 : 0;
      EXPECT_EQ(Foods().find(Text(name)) == Text::npos, unread) << call << text;
    }
    EXPECT_EQ(named, 1u) << call << text;
  }
  EXPECT_GE(calls_on_files, 9u);  // opening, state and reading of three files
  EXPECT_EQ(Foods(), all);
}

TEST_F(FailingCategories, WhatIsNoFileOrCannotBeReadIsPassedOverAndNamedInOneBox) {
  ASSERT_EQ(mkfifo((folder + "A pipe.dat").c_str(), 0600), 0);
  std::filesystem::create_symlink("nothing", folder + "Dangling.dat");
  WriteFileAnew(folder + "Empty.dat", "");
  WriteFileAnew(folder + "Odd.dat", std::string(4, '\xFF'));
  // "Супы", which text can't hold.
  const std::string soups = folder + "\xD0\xA1\xD1\x83\xD0\xBF\xD1\x8B.dat";
  WriteRecord(soups, Rec_ListLine{{Packed("borscht|~")}});
  WriteRecord(folder + "Zuivel.DAT", Rec_ListLine{{Packed("milk|~")}});
  Load_Databases(test.program);
  EXPECT_EQ(Foods(), Packed("borscht|????.dat|") + "|" + Packed("a food|Bread.dat|") + "|" +
                         Packed("a food|Fruit.dat|") + "|" + Packed("a food|Soups.dat|") + "|" +
                         Packed("milk|Zuivel.dat|") + "|");
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].text,
            "An error occured.\n\nInvalid argument: A pipe.dat\n"
            "No such file or directory: Dangling.dat\nBrelux CODE:#FF1-1");
  EXPECT_FALSE(test.pointer.waiting);
}

TEST_F(FailingCategories, AHundredOfThemStillFitIntoABox) {
  for (int i = 0; i < 100; ++i) {
    std::filesystem::create_symlink("nothing", folder + std::to_string(i) + ".dat");
  }
  Load_Databases(test.program);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  const Text& text = test.boxes.shown[0].text;
  EXPECT_TRUE(text.starts_with("An error occured.\n\nNo such file or directory: 0.dat, "));
  EXPECT_TRUE(text.ends_with(".dat, ...\nBrelux CODE:#FF1-1"));
  EXPECT_EQ(std::ranges::count(text, ','), 10);  // behind ten names
  EXPECT_EQ(test.program.store.Default_list.Count(), 3u);
}

}  // namespace
}  // namespace kelvora
