#include "storage/kept_files.h"

#include <array>
#include <filesystem>
#include <system_error>

#include "core/common.h"
#include "language/own_texts.h"
#include "storage/food_files.h"
#include "storage/profile_file.h"

namespace kelvora {
namespace {

struct KeptKind {
  KeptFile KeptFiles::*file;
  OwnText differs;
  OwnText unsaved;
  bool (*save)(Program&, const std::string&);
};

constexpr std::array kKinds = {
    KeptKind{&KeptFiles::profile, OwnText::profile_differs, OwnText::profile_unsaved,
             &Save_Profile},
    KeptKind{&KeptFiles::custom, OwnText::own_list_differs, OwnText::own_list_unsaved,
             &Save_Custom},
    KeptKind{&KeptFiles::favourites, OwnText::favourites_differ, OwnText::favourites_unsaved,
             &Save_Favorites},
};

const KeptKind& KindOf(const Program& program, const KeptFile& kept) {
  for (const KeptKind& kind : kKinds) {
    if (&(program.kept.*kind.file) == &kept) return kind;
  }
  return kKinds.front();
}

bool AskYesNo(Program& program, Text text) {
  const Box box{.title = Text(AppTitle),
                .text = std::move(text),
                .icon = BoxIcon::question,
                .buttons = BoxButtons::yes_no};
  return program.platform.boxes.Show(box) == BoxAnswer::yes;
}

// True if it is certain that nothing has that path.
bool IsNowhere(const std::string& path) {
  try {
    return !PathIsTaken(path);
  } catch (const std::system_error&) {
    return false;
  }
}

// True for a folder, a pipe and the like: writing there fails with the system's own words.
bool IsNoFile(const std::string& path) {
  std::error_code unknown;
  const auto status = std::filesystem::status(path, unknown);
  return std::filesystem::exists(status) && !std::filesystem::is_regular_file(status);
}

// True if what lies at the path, if anything, is what memory has seen. What nobody has asked for
// yet is for the caller to judge.
bool HoldsNothingUnseen(const KeptFile& kept, const std::string& path) {
  if (kept.path != path || !PathIsTaken(path) || IsNoFile(path)) return true;
  return kept.truly_read && kept.stamp == StampOf(path);
}

bool UserReplacesIt(Program& program, const KeptFile& kept) {
  const TextTables& texts = program.texts;
  return AskYesNo(program, OwnTextOf(texts, KindOf(program, kept).differs) + "\n" +
                               OwnTextOf(texts, OwnText::replaces_file) + "\n\n" +
                               OwnTextOf(texts, OwnText::replace_file_sure));
}

// A working copy that was put back to what the file holds is not unwritten.
bool IsUnwritten(const Program& program, const KeptKind& kind) {
  const KeptFiles& kept = program.kept;
  if (!(kept.*kind.file).unwritten) return false;
  return kind.file != &KeptFiles::profile || kept.stored_profile != program.profile;
}

// True if the file of the current user's profile was there and is no more.
bool ProfileHasGone(const Program& program) {
  const KeptFiles& kept = program.kept;
  const Text& user = program.paths.UserName;
  return kept.stored_profile && !user.empty() && program.profile[ProfileField::name] == user &&
         IsNowhere(kept.profile.path);
}

void UpdateCommands(Program& program) {
  if (program.windows.core != nullptr) program.windows.core->UpdateCommands();
}

// Memory has seen what lies at the path now, as far as its state can be told.
void NoteWhatLiesThere(KeptFile& kept) {
  try {
    // A folder that is away for a moment may come back with the file that was read.
    if (const auto stamp = StampOf(kept.path)) kept.stamp = stamp;
    kept.truly_read = true;
  } catch (const std::system_error&) {
    kept.truly_read = false;
  }
}

// What was deleted to be written anew is nowhere now.
void ForgetLostProfile(Program& program, const KeptFile& kept) {
  if (&kept == &program.kept.profile && !FileExists(kept.path)) program.kept.stored_profile.reset();
}

}  // namespace

std::optional<InputFile> OpenKeptFile(KeptFile& kept, const std::string& path) {
  if (kept.path != path) kept = {.path = path};
  kept.stamp.reset();
  kept.truly_read = false;
  try {
    InputFile file(path);
    kept.stamp = file.Stamp();
    return file;
  } catch (const std::system_error&) {
    kept.truly_read = IsNowhere(path);
    return std::nullopt;
  }
}

void MarkRead(KeptFile& kept) {
  kept.truly_read = true;
  kept.unwritten = false;
}

bool WriteKeptFile(Program& program, KeptFile& kept, const std::string& path, std::string_view code,
                   std::span<const Text> strings) {
  bool written = false;
  bool all_seen = false;
  program.Guard(code, [&] {
    all_seen = HoldsNothingUnseen(kept, path);
    if (!all_seen && !UserReplacesIt(program, kept)) return;
    program.platform.pointer.ShowWait();
    WriteFileAnew(path, EncodeRecord(strings), NewFileMode::owner_only);
    written = true;
    program.platform.pointer.Restore();
  });
  if (kept.path != path) kept = {.path = path};
  // A write that failed late leaves a file of its own.
  if (written || all_seen) NoteWhatLiesThere(kept);
  kept.unwritten = !written;
  if (!written) ForgetLostProfile(program, kept);
  UpdateCommands(program);
  return written;
}

bool HoldsUnwrittenWork(const Program& program) {
  for (const KeptKind& kind : kKinds) {
    if (IsUnwritten(program, kind)) return true;
  }
  return false;
}

Text UnwrittenLines(const Program& program) {
  Text lines;
  for (const KeptKind& kind : kKinds) {
    if (IsUnwritten(program, kind)) lines += OwnTextOf(program.texts, kind.unsaved) + "\n";
  }
  return lines;
}

bool SaveUnwrittenWork(Program& program) {
  bool all = true;
  for (const KeptKind& kind : kKinds) {
    const std::string path = (program.kept.*kind.file).path;
    const bool wanted =
        IsUnwritten(program, kind) || (kind.file == &KeptFiles::profile && ProfileHasGone(program));
    if (wanted) all = kind.save(program, path) && all;
  }
  return all;
}

bool MayLeaveUser(Program& program) {
  if (!HoldsUnwrittenWork(program)) return true;
  return AskYesNo(program, UnwrittenLines(program) + "\n" +
                               OwnTextOf(program.texts, OwnText::go_on_without_saving));
}

}  // namespace kelvora
