#include "storage/profile_file.h"

#include <algorithm>

#include "core/common.h"
#include "storage/record_file.h"

namespace kelvora {
namespace {

// The strings in use; the spare ones of a file stay behind.
Rec_Profile OnlyFieldsInUse(Rec_Profile profile) {
  std::fill(profile.strings.begin() + kProfileFieldsInUse, profile.strings.end(), Text());
  return profile;
}

void UpdateStatusBar(Program& program) {
  if (program.windows.core != nullptr) program.windows.core->UpdateStatusBar();
}

}  // namespace

void Load_Profile(Program& program, const std::string& path) {
  auto file = InputFile::TryOpen(path);
  if (!file) return;
  program.Guard("#FF1-6", [&] {
    // A file that counts no record leaves the working copy of the user before.
    if (const auto record = DecodeRecord<Rec_Profile>(file->ReadAll())) {
      program.last_read.profile = record;
      program.profile = OnlyFieldsInUse(*record);
    } else if (!program.last_read.profile) {
      ThrowNoRecord();
    }
    UpdateStatusBar(program);
  });
}

bool Save_Profile(Program& program, const std::string& path) {
  return program.Guard("#FF1-7", [&] {
    WriteRecord(path, OnlyFieldsInUse(program.profile));
    UpdateStatusBar(program);
  });
}

Rec_Profile DefaultsOfNewUser() {
  Rec_Profile profile;
  profile[ProfileField::type_prioriteit] = "1";
  profile[ProfileField::txt_kj] = "9000";
  profile[ProfileField::txt_kcal] = "2143";
  profile[ProfileField::txt_ovet] = "80";
  profile[ProfileField::txt_vvet] = "27";
  profile[ProfileField::txt_nat] = "1";
  profile[ProfileField::txt_ew] = "60";
  profile[ProfileField::txt_kdr] = "300";
  return profile;
}

}  // namespace kelvora
