// What the dialogs for making and bringing back a backup have done for them: which file, what is
// said at the end, and what follows in memory.
#pragma once

#include <optional>
#include <string>

#include "keeping/backup.h"
#include "keeping/restore.h"

namespace kelvora {

// The users that can be backed up. A failure shows "#F17-1".
[[nodiscard]] std::vector<User> UsersForBackup(Program& program);

// The file that the user chooses for a new backup; nothing if there is none.
[[nodiscard]] std::optional<std::string> ChooseBackupTarget(Program& program);

// Does one step; false at the end, be it a failure, which shows "#F17-2".
bool WorkOn(Program& program, Backup& backup);

// Says how it ended, if it did, and counts the days without a backup from now on; one that lacks
// something shows "#F17-3" and counts as none.
void TellOfBackup(Program& program, const Backup& backup);

// The backup that the user chooses to bring back.
[[nodiscard]] std::optional<std::string> ChooseBackup(Program& program);

// Does one step of reading what a backup holds; false at the end. `readable` turns false for a file
// that holds nothing to be brought back, which is said.
bool WorkOn(Program& program, BackupContents& contents, bool& readable);

// What is to be said of contents that are not all there; empty if all is well.
[[nodiscard]] Text FlawsInWords(const TextTables& texts, const BackupContents& contents);

// What a day of a backup is called in a list: its date as the user writes dates, or else its file.
[[nodiscard]] Text NameOfDay(const BackupFile& day, std::string_view opt_system);

// Does one step of bringing back; false at the end, be it a failure, which shows "#F18-0".
bool WorkOn(Program& program, Restore& restore);

// Takes over what was brought back for the current user, and says how it ended; what is missing
// shows "#F18-1". Work that no file holds yet stays in memory.
void TellOfRestore(Program& program, const Restore& restore);

}  // namespace kelvora
