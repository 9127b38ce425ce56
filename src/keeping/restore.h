// Bringing back what a backup holds, in steps, each a file at the most. What is absent here is
// written; what differs goes as the user has chosen, once for all. Nothing outside the users folder
// is written, and nothing existing goes but by "take the backup's".
#pragma once

#include <memory>
#include <string>
#include <unordered_map>

#include "core/program.h"
#include "core/unread.h"
#include "keeping/backup_contents.h"
#include "storage/disk.h"

namespace kelvora {

// What becomes of a file that differs here. Keeping both means: a day comes back under a free name,
// the lines of a list that are missing here are put behind those that are there, and a profile
// stays.
enum class Differing { keep_both, take_backup, keep_mine };

class Restore {
 public:
  // What is wanted of the contents is brought back.
  Restore(std::string users_path, const BackupContents& contents, Differing differing);

  // Does the next step; false once there is none. Throws std::system_error where the backup can't
  // be read any more, or not all of it is certain to lie on the disk.
  bool Work();
  [[nodiscard]] std::size_t Done() const { return whole_ - wanted_.size(); }
  [[nodiscard]] std::size_t Whole() const { return whole_ + 1; }
  [[nodiscard]] bool Finished() const { return finished_; }

  // Files that were written, and those that are as they were.
  [[nodiscard]] std::size_t Written() const { return written_; }
  [[nodiscard]] std::size_t Unchanged() const { return unchanged_; }
  // What could not be brought back.
  [[nodiscard]] const Unread& Missing() const { return missing_; }

 private:
  void Take(const ZipEntry& entry);
  void BringBack(const BackupPlace& place, const std::string& bytes);
  void KeepBoth(const BackupPlace& place, const std::string& bytes);
  void WriteUnderFreeName(const std::string& path, const std::string& bytes);
  void MergeList(const std::string& path, const std::string& bytes);
  void Write(const std::string& path, std::string_view bytes, Durable durable);
  void PrepareFolders(const BackupPlace& place) const;
  void Finish();

  std::string users_path_;
  std::string path_;
  Differing differing_;
  std::unordered_map<std::string, BackupFile> wanted_;  // and not met yet, by the names of entries
  std::size_t whole_ = 0;
  std::unique_ptr<ZipReader> reader_;
  std::unique_ptr<RoomForBackup> room_;
  std::size_t written_ = 0, unchanged_ = 0;
  Unread missing_;
  bool finished_ = false;
};

}  // namespace kelvora
