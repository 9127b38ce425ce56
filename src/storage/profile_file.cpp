#include "storage/profile_file.h"

#include <algorithm>

#include "core/common.h"
#include "storage/kept_files.h"

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
  KeptFiles& kept = program.kept;
  const auto file = OpenKeptFile(kept.profile, path);
  kept.stored_profile.reset();
  if (!file) return;
  program.Guard("#FF1-6", [&] {
    // A file that counts no record leaves the working copy as it is.
    if (auto record = DecodeRecord<Rec_Profile>(file->ReadAll())) {
      program.profile = OnlyFieldsInUse(*std::move(record));
      kept.stored_profile = program.profile;
    }
    MarkRead(kept.profile);
    UpdateStatusBar(program);
  });
}

bool Save_Profile(Program& program, const std::string& path) {
  KeptFiles& kept = program.kept;
  const Rec_Profile record = OnlyFieldsInUse(program.profile);
  if (!WriteKeptFile(program, kept.profile, path, "#FF1-7", record.strings)) return false;
  kept.stored_profile = record;
  UpdateStatusBar(program);
  return true;
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
