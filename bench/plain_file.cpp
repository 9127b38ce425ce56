#include "plain_file.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <system_error>
#include <unistd.h>

namespace kelvora::bench {
namespace {

void Require(bool success) {
  if (!success) throw std::system_error(errno, std::generic_category());
}

}  // namespace

std::size_t ReadPlain(const std::string& path, std::span<char> buffer) {
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  Require(file >= 0);
  const ssize_t count = read(file, buffer.data(), buffer.size());
  Require(count >= 0);
  Require(close(file) == 0);
  return static_cast<std::size_t>(count);
}

void WritePlainUnsynced(const std::string& path, std::string_view bytes) {
  const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
  Require(file >= 0);
  Require(write(file, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()));
  Require(close(file) == 0);
}

void SyncPlain(const std::string& folder) {
  const int handle = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  Require(handle >= 0);
  Require(syncfs(handle) == 0);
  Require(close(handle) == 0);
}

void WritePlain(const std::string& path, std::string_view bytes) {
  Require(unlink(path.c_str()) == 0 || errno == ENOENT);
  const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
  Require(file >= 0);
  Require(write(file, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()));
  Require(fsync(file) == 0);
  Require(close(file) == 0);
  const int folder =
      open(path.substr(0, path.rfind('/') + 1).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  Require(folder >= 0);
  Require(fsync(folder) == 0);
  Require(close(folder) == 0);
}

std::size_t ReadThroughLibrary(const std::string& path, std::span<char> buffer) {
  std::FILE* const file = std::fopen(path.c_str(), "rb");
  Require(file != nullptr);
  const std::size_t count = std::fread(buffer.data(), 1, buffer.size(), file);
  Require(std::ferror(file) == 0);
  Require(std::fclose(file) == 0);
  return count;
}

}  // namespace kelvora::bench
