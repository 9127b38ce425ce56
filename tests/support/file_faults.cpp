#include "support/file_faults.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <dirent.h>
#include <fcntl.h>
#include <stdexcept>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace {

kelvora::FileFault current_fault;
std::size_t reading_calls = 0;
bool reading_call_failed = false;
bool noting = false;
std::vector<std::string> changes;

void Note(std::string change) {
  if (current_fault.killed_before_change && changes.size() == *current_fault.killed_before_change) {
    raise(SIGKILL);
  }
  if (noting) changes.push_back(std::move(change));
}

// True if this reading call is the one that fails.
bool ReadingFails() {
  if (!current_fault.reading_call_fails || reading_calls++ != *current_fault.reading_call_fails) {
    return false;
  }
  reading_call_failed = true;
  errno = EIO;
  return true;
}

}  // namespace

// The names that the linker puts in the place of the system's own.
extern "C" {

int __real_open(const char* path, int flags, ...);
int __real_close(int descriptor);
int __real_stat(const char* path, struct stat* info);
int __real_lstat(const char* path, struct stat* info);
int __real_fstat(int descriptor, struct stat* info);
int __real_statvfs(const char* path, struct statvfs* disk);
int __real_unlink(const char* path);
int __real_rename(const char* from, const char* to);
ssize_t __real_read(int descriptor, void* bytes, std::size_t size);
ssize_t __real_write(int descriptor, const void* bytes, std::size_t size);
DIR* __real_opendir(const char* path);
dirent* __real_readdir(DIR* folder);

int __wrap_open(const char* path, int flags, ...) {
  mode_t mode = 0;
  if ((flags & O_CREAT) != 0) {
    va_list arguments;
    va_start(arguments, flags);
    mode = va_arg(arguments, mode_t);
    va_end(arguments);
  } else if (ReadingFails()) {
    return -1;
  }
  return __real_open(path, flags, mode);
}

int __wrap_close(int descriptor) {
  Note("close");
  const int result = __real_close(descriptor);
  if (!current_fault.close_fails) return result;
  errno = ENOSPC;
  return -1;
}

int __wrap_stat(const char* path, struct stat* info) {
  return ReadingFails() ? -1 : __real_stat(path, info);
}

int __wrap_lstat(const char* path, struct stat* info) {
  return ReadingFails() ? -1 : __real_lstat(path, info);
}

int __wrap_fstat(int descriptor, struct stat* info) {
  return ReadingFails() ? -1 : __real_fstat(descriptor, info);
}

int __wrap_statvfs(const char* path, struct statvfs* disk) {
  Note("room");
  const int result = __real_statvfs(path, disk);
  if (current_fault.room) disk->f_bfree = disk->f_bavail = *current_fault.room / disk->f_frsize;
  if (current_fault.disk_tells_no_size) disk->f_blocks = disk->f_bfree = disk->f_bavail = 0;
  return result;
}

int __wrap_unlink(const char* path) {
  Note("delete");
  if (!current_fault.delete_fails) return __real_unlink(path);
  errno = EROFS;
  return -1;
}

int __wrap_rename(const char* from, const char* to) {
  Note("rename");
  if (!current_fault.rename_fails) return __real_rename(from, to);
  errno = EROFS;
  return -1;
}

int __wrap_syncfs(int) {
  Note("sync disk");
  if (!current_fault.sync_fails) return 0;
  errno = EIO;
  return -1;
}

ssize_t __wrap_read(int descriptor, void* bytes, std::size_t size) {
  return ReadingFails() ? -1 : __real_read(descriptor, bytes, size);
}

ssize_t __wrap_write(int descriptor, const void* bytes, std::size_t size) {
  Note("write " + std::to_string(size));
  auto& left = current_fault.disk_full_after;
  if (!left || size == 0) return __real_write(descriptor, bytes, size);
  if (*left == 0) {
    errno = ENOSPC;
    return -1;
  }
  const std::size_t fits = std::min(size, *left);
  *left -= fits;
  return __real_write(descriptor, bytes, fits);
}

int __wrap_fsync(int descriptor) {
  struct stat info {};
  const bool folder = __real_fstat(descriptor, &info) == 0 && S_ISDIR(info.st_mode);
  Note(folder ? "sync folder" : "sync");
  if (!(folder ? current_fault.folder_sync_fails : current_fault.sync_fails)) return 0;
  errno = EIO;
  return -1;
}

DIR* __wrap_opendir(const char* path) {
  return ReadingFails() ? nullptr : __real_opendir(path);
}

dirent* __wrap_readdir(DIR* folder) {
  return ReadingFails() ? nullptr : __real_readdir(folder);
}
}

namespace kelvora {

InjectedFault::InjectedFault(const FileFault& fault) {
  current_fault = fault;
  reading_calls = 0;
  reading_call_failed = false;
  changes.clear();
  noting = true;
}

InjectedFault::~InjectedFault() {
  current_fault = {};
  noting = false;
}

bool InjectedFault::ReadingCallFailed() {
  return reading_call_failed;
}

const std::vector<std::string>& InjectedFault::Changes() {
  return changes;
}

FileSizeLimit::FileSizeLimit(std::size_t bytes) {
  getrlimit(RLIMIT_FSIZE, &before_);
  const rlimit tight{bytes, before_.rlim_max};
  if (setrlimit(RLIMIT_FSIZE, &tight) != 0) throw std::runtime_error("no limit could be set");
}

FileSizeLimit::~FileSizeLimit() {
  setrlimit(RLIMIT_FSIZE, &before_);
}

AsNobody::AsNobody() : before_(geteuid()) {
  constexpr uid_t kNobody = 65534;
  if (before_ == 0 && seteuid(kNobody) != 0) throw std::runtime_error("can't be nobody");
}

AsNobody::~AsNobody() {
  if (seteuid(before_) != 0) std::terminate();
}

}  // namespace kelvora
