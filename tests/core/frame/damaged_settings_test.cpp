// Starts on a settings file that is damaged in every way there is: each comes to its end, shows the
// box of a first run or none, and leaves a whole file behind.
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "core/frame/startup.h"
#include "storage/record_file.h"
#include "storage/settings_file.h"
#include "support/file_faults.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

namespace fs = std::filesystem;
using std::string_literals::operator""s;

// A machine whose settings folder is there.
struct Start {
  Start() { fs::create_directories(machine.folders.ApplicationData() + "/Brelux"); }
  [[nodiscard]] std::string Path() const {
    return machine.folders.ApplicationData() + "/Brelux/kvfset.dat";
  }
  // Starts and looks at what must hold whatever the file was like.
  void Run(bool first_run, std::string_view starts) {
    ASSERT_NO_THROW(StartUp(machine.program));
    const Rec_Settings& settings = machine.program.settings;
    EXPECT_EQ(machine.core.settings_opened, first_run ? 1 : 0);
    EXPECT_EQ(machine.boxes.shown.size(), first_run ? 1u : 0u);
    EXPECT_EQ(settings[Setting::StartCount], starts);
    EXPECT_EQ(settings[Setting::Combo_taal], "default.lsf");
    EXPECT_EQ(machine.program.paths.UsersPath,
              machine.folders.Documents() + "/Kelvora FOOD/My Users/");
    EXPECT_EQ(ReadFirstRecord<Rec_Settings>(Path()), settings);
    for (const Setting setting : {Setting::chk_help, Setting::chk_internet, Setting::opt_gramoz}) {
      EXPECT_FALSE(settings[setting].empty());
    }
  }
  TestProgram machine{Machine::bare};
};

Rec_Settings GoodSettings() {
  Rec_Settings settings;
  settings[Setting::Combo_taal] = "default.lsf";
  settings[Setting::chk_wiz] = "0";
  settings[Setting::StartCount] = "11";
  settings[Setting::opt_system] = "2";
  settings[Setting::chk_help] = "0";
  return settings;
}

// A count of records in front of good settings.
std::string WithCount(const std::string& count) {
  return count + EncodeRecord(GoodSettings().strings).substr(4);
}

struct Form {
  const char* name;
  std::string bytes;
  bool first_run;
  std::string_view starts;
};

TEST(DamagedSettings, EachContentComesToItsStart) {
  for (const Form& form : {
           Form{"a count of 0", WithCount("\0\0\0\0"s), true, "1"},
           Form{"a count of -1", WithCount("\xFF\xFF\xFF\xFF"s), true, "1"},
           Form{"the least count", WithCount("\0\0\0\x80"s), true, "1"},
           Form{"two records", WithCount("\2\0\0\0"s), false, "12"},
           Form{"the largest count", WithCount("\xFF\xFF\xFF\x7F"s), false, "12"},
           Form{"a record with bytes behind it", WithCount("\1\0\0\0"s) + "more", false, "12"},
           // Each of the 51 lengths reaches beyond the end of the file.
           Form{"lengths of 0xFFFE", "\1\0\0\0"s + std::string(200, '\xFE'), false, "1"},
           Form{"a long length beyond the end", "\1\0\0\0\xFF\xFF\xFF\xFF\xFF\xFF"s, false, "1"},
           Form{"zeros", std::string(4000, '\0'), true, "1"},
           Form{"a text", "This is a letter to my aunt.\r\nDear aunt,\r\n", false, "1"},
           Form{"an HTML page", "<!DOCTYPE html>\n<html></html>\n", false, "1"},
       }) {
    SCOPED_TRACE(form.name);
    Start start;
    WriteFileAnew(start.Path(), form.bytes);
    start.Run(form.first_run, form.starts);
  }
}

// From the fourth byte on a cut file has a record, whose missing strings are empty and get their
// defaults. StartCount is complete with byte 46: the count, 13 for the language, 3 for the wizard,
// eleven empty strings of 2 (chk_profiel to index 12), then the length 2 and the digits 2.
TEST(DamagedSettings, AFileCutAtEachByteComesToItsStart) {
  const std::string whole = EncodeRecord(GoodSettings().strings);
  constexpr std::size_t kCountBegins = 4 + 13 + 3 + 11 * 2 + 2;
  for (std::size_t size = 4; size < whole.size(); ++size) {
    SCOPED_TRACE(size);
    Start start;
    WriteFileAnew(start.Path(), std::string_view(whole).substr(0, size));
    start.Run(false, size <= kCountBegins ? "1" : size == kCountBegins + 1 ? "2" : "12");
    EXPECT_EQ(start.machine.program.settings[Setting::chk_wiz], size < 4 + 13 + 3 ? "1" : "0");
  }
}

TEST(DamagedSettings, ACountOfStartsThatIsNoneBeginsAnew) {
  const std::string digits(400, '9');
  struct Count {
    std::string stored;
    std::string_view next;
  };
  for (const Count& count : {
           Count{digits, "1"},
           Count{"-" + digits, "1"},
           Count{"-3", "1"},
           Count{"starts", "1"},
           Count{"1e400", "2"},  // a number has no exponent here: this is 1
           Count{"7.9", "8"},
           Count{"0", "1"},
           Count{"41", "42"},
           Count{"999999998", "999999999"},
           Count{"999999999", "1"},
       }) {
    SCOPED_TRACE(count.stored);
    Start start;
    Rec_Settings settings = GoodSettings();
    settings[Setting::StartCount] = count.stored;
    WriteRecord(start.Path(), settings);
    start.Run(false, count.next);
  }
}

TEST(DamagedSettings, WhatIsNoFileIsAFirstRunAndStaysWhatItIs) {
  for (const bool pipe : {false, true}) {
    Start start;
    if (pipe) {
      ASSERT_EQ(mkfifo(start.Path().c_str(), 0600), 0);
    } else {
      fs::create_directory(start.Path());
    }
    StartUp(start.machine.program);
    EXPECT_EQ(start.machine.core.settings_opened, 1);
    // The box of a first run, then that of the count, which can't be saved.
    ASSERT_EQ(start.machine.boxes.shown.size(), 2u);
    EXPECT_TRUE(start.machine.boxes.shown[1].text.ends_with("Brelux CODE:#FF1-0"));
    EXPECT_FALSE(fs::is_regular_file(start.Path()));
    EXPECT_EQ(start.machine.program.settings[Setting::StartCount], "1");
  }
}

TEST(DamagedSettings, ALinkThatLeadsNowhereIsAFirstRun) {
  Start start;
  fs::create_symlink(start.Path() + ".gone", start.Path());
  start.Run(true, "1");
}

TEST(DamagedSettings, AFileThatCannotBeReadIsAFirstRunAndStays) {
  Start start;
  Program& program = start.machine.program;
  WriteRecord(start.Path(), GoodSettings());
  fs::permissions(start.Path(), fs::perms::none);
  fs::permissions(start.machine.folders.home.Path(), fs::perms(0755));
  // The documents are that person's own.
  const std::string documents = start.machine.folders.Documents();
  fs::create_directories(documents);
  fs::permissions(documents, fs::perms::all);
  {
    const AsNobody nobody;
    StartUp(program);
  }
  EXPECT_EQ(start.machine.core.settings_opened, 1);
  EXPECT_EQ(program.settings[Setting::chk_help], "1");
  fs::permissions(start.Path(), fs::perms::owner_read);
  EXPECT_EQ(ReadFirstRecord<Rec_Settings>(start.Path()), GoodSettings());
}

}  // namespace
}  // namespace kelvora
