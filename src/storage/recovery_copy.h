// The recovery copy of the open day: what would be lost if the process ended now, whatever ends it.
//
// While the day's six strings differ from those last read or written, or the diary's box holds text
// that was not taken over, a file in the state folder holds both. It is one record of strings (see
// record_file.h) with a mark in front and a check over all of them at its end, is written whole
// beside its predecessor, and takes its place. Its name is made of the day file's path; beside the
// unanswered copy of another process it takes another one. Where the state folder can't be written
// the program goes on as without: nothing here fails or shows a box.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/program.h"
#include "storage/processes.h"

namespace kelvora {

// Brings the copy in step with the day: writes or removes it. To be called every kRecoveryLook; a
// changed day is written at the next look that finds it at rest, and at the third one otherwise.
inline constexpr int kRecoveryLookMilliseconds = 500;
void LookAfterRecoveryCopy(Program& program);

// The same at once.
void BringRecoveryCopyUpToDate(Program& program);

// Writes the copy though the day may lie in its file: before that file is deleted.
void WriteRecoveryCopy(Program& program);

// The day has been saved or dropped.
void RemoveRecoveryCopy(Program& program);

// A user has been deleted: removes all copies of days below that folder, which ends in "/".
void RemoveRecoveryCopiesBelow(const Paths& paths, const std::string& folder);

// What a copy holds.
struct RecoveryCopy {
  std::string path;      // of the copy
  std::string day_path;  // of the day file
  ProcessMark process;
  Text made;           // dd-mm-yyyy hh:mm
  std::string stored;  // TraceOf the day as its file held it; empty: no file did
  bool holds_untaken_diary = false;
  Text diary;  // as the box had it, if it was not taken over
  Rec_DayFile day;
};

// Nothing for what is no whole copy.
[[nodiscard]] std::optional<RecoveryCopy> ReadRecoveryCopy(const std::string& path);

// The copies of processes that no longer live, in the order of their paths. Removes what such
// processes left half written.
[[nodiscard]] std::vector<RecoveryCopy> RecoveryCopiesLeft(const Paths& paths);

// Makes the copy that of this process: what the open day was opened with.
void AdoptRecoveryCopy(Program& program, const RecoveryCopy& copy);

// Tells days with other contents apart; the trend text, which is made of the others, has no part in
// it.
[[nodiscard]] std::string TraceOf(const Rec_DayFile& day);

}  // namespace kelvora
