// What the program knows of the file of the open day and of the day's recovery copy. How they are
// read and written stands in storage/.
#pragma once

#include <optional>
#include <string>

#include "core/kept_file.h"
#include "core/records.h"

namespace kelvora {

// The file of the open day, as it was read or written last.
struct DayOnDisk {
  std::string path;                      // empty before either
  std::optional<FileStamp> stamp{};      // nothing: there was no file
  std::optional<Rec_DayFile> strings{};  // nothing: no file holds the day
};

struct RecoveryState {
  std::string path;           // of the copy that lies on the disk; empty: there is none
  std::string day_path;       // the day file that it is a copy of
  std::string content;        // what it holds, without when and by whom it was made
  std::string seen;           // the content when it was looked at last
  int looks = 0;              // at contents that the copy doesn't hold yet
  bool session_ends = false;  // the desktop ends: nothing is asked, and the copy stays
};

}  // namespace kelvora
