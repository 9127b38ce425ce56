#include "storage/record_file.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <random>
#include <sys/resource.h>
#include <system_error>

#include "support/test_program.h"

namespace kelvora {
namespace {

using Two = Record<std::size_t, 2>;

std::string Bytes(std::initializer_list<int> bytes) {
  std::string out;
  for (const int byte : bytes) out += static_cast<char>(byte);
  return out;
}

TEST(RecordFile, IsACountOfOneAndLengthPrefixedStrings) {
  EXPECT_EQ(EncodeRecord(Two{{"ab", ""}}.strings), Bytes({1, 0, 0, 0, 2, 0, 'a', 'b', 0, 0}));
}

TEST(RecordFile, StringsFrom65535BytesOnHaveALongLength) {
  const Text longest_short(65534, 'x');
  EXPECT_EQ(EncodeRecord(Two{{longest_short, ""}}.strings),
            Bytes({1, 0, 0, 0, 0xFE, 0xFF}) + longest_short + Bytes({0, 0}));
  const Text shortest_long(65535, 'y');
  EXPECT_EQ(EncodeRecord(Two{{shortest_long, "z"}}.strings),
            Bytes({1, 0, 0, 0, 0xFF, 0xFF, 0xFF, 0xFF, 0, 0}) + shortest_long + Bytes({1, 0, 'z'}));
  Two back;
  ASSERT_TRUE(DecodeFirstRecord(EncodeRecord(Two{{shortest_long, "z"}}.strings), back.strings));
  EXPECT_EQ(back, (Two{{shortest_long, "z"}}));
}

TEST(RecordFile, AFileCutAnywhereYieldsWhatIsThere) {
  const std::string whole = EncodeRecord(Two{{"abc", "defg"}}.strings);
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    Two record;
    const bool read = DecodeFirstRecord(whole.substr(0, length), record.strings);
    EXPECT_TRUE(read) << length;
    const std::size_t first = length < 6 ? 0 : std::min<std::size_t>(length - 6, 3);
    const std::size_t second = length < 11 ? 0 : length - 11;
    EXPECT_EQ(record.strings[0], Text("abc").substr(0, first)) << length;
    EXPECT_EQ(record.strings[1], Text("defg").substr(0, second)) << length;
  }
}

TEST(RecordFile, CountsOfZeroAndBelowHoldNoRecordAndHugeOnesAreNoReasonToAllocate) {
  Two record{{"kept", "kept"}};
  EXPECT_FALSE(DecodeFirstRecord(Bytes({0, 0, 0, 0, 1, 0, 'a'}), record.strings));
  EXPECT_FALSE(DecodeFirstRecord(Bytes({0xFF, 0xFF, 0xFF, 0xFF, 1, 0, 'a'}), record.strings));
  EXPECT_EQ(record, (Two{{"kept", "kept"}}));
  EXPECT_TRUE(DecodeFirstRecord(Bytes({0xFF, 0xFF, 0xFF, 0x7F, 1, 0, 'a'}), record.strings));
  EXPECT_EQ(record, (Two{{"a", ""}}));
}

TEST(RecordFile, ALengthBeyondTheEndYieldsTheBytesThatAreThere) {
  Two record;
  EXPECT_TRUE(DecodeFirstRecord(Bytes({1, 0, 0, 0, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 'a', 'b'}),
                                record.strings));
  EXPECT_EQ(record, (Two{{"ab", ""}}));
}

TEST(RecordFile, AnyRecordSurvivesTheFile) {
  TemporaryFolder folder;
  std::mt19937 random(3);
  for (int round = 0; round < 50; ++round) {
    Two record;
    for (Text& string : record.strings) {
      string.resize(round % 5 == 0 ? random() % 70000 : random() % 300);
      for (char& byte : string) byte = static_cast<char>(random());
    }
    WriteRecord(folder.Path("any"), record);
    EXPECT_EQ(ReadFirstRecord<Two>(folder.Path("any")), record);
  }
}

TEST(RecordFile, ALongerFileLeavesNoTailWhenItIsWrittenAnew) {
  TemporaryFolder folder;
  WriteFileAnew(folder.Path("file"), std::string(1000, 'x'));
  WriteFileAnew(folder.Path("file"), "short");
  EXPECT_EQ(ReadFile(folder.Path("file")), "short");
}

TEST(RecordFile, MissingFilesAndFoldersInTheirPlaceThrowTheSystemsError) {
  TemporaryFolder folder;
  std::filesystem::create_directory(folder.Path("folder"));
  EXPECT_THROW((void)ReadFile(folder.Path("missing")), std::system_error);
  EXPECT_THROW((void)ReadFile(folder.Path("folder")), std::system_error);
  EXPECT_THROW(WriteFileAnew(folder.Path("folder"), "x"), std::system_error);
  EXPECT_THROW(WriteFileAnew(folder.Path("no/such/folder"), "x"), std::system_error);
}

// A limit on the size of files is what a full disk is to the writer: the bytes that do not fit
// fail, at the write or at the closing.
TEST(RecordFile, AWriteThatFailsAfterAnyNumberOfBytesIsNoticed) {
  TemporaryFolder folder;
  const std::string bytes(5000, 'x');
  rlimit before{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
  IgnoreFileSignals();
  for (const rlim_t limit : {0u, 1u, 4095u, 4096u, 4097u, 4999u}) {
    const rlimit tight{limit, before.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &tight), 0);
    EXPECT_THROW(WriteFileAnew(folder.Path("file"), bytes), std::system_error) << limit;
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
    WriteFileAnew(folder.Path("file"), bytes);
    EXPECT_EQ(ReadFile(folder.Path("file")), bytes);
  }
}

}  // namespace
}  // namespace kelvora
