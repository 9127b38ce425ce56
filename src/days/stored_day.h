// What lists of days show of a day file. Reads in bulk behind the open day and changes nothing.
#pragma once

#include <vector>

#include "core/exchange_sort.h"
#include "core/unread.h"
#include "storage/folders.h"

namespace kelvora {

struct StoredDay {
  FolderFile file;
  bool has_record = false;  // without one nothing but the file is known
  Text date, weekday, height, weight;
  Text trend;
};

// Reads each file once, in the order given, and pauses behind each; ends early if the pause says
// so. What can't be read is passed over and goes to `unread` with its name.
[[nodiscard]] std::vector<StoredDay> ReadStoredDays(const std::vector<FolderFile>& files,
                                                    Unread& unread, const Pause& pause);

}  // namespace kelvora
