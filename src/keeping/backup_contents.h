// What a backup holds, and how it compares with what is here: read in steps, each an entry at the
// most, and changing nothing.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "core/program.h"
#include "keeping/backup_layout.h"
#include "storage/zip_file.h"

namespace kelvora {

// Whether the same file is here.
enum class Here { absent, same, differs };

struct BackupFile {
  BackupPlace place;
  Here here = Here::absent;
  Text date, weekday;      // of a day, as they stand in it
  Text date_key;           // puts the dates in order
  std::uint64_t hash = 0;  // of its bytes
  bool wanted = true;
};

struct BackupUser {
  std::string folder_name;
  Text name;                      // that of the profile, or else of the folder
  std::vector<BackupFile> files;  // profile and lists first, then the days by date
};

// More than a file of that size can hold of what people write down is made to fill a disk.
class RoomForBackup {
 public:
  explicit RoomForBackup(std::int64_t size_of_file);
  // The most that the next entry may hold.
  [[nodiscard]] std::size_t Left() const { return left_; }
  void Take(std::size_t size) { left_ -= size < left_ ? size : left_; }

 private:
  std::size_t left_;
};

class BackupContents {
 public:
  BackupContents(std::string users_path, std::string path);

  // Does the next step; false once there is none. Throws std::system_error for a file that can't be
  // read or holds nothing of a backup.
  bool Work();

  [[nodiscard]] const std::string& Path() const { return path_; }
  [[nodiscard]] std::vector<BackupUser>& Users() { return users_; }
  [[nodiscard]] const std::vector<BackupUser>& Users() const { return users_; }
  // Entries that are no file of a user, or that another one of their name stands before.
  [[nodiscard]] std::size_t Foreign() const { return foreign_; }
  // Entries that could not be read.
  [[nodiscard]] std::size_t Damaged() const { return damaged_; }
  [[nodiscard]] std::size_t Encrypted() const { return encrypted_; }
  // True for a file whose rest could not be read.
  [[nodiscard]] bool Cut() const { return cut_; }

 private:
  bool Step();
  void Take(const ZipEntry& entry);
  BackupUser& UserOf(const std::string& folder_name);
  void Settle();

  std::string users_path_;
  std::string path_;
  std::unique_ptr<ZipReader> reader_;
  std::unique_ptr<RoomForBackup> room_;
  std::vector<BackupUser> users_;
  std::unordered_map<std::string, std::size_t> places_;  // of the users
  std::unordered_map<std::string, std::size_t> seen_;    // how often each name
  std::size_t entries_ = 0, foreign_ = 0, damaged_ = 0, encrypted_ = 0;
  bool cut_ = false;
  bool done_ = false;
};

}  // namespace kelvora
