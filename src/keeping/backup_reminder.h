// The reminder that there has been no backup for long: which words stand in the status bar, and
// when counting begins.
#pragma once

#include "core/program.h"

namespace kelvora {

inline constexpr int kDaysWithoutBackup = 30;

// Reads since when there has been none. Counting begins at the first start, and anew where the day
// noted lies ahead, as after the clock was set back. What can't be read or written is no reason for
// a box: there is no reminder then.
void LoadBackupReminder(Program& program);

// A backup lies on the disk: counting begins today.
void NoteBackup(Program& program);

[[nodiscard]] bool RemindsOfBackup(const Program& program);
// False if that can't be stored, which shows "#F17-0".
bool SetRemindsOfBackup(Program& program, bool reminds);

// The words of the reminder; empty while none is due, or wanted.
[[nodiscard]] Text BackupReminderText(const Program& program);

}  // namespace kelvora
