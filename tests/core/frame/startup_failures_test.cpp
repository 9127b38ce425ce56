// Starts on a home where something can't be written or is gone: each shows its own box, and the
// program goes on with what is in memory.
#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

#include "core/frame/startup.h"
#include "days/browser.h"
#include "days/day_settings.h"
#include "days/good_form.h"
#include "days/open_day.h"
#include "storage/day_file.h"
#include "storage/folders.h"
#include "storage/record_file.h"
#include "support/file_faults.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

namespace fs = std::filesystem;

// The codes of all boxes so far; a box without one is "-".
std::vector<Text> CodesOf(const RecordingBoxes& boxes) {
  constexpr std::string_view kMark = "Brelux CODE:";
  std::vector<Text> codes;
  for (const Box& box : boxes.shown) {
    const std::size_t at = box.text.find(kMark);
    codes.push_back(at == Text::npos ? "-" : box.text.substr(at + kMark.size()));
  }
  return codes;
}

void WriteSettings(const TestProgram& machine, const std::string& users_folder) {
  const std::string folder = machine.folders.ApplicationData() + "/Brelux";
  fs::create_directories(folder);
  Rec_Settings settings;
  settings[Setting::Combo_taal] = "English.lsf";
  settings[Setting::chk_wiz] = "0";
  settings[Setting::chk_map] = "1";
  settings[Setting::txt_map] = users_folder;
  WriteRecord(folder + "/kvfset.dat", settings);
}

TEST(StartUpFailures, ASettingsFolderThatCannotBeWrittenIsToldAndTheStartGoesOn) {
  TestProgram machine(Machine::bare);
  // A file in the place of the folder stops everybody, whatever their rights.
  fs::create_directories(machine.folders.ApplicationData());
  WriteFileAnew(machine.folders.ApplicationData() + "/Brelux", "no folder");
  StartUp(machine.program);
  // The box of a first run, then the one of the count that could not be saved.
  EXPECT_EQ(CodesOf(machine.boxes), (std::vector<Text>{"-", "#FF1-0"}));
  EXPECT_EQ(machine.core.settings_opened, 1);
  EXPECT_EQ(machine.core.opened, std::vector<WindowId>{WindowId::wizard});
  EXPECT_EQ(machine.program.settings[Setting::StartCount], "1");
}

TEST(StartUpFailures, AnAlternativeUsersFolderThatIsGoneHasNoUsersAndTakesNoDay) {
  TestProgram machine(Machine::bare);
  Program& program = machine.program;
  WriteFileAnew(machine.folders.home.Path("stick"), "not mounted");
  WriteSettings(machine, machine.folders.home.Path("stick/users/"));
  StartUp(program);
  EXPECT_TRUE(machine.boxes.shown.empty());
  EXPECT_EQ(program.paths.UsersPath, machine.folders.home.Path("stick/users/"));
  EXPECT_TRUE(ReadUsers(program).users.empty());

  // Making the folders fails, and that shows when the profile is written; no day is begun.
  machine.boxes.shown.clear();
  DayEditing editing = OpenDayEditing(program);
  editing.form = GoodForm();
  EXPECT_FALSE(ConfirmDay(program, editing));
  EXPECT_EQ(CodesOf(machine.boxes), std::vector<Text>{"#FF1-7"});
  EXPECT_FALSE(program.store.DayIsOpen());
  EXPECT_FALSE(program.day.FileChanged);
  EXPECT_TRUE(program.store.L_gegevens.Empty());
}

TEST(StartUpFailures, AnAlternativeUsersFolderThatIsReadOnlyIsReadAndTakesNoDay) {
  TestProgram machine(Machine::bare);
  Program& program = machine.program;
  const std::string users = machine.folders.home.Path("users/");
  WriteSettings(machine, users);
  StartUp(program);
  MakeUserFolders(program.paths, "Anna");
  Rec_Profile profile;
  profile[ProfileField::name] = "Anna";
  WriteRecord(ProfileFile(program.paths, "Anna"), profile);
  for (const std::string& folder :
       {machine.folders.home.Path(), users + "Anna", users + "Anna/Profile", users + "Anna/Files",
        users + "Anna/Databases"}) {
    fs::permissions(folder, fs::perms(0755));
  }
  {
    const AsNobody nobody;
    EXPECT_EQ(ReadUsers(program).users.size(), 1u);
    ChooseUser(program, UserNamed("Anna"));
    DayEditing editing = OpenDayEditing(program);
    editing.form = GoodForm();
    editing.form.pg_0 = "Anna";
    EXPECT_FALSE(ConfirmDay(program, editing));
  }
  EXPECT_EQ(CodesOf(machine.boxes), std::vector<Text>{"#FF1-7"});
  EXPECT_FALSE(program.store.DayIsOpen());
  EXPECT_EQ(program.paths.UserName, "Anna");
  const auto kept = ReadFirstRecord<Rec_Profile>(ProfileFile(program.paths, "Anna"));
  ASSERT_TRUE(kept.has_value());
  EXPECT_EQ(*kept, profile);
}

}  // namespace
}  // namespace kelvora
