// Files of many megabytes: each reader takes them whole, and in no more memory than a few times
// their size. The system itself holds the limit.
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include "language/diary_texts.h"
#include "language/language_file.h"
#include "storage/day_file.h"
#include "storage/folders.h"
#include "storage/food_files.h"
#include "storage/profile_file.h"
#include "storage/record_file.h"
#include "storage/settings_file.h"
#include "support/sanitizers.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

constexpr std::size_t kMegabyte = 1 << 20;
// Above what the library keeps for later use when it is given back.
constexpr std::size_t kHuge = 40 * kMegabyte;

// No more memory than this can be had above what is in use.
class MemoryLimit {
 public:
  explicit MemoryLimit(std::size_t bytes) {
    getrlimit(RLIMIT_AS, &before_);
    std::size_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    const rlimit tight{pages * static_cast<std::size_t>(sysconf(_SC_PAGESIZE)) + bytes,
                       before_.rlim_max};
    setrlimit(RLIMIT_AS, &tight);
  }
  ~MemoryLimit() { setrlimit(RLIMIT_AS, &before_); }
  MemoryLimit(const MemoryLimit&) = delete;
  MemoryLimit& operator=(const MemoryLimit&) = delete;

 private:
  rlimit before_{};
};

struct Reader {
  const char* name;
  // Writes a file whose one huge text has that many bytes.
  void (*write)(Program&, const Text& huge);
  void (*read)(Program&);
  std::size_t (*held)(const Program&);
  const char* refusal = "Cannot allocate memory";
};

void PrintTo(const Reader& reader, std::ostream* out) {
  *out << reader.name;
}

std::string DayPath(const Program& program) {
  return program.paths.FilesPath + "05032004140709.kvf";
}

template <class Field>
void WriteRecordWith(const std::string& path, Field field, const Text& huge, auto record) {
  record[field] = huge;
  WriteRecord(path, record);
}

std::string CategoryPath(const Program& program) {
  return program.paths.ProgramPath + "Databases/Fruit.dat";
}

std::string LanguageFile(const Program& program) {
  return program.paths.LanguagePath + "Large.lsf";
}

const std::array kReaders = {
    Reader{"DayWithAWeekday",
           [](Program& p, const Text& huge) {
             Text header;
             for (std::size_t row = 0; row < HeaderRow::kWeekday; ++row) header += kLineEnd;
             header.append(huge) += kLineEnd;
             WriteRecordWith(DayPath(p), DayFileField::Header, header, Rec_DayFile());
           },
           [](Program& p) { LoadDay(p, p.paths.FilesPath, "05032004140709.kvf"); },
           [](const Program& p) { return p.store.L_gegevens[HeaderRow::kWeekday].size(); }},
    Reader{"DayWithADiary",
           [](Program& p, const Text& huge) {
             WriteRecordWith(DayPath(p), DayFileField::Notes, huge, Rec_DayFile());
           },
           [](Program& p) { LoadDay(p, p.paths.FilesPath, "05032004140709.kvf"); },
           [](const Program& p) { return p.store.txt_notities.size(); }},
    Reader{"Profile",
           [](Program& p, const Text& huge) {
             WriteRecordWith(ProfileFile(p.paths, "Anna"), ProfileField::remark, huge,
                             Rec_Profile());
           },
           [](Program& p) { Load_Profile(p, ProfileFile(p.paths, "Anna")); },
           [](const Program& p) { return p.profile[ProfileField::remark].size(); }},
    Reader{"OwnList",
           [](Program& p, const Text& huge) {
             WriteRecord(CustomFile(p.paths, "Anna"), Rec_ListLine{{huge + kLineEnd}});
           },
           [](Program& p) { Load_Custom(p, CustomFile(p.paths, "Anna")); },
           [](const Program& p) { return p.store.Custom_list[0].size(); }},
    Reader{"Category",
           [](Program& p, const Text& huge) {
             WriteRecord(CategoryPath(p), Rec_ListLine{{huge + kLineEnd}});
           },
           &Load_Databases,
           [](const Program& p) {
             return p.store.Default_list[0].size() - std::string_view("Fruit.dat\xBD").size();
           }},
    Reader{"Settings",
           [](Program& p, const Text& huge) {
             WriteRecordWith(p.paths.SettingsFile, Setting::txt_map, huge, Rec_Settings());
           },
           [](Program& p) { EXPECT_TRUE(ReadSettingsFile(p)); },
           [](const Program& p) { return p.settings[Setting::txt_map].size(); }},
    Reader{"Language",
           [](Program& p, const Text& huge) {
             const Text entries = Text(diary_text::kTitle.index, kLineEnd) + huge;
             WriteRecordWith(LanguageFile(p), TextTable::taal_diary, entries + kLineEnd,
                             JoinTables(p.texts));
           },
           [](Program& p) { Load_Language_File(p, LanguageFile(p)); },
           [](const Program& p) { return p.texts[diary_text::kTitle].size(); },
           "The language file could not be opened"},
};

class LargeFile : public testing::TestWithParam<Reader> {};

TEST_P(LargeFile, IsTakenWholeInThreeTimesItsSize) {
  if (UnderSanitizers()) GTEST_SKIP() << "these need memory for their own bookkeeping";
  TestProgram test;
  Program& program = test.program;
  test.OpenDay("Anna");
  CloseDay(program);
  std::filesystem::create_directories(program.paths.ProgramPath + "Databases");
  std::filesystem::create_directories(program.paths.LanguagePath);
  GetParam().write(program, Text(kHuge, 'x'));
  {
    const MemoryLimit limit(3 * kHuge + kMegabyte);
    GetParam().read(program);
  }
  EXPECT_TRUE(test.boxes.shown.empty()) << test.boxes.shown[0].text;
  EXPECT_EQ(GetParam().held(program), kHuge);
}

TEST_P(LargeFile, ThatMemoryCannotHoldIsAFailureLikeAnyOther) {
  if (UnderSanitizers()) GTEST_SKIP() << "these end the process instead";
  TestProgram test;
  Program& program = test.program;
  test.OpenDay("Anna");
  CloseDay(program);
  std::filesystem::create_directories(program.paths.ProgramPath + "Databases");
  std::filesystem::create_directories(program.paths.LanguagePath);
  GetParam().write(program, Text(kHuge, 'x'));
  if (GetParam().name == std::string_view("Settings")) {  // new ones are made, without a box
    const MemoryLimit limit(kHuge / 2);
    EXPECT_FALSE(ReadSettingsFile(program));
    return;
  }
  {
    const MemoryLimit limit(kHuge / 2);
    GetParam().read(program);
  }
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_NE(test.boxes.shown[0].text.find(GetParam().refusal), Text::npos);
}

INSTANTIATE_TEST_SUITE_P(Readers, LargeFile, testing::ValuesIn(kReaders),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace kelvora
