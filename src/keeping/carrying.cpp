#include "keeping/carrying.h"

#include <system_error>

#include "core/common.h"
#include "days/open_day.h"
#include "keeping/backup_reminder.h"
#include "language/own_texts.h"
#include "nutrition/dates.h"
#include "nutrition/totals.h"
#include "storage/folders.h"
#include "storage/profile_file.h"

namespace kelvora {
namespace {

Text CountedText(const TextTables& texts, OwnText id, std::size_t count) {
  return OwnTextWith(texts, id, std::to_string(count));
}

void ReloadUser(Program& program) {
  const Paths& paths = program.paths;
  if (!paths.UserName.empty()) {
    if (!program.kept.profile.unwritten) {
      Load_Profile(program, ProfileFile(paths, paths.UserName));
    }
    LoadFoodsOfUser(program);
    FollowSettings(program);
  }
  if (program.windows.core != nullptr) program.windows.core->UpdateCommands();
}

}  // namespace

std::vector<User> UsersForBackup(Program& program) {
  UserList list = ReadUsers(program);
  list.unread.Report(program.FailurePath(), "#F17-1");
  return std::move(list.users);
}

std::optional<std::string> ChooseBackupTarget(Program& program) {
  const Platform& platform = program.platform;
  return platform.folder_chooser.ChooseNewZip(
      OwnTextOf(program.texts, OwnText::backup_prompt),
      platform.folders.Documents() + "/" + BackupFileName(platform.clock.Now()));
}

bool WorkOn(Program& program, Backup& backup) {
  bool more = false;
  program.Guard("#F17-2", [&] { more = backup.Work(); });
  return more;
}

void TellOfBackup(Program& program, const Backup& backup) {
  if (!backup.Finished()) return;
  if (!backup.Missing().Empty()) {
    backup.Missing().Report(program.FailurePath(), "#F17-3");
    return Tell(program, BoxIcon::warning,
                OwnTextOf(program.texts, OwnText::backup_incomplete) + "\n" +
                    CountedText(program.texts, OwnText::backup_done, backup.Files()));
  }
  NoteBackup(program);
  Tell(program, BoxIcon::information,
       CountedText(program.texts, OwnText::backup_done, backup.Files()));
}

std::optional<std::string> ChooseBackup(Program& program) {
  return program.platform.folder_chooser.ChooseZip(
      OwnTextOf(program.texts, OwnText::restore_prompt), program.platform.folders.Documents());
}

bool WorkOn(Program& program, BackupContents& contents, bool& readable) {
  try {
    return contents.Work();
  } catch (const std::system_error& failure) {
    readable = false;
    const bool no_backup =
        failure.code() == std::errc::bad_message || failure.code() == std::errc::file_too_large;
    if (no_backup) {
      Tell(program, BoxIcon::error, OwnTextOf(program.texts, OwnText::restore_no_backup));
    } else {
      ReportFailure(program.FailurePath(), "#F18-2", DescribeFailure(failure));
    }
    return false;
  }
}

Text FlawsInWords(const TextTables& texts, const BackupContents& contents) {
  Text words;
  const auto add = [&words](const Text& line) { words += (words.empty() ? "" : "\n") + line; };
  if (contents.Encrypted() > 0) add(OwnTextOf(texts, OwnText::restore_encrypted));
  if (contents.Damaged() > 0 || contents.Cut()) add(OwnTextOf(texts, OwnText::restore_damaged));
  if (contents.Foreign() > 0) {
    add(CountedText(texts, OwnText::restore_foreign, contents.Foreign()));
  }
  return words;
}

Text NameOfDay(const BackupFile& day, std::string_view opt_system) {
  try {
    const Text date = FormatStoredDate(day.date, opt_system);
    if (!date.empty()) return date;
  } catch (const std::system_error&) {
    return day.date;
  }
  return TextFromUtf8(day.place.file_name);
}

bool WorkOn(Program& program, Restore& restore) {
  bool more = false;
  program.Guard("#F18-0", [&] { more = restore.Work(); });
  return more;
}

void TellOfRestore(Program& program, const Restore& restore) {
  const TextTables& texts = program.texts;
  ReloadUser(program);
  restore.Missing().Report(program.FailurePath(), "#F18-1");
  const OwnText outcome = restore.Finished() ? OwnText::restore_done : OwnText::restore_stopped;
  Text words = CountedText(texts, outcome, restore.Written());
  if (restore.Unchanged() > 0) {
    words += "\n" + CountedText(texts, OwnText::restore_unchanged, restore.Unchanged());
  }
  const bool all = restore.Finished() && restore.Missing().Empty();
  Tell(program, all ? BoxIcon::information : BoxIcon::warning, words);
}

}  // namespace kelvora
