// Faults at the file interface, for tests of what a full or failing disk does to a writer.
//
// The standard library's fwrite, fclose and remove are replaced when the tests are linked; without
// an InjectedFault in scope they do what they always do.
#pragma once

#include <cstddef>
#include <optional>
#include <sys/resource.h>
#include <sys/types.h>

namespace kelvora {

struct FileFault {
  std::optional<std::size_t> disk_full_after{};  // bytes that can still be written
  bool close_fails = false;
  bool delete_fails = false;
};

// The fault is there as long as this object.
class InjectedFault {
 public:
  explicit InjectedFault(const FileFault& fault);
  ~InjectedFault();
  InjectedFault(const InjectedFault&) = delete;
  InjectedFault& operator=(const InjectedFault&) = delete;
};

// A limit that the system itself sets on the size of a file: the real thing, as far as it goes.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(std::size_t bytes);
  ~FileSizeLimit();
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;

 private:
  rlimit before_{};
  void (*old_handler_)(int);
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
