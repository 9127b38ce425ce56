#include "storage/disk.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>
#include <utility>

namespace kelvora {
namespace {

using FileInfo = struct stat;

[[noreturn]] void Throw(int error) {
  throw std::system_error(error != 0 ? error : EIO, std::generic_category());
}

[[noreturn]] void ThrowLastError() {
  Throw(errno);
}

// The file that `path` leads to; nothing if there is none.
std::optional<FileInfo> InfoOf(const std::string& path) {
  FileInfo info{};
  if (stat(path.c_str(), &info) == 0) return info;
  if (errno != ENOENT) ThrowLastError();
  return std::nullopt;
}

FileInfo InfoOf(const FileHandle& file) {
  FileInfo info{};
  if (fstat(file.Descriptor(), &info) != 0) ThrowLastError();
  return info;
}

void ThrowIfNoRegularFile(const FileInfo& info) {
  if (S_ISDIR(info.st_mode)) Throw(EISDIR);
  if (!S_ISREG(info.st_mode)) Throw(EINVAL);
}

FileStamp StampOf(const FileInfo& info) {
  return {info.st_dev, info.st_ino, info.st_size, info.st_mtim.tv_sec, info.st_mtim.tv_nsec};
}

FileHandle Open(const std::string& path, int flags, mode_t mode = 0) {
  const int descriptor = open(path.c_str(), flags | O_CLOEXEC | O_NONBLOCK, mode);
  if (descriptor < 0) ThrowLastError();
  return FileHandle(descriptor);
}

// A file that nobody may write is not deleted either, though its folder would allow it.
void ThrowIfWriteProtected(const std::string& path, const FileInfo& info) {
  if ((info.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0) Throw(EACCES);
  Open(path, O_RDWR);
}

std::string FolderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == path.npos ? "." : path.substr(0, slash + 1);
}

// What the disk can't tell is no reason to fail: the write will.
void ThrowIfNoRoom(const std::string& path, std::uint64_t size, const FileInfo* old) {
  struct statvfs disk {};
  if (statvfs(FolderOf(path).c_str(), &disk) != 0 || disk.f_blocks == 0) return;
  constexpr std::uint64_t kSizeOfBlockOfFile = 512;  // whatever the disk's own is
  const std::uint64_t block = std::max<std::uint64_t>(disk.f_frsize, 1);
  // The system keeps some blocks for its own use.
  std::uint64_t room = (geteuid() == 0 ? disk.f_bfree : disk.f_bavail) * block;
  if (old != nullptr && old->st_nlink == 1) {
    room += static_cast<std::uint64_t>(old->st_blocks) * kSizeOfBlockOfFile;
  }
  if ((size + block - 1) / block * block > room) Throw(ENOSPC);
}

void Remove(const std::string& path) {
  if (unlink(path.c_str()) != 0) ThrowLastError();
}

void SyncFolder(const std::string& path) {
  const int descriptor = open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  // One may write into a folder without being allowed to list it.
  if (descriptor < 0 && errno == EACCES) return;
  if (descriptor < 0) ThrowLastError();
  const FileHandle folder(descriptor);
  SyncFile(folder);
}

void WriteNewFile(const std::string& path, FilePieces pieces, std::optional<mode_t> mode,
                  Durable durable) {
  constexpr mode_t kByMask = 0666;
  FileHandle file = Open(path, O_WRONLY | O_CREAT | O_TRUNC, mode ? S_IRUSR | S_IWUSR : kByMask);
  // Some file systems have no modes.
  if (mode && fchmod(file.Descriptor(), *mode) != 0) errno = 0;
  for (const std::string_view piece : pieces) WriteBytes(file, piece);
  if (durable == Durable::at_once) SyncFile(file);
  file.Close();
}

std::uint64_t SizeOf(FilePieces pieces) {
  std::uint64_t size = 0;
  for (const std::string_view piece : pieces) size += piece.size();
  return size;
}

}  // namespace

void IgnoreFileSignals() {
  std::signal(SIGXFSZ, SIG_IGN);
  std::signal(SIGPIPE, SIG_IGN);
}

FileHandle::FileHandle(FileHandle&& other) noexcept
    : descriptor_(std::exchange(other.descriptor_, -1)) {}

FileHandle::~FileHandle() {
  if (descriptor_ >= 0) close(descriptor_);
}

void FileHandle::Close() {
  if (close(std::exchange(descriptor_, -1)) != 0) ThrowLastError();
}

FileHandle OpenForReading(const std::string& path) {
  FileHandle file = Open(path, O_RDONLY);
  ThrowIfNoRegularFile(InfoOf(file));
  return file;
}

std::string ReadBytes(const FileHandle& file) {
  std::string bytes(static_cast<std::size_t>(InfoOf(file).st_size), '\0');
  std::size_t size = 0;
  while (size < bytes.size()) {
    const ssize_t taken = read(file.Descriptor(), bytes.data() + size, bytes.size() - size);
    if (taken < 0 && errno == EINTR) continue;
    if (taken < 0) ThrowLastError();
    if (taken == 0) break;
    size += static_cast<std::size_t>(taken);
  }
  bytes.resize(size);
  return bytes;
}

FileHandle MakeFile(const std::string& path) {
  return Open(path, O_WRONLY | O_CREAT | O_TRUNC, S_IRUSR | S_IWUSR);
}

void WriteBytes(const FileHandle& file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = write(file.Descriptor(), bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) ThrowLastError();
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
}

// Not every file system knows how to.
void SyncFile(const FileHandle& file) {
  if (fsync(file.Descriptor()) != 0 && errno != EINVAL && errno != ENOTSUP) ThrowLastError();
}

void RenameFile(const std::string& from, const std::string& to) {
  if (rename(from.c_str(), to.c_str()) != 0) ThrowLastError();
  SyncFolder(FolderOf(to));
}

FileStamp StampOf(const FileHandle& file) {
  return StampOf(InfoOf(file));
}

std::optional<FileStamp> StampOf(const std::string& path) {
  const auto info = InfoOf(path);
  if (!info) return std::nullopt;
  return StampOf(*info);
}

bool PathIsTaken(const std::string& path) {
  FileInfo info{};
  if (lstat(path.c_str(), &info) == 0) return true;
  if (errno != ENOENT) ThrowLastError();
  return false;
}

void ReplaceFile(const std::string& path, FilePieces pieces, NewFileMode new_mode) {
  std::optional<mode_t> mode;
  if (new_mode == NewFileMode::owner_only) mode = S_IRUSR | S_IWUSR;
  const auto old = InfoOf(path);
  if (old) {
    ThrowIfNoRegularFile(*old);
    ThrowIfWriteProtected(path, *old);
    mode = old->st_mode & 07777u;
  }
  ThrowIfNoRoom(path, SizeOf(pieces), old ? &*old : nullptr);
  // Another program may make it anew meanwhile.
  while (InfoOf(path)) Remove(path);
  try {
    WriteNewFile(path, pieces, mode, Durable::at_once);
  } catch (...) {
    // A part of a file would be taken for the whole.
    unlink(path.c_str());
    throw;
  }
  SyncFolder(FolderOf(path));
}

void PutInPlace(const std::string& path, const std::string& beside, FilePieces pieces,
                Durable durable) {
  const auto old = InfoOf(path);
  if (old) {
    ThrowIfNoRegularFile(*old);
    ThrowIfWriteProtected(path, *old);
  }
  ThrowIfNoRoom(path, SizeOf(pieces), nullptr);
  const mode_t mode = old ? old->st_mode & 07777u : S_IRUSR | S_IWUSR;
  try {
    WriteNewFile(beside, pieces, mode, durable);
    if (rename(beside.c_str(), path.c_str()) != 0) ThrowLastError();
  } catch (...) {
    unlink(beside.c_str());
    throw;
  }
  if (durable == Durable::at_once) SyncFolder(FolderOf(path));
}

void SyncDisk(const std::string& folder) {
  const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) ThrowLastError();
  const FileHandle handle(descriptor);
  if (syncfs(handle.Descriptor()) != 0) ThrowLastError();
}

void AppendToFile(const std::string& path, std::string_view bytes) {
  constexpr mode_t kByMask = 0666;
  FileHandle file = Open(path, O_WRONLY | O_CREAT | O_APPEND, kByMask);
  WriteBytes(file, bytes);
  file.Close();
}

void FinishFile(const std::string& path, std::string_view front) {
  FileHandle file = Open(path, O_WRONLY);
  WriteBytes(file, front);
  SyncFile(file);
  file.Close();
}

void SyncFolderOf(const std::string& path) {
  SyncFolder(FolderOf(path));
}

std::size_t ReadSome(const FileHandle& file, char* to, std::size_t size) {
  while (true) {
    const ssize_t taken = read(file.Descriptor(), to, size);
    if (taken >= 0) return static_cast<std::size_t>(taken);
    if (errno != EINTR) ThrowLastError();
  }
}

std::optional<FileHandle> TryHoldFolder(const std::string& path) {
  const int descriptor = open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return std::nullopt;
  FileHandle folder(descriptor);
  if (flock(descriptor, LOCK_EX | LOCK_NB) != 0) return std::nullopt;
  return folder;
}

void DeleteFileIfThere(const std::string& path) {
  while (PathIsTaken(path)) {
    if (const auto info = InfoOf(path)) {
      ThrowIfNoRegularFile(*info);
      ThrowIfWriteProtected(path, *info);
    }
    Remove(path);
  }
}

FolderNames NamesIn(const std::string& folder) {
  FolderNames found;
  const auto fail = [&found] { found.failure.assign(errno, std::generic_category()); };
  const std::unique_ptr<DIR, int (*)(DIR*)> listing(opendir(folder.c_str()), &closedir);
  if (listing == nullptr) {
    fail();
    return found;
  }
  while (true) {
    errno = 0;
    const dirent* const entry = readdir(listing.get());
    if (entry == nullptr) break;
    const std::string_view name = entry->d_name;
    if (name != "." && name != "..") found.names.emplace_back(name);
  }
  if (errno != 0) fail();
  return found;
}

}  // namespace kelvora
