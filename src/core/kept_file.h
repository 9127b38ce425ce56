// What the program knows of the files whose content it holds in memory for the current user: the
// own foods, the favourites and the profile. From it follows whether a save may take the place of
// what lies on the disk, and whether work is left that no file holds. How they are read and written
// stands in storage/kept_files.h.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/records.h"

namespace kelvora {

// Which file lies at a path, and in which state: it changes with every write of its content.
struct FileStamp {
  std::uint64_t device = 0;
  std::uint64_t number = 0;
  std::int64_t size = 0;
  std::int64_t seconds = 0;
  std::int64_t nanoseconds = 0;
  bool operator==(const FileStamp&) const = default;
};

struct KeptFile {
  std::string path;                  // empty before any was read or written
  std::optional<FileStamp> stamp{};  // when it was last read or written; nothing: there was none
  bool truly_read = false;           // memory has seen all that the file held then
  bool unwritten = false;            // the last save failed or was refused
};

struct KeptFiles {
  KeptFile custom;
  KeptFile favourites;
  KeptFile profile;
  // What the file of the profile holds, as far as is known.
  std::optional<Rec_Profile> stored_profile;
};

}  // namespace kelvora
