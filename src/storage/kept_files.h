// The files whose content memory holds for the current user, see core/kept_file.h: what one of them
// was when it was read, and what must be asked before it is written over.
//
// A save that fails or is refused leaves work that no file holds. It counts as unsaved: ending the
// program and leaving the user ask, and the next save of its kind, or of the day, tries again.
#pragma once

#include <optional>
#include <string>

#include "core/program.h"
#include "storage/record_file.h"

namespace kelvora {

// Opens a kept file for reading and notes what it is; nothing if it can't be opened. What is not
// there counts as read, for it holds nothing; all else only when MarkRead says so.
[[nodiscard]] std::optional<InputFile> OpenKeptFile(KeptFile& kept, const std::string& path);

// Memory holds now what the file held when it was opened.
void MarkRead(KeptFile& kept);

// Writes the file; true if it lies on the disk now. Asks first, No as default, where something lies
// there that memory has not seen: a file that could not be read or has changed since. One that was
// never opened for reading is for the caller to ask about. A failure shows `code`.
bool WriteKeptFile(Program& program, KeptFile& kept, const std::string& path, std::string_view code,
                   std::span<const Text> strings);

// True if the last save of a kept file failed or was refused and what memory holds lies in no file.
[[nodiscard]] bool HoldsUnwrittenWork(const Program& program);

// One line for each such file.
[[nodiscard]] Text UnwrittenLines(const Program& program);

// Tries to write what is unwritten, and the profile of the current user where its file has gone;
// true if nothing is left.
bool SaveUnwrittenWork(Program& program);

// True if another user may take over: nothing is unwritten, or the user says so.
[[nodiscard]] bool MayLeaveUser(Program& program);

}  // namespace kelvora
