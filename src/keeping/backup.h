// Writing a backup: one zip file of one or several users, each with profile, lists and days. The
// work is done in steps, each a file at the most, so that whoever wants it takes as many as there
// is time for.
//
// The file grows under another name and is read back and compared before it gets its own, in the
// place of whatever file had that. A backup that is not finished leaves nothing behind.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "core/program.h"
#include "core/unread.h"
#include "days/user_list.h"
#include "keeping/backup_layout.h"
#include "storage/zip_file.h"

namespace kelvora {

class Backup {
 public:
  // `path` ends in the name that the file is to have.
  Backup(std::string users_path, std::vector<User> users, std::string path);
  ~Backup();
  Backup(const Backup&) = delete;
  Backup& operator=(const Backup&) = delete;

  // Does the next step; false once there is none. Throws std::system_error where the backup can't
  // be made; then there is no further step either.
  bool Work();

  // How much is done of how much; the whole grows while the folders are being read.
  [[nodiscard]] std::size_t Done() const { return written_.size() + verified_; }
  [[nodiscard]] std::size_t Whole() const { return 2 * files_.size() + 1; }

  // True once the backup lies on the disk.
  [[nodiscard]] bool Finished() const { return finished_; }
  [[nodiscard]] std::size_t Files() const { return written_.size(); }
  // What could not be read and is not in it.
  [[nodiscard]] const Unread& Missing() const { return missing_; }

 private:
  struct File {
    BackupPlace place;
    std::string path;
  };
  struct Written {
    std::string name;
    std::size_t size;
    std::uint64_t hash;
  };

  void Step();
  void List(const User& user);
  void Write(const File& file);
  void Verify();
  void Finish();

  std::string users_path_;
  std::vector<User> users_;
  std::string path_;
  std::string growing_path_;
  std::vector<File> files_;
  std::size_t listed_ = 0;  // users
  std::size_t taken_ = 0;   // files
  std::vector<Written> written_;
  std::size_t verified_ = 0;
  Unread missing_;
  std::unique_ptr<ZipWriter> writer_;
  std::unique_ptr<ZipReader> reader_;
  bool finished_ = false;
  bool failed_ = false;
};

// The name that is proposed for a backup made at `now`: "Kelvora FOOD 2004-03-05.zip".
[[nodiscard]] std::string BackupFileName(const LocalTime& now);

}  // namespace kelvora
