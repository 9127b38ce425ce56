#include "support/file_faults.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <stdexcept>
#include <unistd.h>

namespace {

kelvora::FileFault current_fault;

}  // namespace

// The names that the linker puts in the place of the library's own.
extern "C" {

std::size_t __real_fwrite(const void* bytes, std::size_t size, std::size_t count, std::FILE* file);
int __real_fclose(std::FILE* file);
int __real_remove(const char* path);

std::size_t __wrap_fwrite(const void* bytes, std::size_t size, std::size_t count, std::FILE* file) {
  auto& left = current_fault.disk_full_after;
  if (!left || size == 0) return __real_fwrite(bytes, size, count, file);
  const std::size_t fits = std::min(count, *left / size);
  *left -= fits * size;
  const std::size_t written = __real_fwrite(bytes, size, fits, file);
  if (written < count) errno = ENOSPC;
  return written;
}

int __wrap_fclose(std::FILE* file) {
  const int result = __real_fclose(file);
  if (!current_fault.close_fails) return result;
  errno = ENOSPC;
  return EOF;
}

int __wrap_remove(const char* path) {
  if (!current_fault.delete_fails) return __real_remove(path);
  errno = EROFS;
  return -1;
}
}

namespace kelvora {

InjectedFault::InjectedFault(const FileFault& fault) {
  current_fault = fault;
}

InjectedFault::~InjectedFault() {
  current_fault = {};
}

FileSizeLimit::FileSizeLimit(std::size_t bytes) : old_handler_(std::signal(SIGXFSZ, SIG_IGN)) {
  getrlimit(RLIMIT_FSIZE, &before_);
  const rlimit tight{bytes, before_.rlim_max};
  if (setrlimit(RLIMIT_FSIZE, &tight) != 0) throw std::runtime_error("no limit could be set");
}

FileSizeLimit::~FileSizeLimit() {
  setrlimit(RLIMIT_FSIZE, &before_);
  std::signal(SIGXFSZ, old_handler_);
}

AsNobody::AsNobody() : before_(geteuid()) {
  constexpr uid_t kNobody = 65534;
  if (before_ == 0 && seteuid(kNobody) != 0) throw std::runtime_error("can't be nobody");
}

AsNobody::~AsNobody() {
  if (seteuid(before_) != 0) std::terminate();
}

}  // namespace kelvora
