// What files need of the system beyond standard C++: a descriptor for one file, its stamp, the room
// on its disk, a sync, the names in a folder. All of it throws std::system_error with the system's
// own error, unless it says otherwise. This file knows nothing of what files hold.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "core/kept_file.h"

namespace kelvora {

// Lets a limit on the size of files, and a reader that has gone, show as a failed write instead of
// ending the process.
void IgnoreFileSignals();

// Who may read a file that is made: whoever the system's mask lets, or its owner only.
enum class NewFileMode { by_mask, owner_only };

// An open file; closed with this object, without asking how that went.
class FileHandle {
 public:
  explicit FileHandle(int descriptor) : descriptor_(descriptor) {}
  FileHandle(FileHandle&& other) noexcept;
  FileHandle& operator=(FileHandle&&) = delete;
  ~FileHandle();

  [[nodiscard]] int Descriptor() const { return descriptor_; }
  // Closes it now.
  void Close();

 private:
  int descriptor_;
};

// Opens a regular file for reading. A folder, a pipe or a device is refused without waiting for it.
[[nodiscard]] FileHandle OpenForReading(const std::string& path);

// The bytes of the file, as many as it has at the call.
[[nodiscard]] std::string ReadBytes(const FileHandle& file);

// Makes a new file of its owner only, or empties the one that is there, and opens it for writing.
[[nodiscard]] FileHandle MakeFile(const std::string& path);

void WriteBytes(const FileHandle& file, std::string_view bytes);

// Waits until all that was written to the file lies on the disk, where the file system can tell.
void SyncFile(const FileHandle& file);

// Gives the file another name, in the place of whatever file had it, and syncs the folder.
void RenameFile(const std::string& from, const std::string& to);

// The state of an open file, and of the one at a path: nothing if there is none.
[[nodiscard]] FileStamp StampOf(const FileHandle& file);
[[nodiscard]] std::optional<FileStamp> StampOf(const std::string& path);

// True if anything has that path, be it a link that leads nowhere.
[[nodiscard]] bool PathIsTaken(const std::string& path);

// What a file is to hold: pieces that follow each other.
using FilePieces = std::span<const std::string_view>;

// Deletes the file, writes all bytes as a new one of the same mode, syncs it and its folder. Where
// the disk has no room for the bytes, and a file that may not be written stays as it was; at any
// later failure no file is left, neither the old one nor a part of the new one, but for the last:
// when only the folder can't be synced.
void ReplaceFile(const std::string& path, FilePieces pieces, NewFileMode mode);

// When a new file is safe from a loss of power: as soon as it is there, or after SyncDisk only.
enum class Durable { at_once, after_sync };

// Writes all bytes to `beside`, a new file of its owner only, and gives it the name `path`, in the
// place of whatever file had it, whose mode it takes. At a failure nothing has changed; when only
// the folder can't be synced, the new file has the name. `path` is never half a file. Both lie in
// one folder.
void PutInPlace(const std::string& path, const std::string& beside, FilePieces pieces,
                Durable durable);

// Waits until all that was written to the disk of that folder lies on it.
void SyncDisk(const std::string& folder);

// Deletes the file if there is one, or the link if it leads nowhere.
void DeleteFileIfThere(const std::string& path);

// Files that are written in pieces, where nobody looks for them yet. AppendToFile makes the file if
// there is none; FinishFile puts `front` over its first bytes and syncs it.
void AppendToFile(const std::string& path, std::string_view bytes);
void FinishFile(const std::string& path, std::string_view front);

// Syncs the folder that the file lies in.
void SyncFolderOf(const std::string& path);

// Fills up to `size` bytes from where the file was read last; 0 at its end.
[[nodiscard]] std::size_t ReadSome(const FileHandle& file, char* to, std::size_t size);

// Holds a folder until the handle is gone, so that other processes see that somebody works in it;
// nothing if one of them does, or if it can't be opened.
[[nodiscard]] std::optional<FileHandle> TryHoldFolder(const std::string& path);

// The names in a folder, without "." and "..", in no order. A failure leaves the names before it.
struct FolderNames {
  std::vector<std::string> names;
  std::error_code failure;
};
[[nodiscard]] FolderNames NamesIn(const std::string& folder);

}  // namespace kelvora
