// Files that are not as this program writes them: each reader gives its own result, never
// crashes or waits, and takes no more memory than the file has bytes.
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "nutrition/totals.h"
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

constexpr std::string_view kDay = "05032004140709.kvf";

// One kind of file: where it lies, how it is read, and what shows that nothing was taken over.
struct Reader {
  const char* name;
  std::string_view code;
  std::size_t strings;
  std::string (*path)(const Program&);
  void (*load)(Program&);
  // The first two strings or lines that the program holds of it, with "|" between.
  Text (*held)(const Program&);
};

void PrintTo(const Reader& reader, std::ostream* out) {
  *out << reader.name;
}

Text HeldLines(const TextList& list) {
  return Text(list[0]) + "|" + Text(list[1]);
}

const std::array kReaders = {
    Reader{"Day", "#FF1-8", 6,
           [](const Program& p) { return p.paths.FilesPath + std::string(kDay); },
           [](Program& p) { LoadDay(p, p.paths.FilesPath, kDay); },
           [](const Program& p) { return p.store.txt_trenddata + "|" + p.store.txt_notities; }},
    Reader{"Profile", "#FF1-6", 26, [](const Program& p) { return ProfileFile(p.paths, "Anna"); },
           [](Program& p) { Load_Profile(p, ProfileFile(p.paths, "Anna")); },
           [](const Program& p) { return p.profile.strings[0] + "|" + p.profile.strings[1]; }},
    Reader{"Custom", "#FF1-2", 1, [](const Program& p) { return CustomFile(p.paths, "Anna"); },
           [](Program& p) { Load_Custom(p, CustomFile(p.paths, "Anna")); },
           [](const Program& p) { return HeldLines(p.store.Custom_list); }},
    Reader{"Favorites", "#FF1-3", 1,
           [](const Program& p) { return FavoritesFile(p.paths, "Anna"); },
           [](Program& p) { Load_Favorites(p, FavoritesFile(p.paths, "Anna")); },
           [](const Program& p) { return HeldLines(p.store.Favorites_list); }},
    Reader{"Category", "#FF1-1", 1,
           [](const Program& p) { return p.paths.ProgramPath + "Databases/Fruit.dat"; },
           &Load_Databases, [](const Program& p) { return HeldLines(p.store.Default_list); }},
};

class BadFile : public testing::TestWithParam<Reader> {
 protected:
  BadFile() {
    test.OpenDay("Anna", kDay);
    CloseDay(test.program);
    std::filesystem::create_directories(test.program.paths.ProgramPath + "Databases");
  }

  [[nodiscard]] std::string Path() const { return GetParam().path(test.program); }
  [[nodiscard]] Text Held() const { return GetParam().held(test.program); }
  [[nodiscard]] bool IsList() const { return GetParam().strings == 1; }
  void Load() {
    test.boxes.shown.clear();
    GetParam().load(test.program);
  }
  void LoadBytes(std::string_view bytes) {
    WriteFileAnew(Path(), bytes);
    Load();
  }
  // A whole file whose first two strings, or lines, are "first" and "second".
  [[nodiscard]] std::string WholeFile() const {
    std::vector<Text> strings(GetParam().strings);
    strings[0] = IsList() ? Packed("first~second~") : Text("first");
    if (!IsList()) strings[1] = "second";
    return EncodeRecord(strings);
  }
  [[nodiscard]] Text HeldOfWholeFile() const {
    return GetParam().name == std::string_view("Category")
               ? Packed("first") + "Fruit.dat\xBD|second" + "Fruit.dat\xBD"
               : "first|second";
  }
  [[nodiscard]] bool ShowedItsCode() const {
    return test.boxes.shown.size() == 1 &&
           test.boxes.shown[0].text.ends_with("Brelux CODE:" + Text(GetParam().code));
  }

  TestProgram test;
};

TEST_P(BadFile, AWholeFileIsTaken) {
  LoadBytes(WholeFile());
  EXPECT_EQ(Held(), HeldOfWholeFile());
  EXPECT_TRUE(test.boxes.shown.empty());
}

// A pipe is refused, not waited for; the databases speak of it, since they list it as a file.
TEST_P(BadFile, AMissingFileAFolderAndAPipeChangeNothing) {
  LoadBytes(WholeFile());
  CloseDay(test.program);
  const Text before = GetParam().name == std::string_view("Category") ? Text("|") : Held();
  std::filesystem::remove(Path());
  Load();
  EXPECT_EQ(Held(), before);
  EXPECT_TRUE(test.boxes.shown.empty());
  std::filesystem::create_directory(Path());
  Load();
  EXPECT_EQ(Held(), before);
  EXPECT_TRUE(test.boxes.shown.empty());
  std::filesystem::remove(Path());
  ASSERT_EQ(mkfifo(Path().c_str(), 0600), 0);
  Load();
  EXPECT_EQ(Held(), before);
  EXPECT_EQ(ShowedItsCode(), GetParam().name == std::string_view("Category"));
}

TEST_P(BadFile, AnUnreadableFileChangesNothingAndOnlyTheDatabasesSpeakOfIt) {
  WriteFileAnew(Path(), WholeFile());
  for (auto folder = std::filesystem::path(test.folders.home.Path());
       const auto& part : std::filesystem::relative(Path(), folder)) {
    std::filesystem::permissions(folder, std::filesystem::perms::all);
    folder /= part;
  }
  std::filesystem::permissions(Path(), std::filesystem::perms::none);
  {
    const AsNobody nobody;
    Load();
  }
  EXPECT_EQ(Held(), "|");
  EXPECT_EQ(ShowedItsCode(), GetParam().name == std::string_view("Category"))
      << (test.boxes.shown.empty() ? "no box" : test.boxes.shown[0].text);
}

// Lists become empty; a day falls back on the one that was opened before, or fails without; a
// profile leaves the working copy.
TEST_P(BadFile, NoRecordAtAll) {
  const bool is_day = GetParam().name == std::string_view("Day");
  for (const std::string_view bytes :
       {std::string_view("\0\0\0\0", 4), std::string_view("\0\0\0\0\5\0wrong", 11),
        std::string_view("\xFF\xFF\xFF\xFF\5\0wrong", 11),
        std::string_view("\0\0\0\x80\5\0wrong", 11)}) {
    test.program.opened_day.reset();
    test.program.profile = {};
    LoadBytes(bytes);
    EXPECT_EQ(Held(), "|");
    EXPECT_EQ(ShowedItsCode(), is_day);
    EXPECT_EQ(test.boxes.shown.size(), is_day ? 1u : 0u);
    EXPECT_FALSE(test.program.store.DayIsOpen());

    LoadBytes(WholeFile());
    LoadBytes(bytes);
    EXPECT_EQ(Held(), IsList() ? "|" : "first|second");
    EXPECT_TRUE(test.boxes.shown.empty());
    CloseDay(test.program);
  }
}

TEST_P(BadFile, ACountOfAnyOtherSizeReadsTheFirstRecordOnly) {
  std::string whole = WholeFile();
  const std::string trailing = whole.substr(4);
  for (const std::string_view count :
       {std::string_view("\1\0\0\0", 4), std::string_view("\2\0\0\0", 4),
        std::string_view("\xFF\xFF\xFF\x7F", 4)}) {
    whole.replace(0, 4, count);
    LoadBytes(whole);
    EXPECT_EQ(Held(), HeldOfWholeFile());
    LoadBytes(whole + trailing + trailing);
    EXPECT_EQ(Held(), HeldOfWholeFile());
    LoadBytes(whole + "garbage");
    EXPECT_EQ(Held(), HeldOfWholeFile());
    EXPECT_TRUE(test.boxes.shown.empty());
  }
}

TEST_P(BadFile, CutAtAnyByteKeepsWhatIsThere) {
  const std::string whole = WholeFile();
  // The block of a list begins at byte 6 with its lines; a record has a length before each string.
  const std::size_t first_ends = IsList() ? 6 + 6 : 6 + 5;
  const std::size_t second_ends = IsList() ? 6 + 13 : 13 + 6;
  for (std::size_t size = 0; size < whole.size(); ++size) {
    LoadBytes(std::string_view(whole).substr(0, size));
    const Text held = Held();
    EXPECT_EQ(held.starts_with("first"), size >= first_ends) << size << held;
    EXPECT_EQ(held.find("second") != Text::npos, size >= second_ends) << size << held;
    EXPECT_TRUE(test.boxes.shown.empty()) << size;
  }
}

TEST_P(BadFile, LengthsBeyondTheEndTakeTheBytesThatAreThere) {
  const std::string_view text = "first\xBEsecond\xBE";
  for (const std::string_view length :
       {std::string_view("\xFE\xFF", 2), std::string_view("\xFF\xFF\xFF\xFF\xFF\xFF", 6),
        std::string_view("\xFF\xFF\0\0\1\0", 6)}) {
    LoadBytes(std::string("\1\0\0\0", 4).append(length).append(text));
    EXPECT_TRUE(Held().starts_with("first"));
    EXPECT_TRUE(test.boxes.shown.empty());
  }
}

TEST_P(BadFile, AnyByteInAnyPlaceDoesNoHarm) {
  const std::string whole = WholeFile();
  for (std::size_t at = 0; at < whole.size(); ++at) {
    for (const char byte : {'\0', '\1', '\x7F', '\x80', '\xBD', '\xBE', '\xFF'}) {
      std::string bytes = whole;
      bytes[at] = byte;
      LoadBytes(bytes);
      EXPECT_LE(Held().size(), bytes.size() + 32);
      EXPECT_LE(test.boxes.shown.size(), 1u);
      Refresh_Totalen(test.program);
      CloseDay(test.program);
    }
  }
}

TEST_P(BadFile, EveryByteValueIsAllowedInAText) {
  for (int code = 0; code < 256; ++code) {
    const char byte = static_cast<char>(code);
    if (IsList() && byte == kLineEnd) continue;
    std::vector<Text> strings(GetParam().strings);
    strings[0] = IsList() ? Text{byte, kLineEnd} : Text{byte};
    LoadBytes(EncodeRecord(strings));
    EXPECT_TRUE(Held().starts_with(byte)) << code;
    EXPECT_TRUE(test.boxes.shown.empty());
    CloseDay(test.program);
  }
}

INSTANTIATE_TEST_SUITE_P(Readers, BadFile, testing::ValuesIn(kReaders),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(BadRecord, NoCountAndNoLengthMakesMoreMemoryThanTheFileHas) {
  for (const std::string_view bytes :
       {std::string_view("\xFF\xFF\xFF\x7F\xFF\xFF\xFF\xFF\xFF\xFF", 10),
        std::string_view("\xFF\xFF\xFF\x7F\xFE\xFF"
                         "ab",
                         8)}) {
    const auto record = DecodeRecord<Rec_Settings>(bytes);
    ASSERT_TRUE(record.has_value());
    std::size_t held = 0;
    for (const Text& string : record->strings) {
      held += string.size();
      EXPECT_LE(string.capacity(), Text().capacity());
    }
    EXPECT_LE(held, bytes.size());
  }
}

}  // namespace
}  // namespace kelvora
