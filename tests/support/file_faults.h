// Faults at the file interface, for tests of what a full or failing disk does to readers and
// writers.
//
// The system's calls are replaced when the tests are linked; without an InjectedFault in scope they
// do what they always do, except that a sync costs no time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <sys/resource.h>
#include <sys/types.h>
#include <vector>

namespace kelvora {

struct FileFault {
  std::optional<std::size_t> disk_full_after{};  // bytes that can still be written
  std::optional<std::uint64_t> room{};           // bytes that the disk says it has
  bool disk_tells_no_size = false;               // as disks elsewhere on a network may
  bool close_fails = false;
  bool delete_fails = false;
  bool sync_fails = false;
  bool folder_sync_fails = false;
  bool rename_fails = false;
  // The call that meets an input error, counted from 0: opening a file or a folder, asking for its
  // state, reading from it.
  std::optional<std::size_t> reading_call_fails{};
  // The process is killed before the call that changes the disk, counted from 0.
  std::optional<std::size_t> killed_before_change{};
};

// The fault is there as long as this object; it notes the calls that it sees.
class InjectedFault {
 public:
  explicit InjectedFault(const FileFault& fault);
  ~InjectedFault();
  InjectedFault(const InjectedFault&) = delete;
  InjectedFault& operator=(const InjectedFault&) = delete;

  // True if there were as many reading calls as it takes.
  [[nodiscard]] static bool ReadingCallFailed();
  // What was done to change the disk, in order: "room", "delete", "write 10", "sync", "close",
  // "rename", "sync folder", "sync disk".
  [[nodiscard]] static const std::vector<std::string>& Changes();
};

// A limit that the system itself sets on the size of a file: the real thing, as far as it goes. The
// signal that comes with it is left to the program.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(std::size_t bytes);
  ~FileSizeLimit();
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;

 private:
  rlimit before_{};
};

// Someone whom permissions stop; the tests may run as someone whom they don't.
class AsNobody {
 public:
  AsNobody();
  ~AsNobody();
  AsNobody(const AsNobody&) = delete;
  AsNobody& operator=(const AsNobody&) = delete;

 private:
  uid_t before_;
};

}  // namespace kelvora
