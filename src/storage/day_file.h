// The file of one day: reading it into the store, writing it, closing the day.
//
// Six strings: trend text, diary, header and the three day parts as blocks. The name of a file is
// an opaque key made once, when the day is begun. What is asked before unsaved work is dropped
// stands here too.
#pragma once

#include <string>
#include <string_view>

#include "core/program.h"

namespace kelvora {

// Reads `folder` + `file_name`, both UTF-8, into the store. A file that can't be opened changes
// nothing, and so does a No to the question about unsaved changes. A failure shows "#FF1-8" and
// leaves no day open. `folder` ends in "/". A file that counts no record gives the day that was
// opened last from the same folder, and fails without one.
void LoadDay(Program& program, const std::string& folder, std::string_view file_name);

// Opens a day with the strings of its recovery copy, behind the same question about unsaved
// changes; false after a No. The file itself need not be there; its state is what the day is
// compared with. The day is marked as changed.
bool LoadDayFromCopy(Program& program, const std::string& folder, std::string_view file_name,
                     const Rec_DayFile& day);

// What the open day holds now is what its file holds, as far as it was read: to be called behind
// the re-totalling that belongs to opening a day.
void NoteDayAsOpened(Program& program);

// What lies at the path of the open day's file may be written over; no question comes before it.
void AcceptDayFileThere(Program& program);

// The path of the open day's file.
[[nodiscard]] std::string PathOfDay(const Program& program);

// The bare name of the open day's file on the disk, in UTF-8; KV_bestand has "?" in it for what
// text can't hold.
[[nodiscard]] std::string NameOfDayFile(const Program& program);

// Puts the six strings of a day file into the store, the lists behind what they hold; and makes
// such six strings of the store.
void TakeDay(KV_data& store, const Rec_DayFile& record);
[[nodiscard]] Rec_DayFile PackDay(const KV_data& store);

// Writes the open day, if there is one, to its user's folder, and then what lists and profile could
// not be written before. Asks first where the diary has text that was not taken over, and, No as
// default, where the file has come to hold something else since it was read or written. False after
// a failure; that of the day shows "#FF1-9" and leaves it changed. The recovery copy lies on the
// disk as long as the file doesn't.
bool SaveDay(Program& program);

// Empties the day and closes the windows that show it. Asks nothing and saves nothing.
void CloseDay(Program& program);

// True if a new day may take the place of the open one: nothing is unsaved, or the user says so.
[[nodiscard]] bool MayDropDayForNewOne(Program& program);

// The name of a day file begun at `now`: day, month, year, hours, minutes and seconds (one digit
// below ten), and ".kvf".
[[nodiscard]] Text NewDayFileName(const Locale& locale, const LocalTime& now);

}  // namespace kelvora
