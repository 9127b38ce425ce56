#include "keeping/backup.h"

#include <cerrno>

#include "core/common.h"
#include "core/hash.h"
#include "nutrition/dates.h"
#include "storage/folders.h"
#include "storage/record_file.h"

namespace kelvora {
namespace {

constexpr std::string_view kGrowingEnding = ".part";

void CheckIsThere(const std::string& folder) {
  const FolderNames found = NamesIn(folder);
  if (found.failure) throw std::system_error(found.failure);
}

// A name that is no UTF-8 can't be carried to another computer.
void CheckCanBeCarried(const BackupPlace& place) {
  if (!PlaceOf(EntryNameOf(place))) throw std::system_error(EILSEQ, std::generic_category());
}

}  // namespace

Backup::Backup(std::string users_path, std::vector<User> users, std::string path)
    : users_path_(std::move(users_path)),
      users_(std::move(users)),
      path_(std::move(path)),
      growing_path_(path_ + std::string(kGrowingEnding)) {}

Backup::~Backup() {
  const bool began = writer_ != nullptr;
  writer_.reset();
  reader_.reset();
  if (!began || finished_) return;
  try {
    DeleteFileIfThere(growing_path_);
  } catch (const std::exception&) {
    // A disk that was taken away takes it along.
  }
}

bool Backup::Work() {
  if (finished_ || failed_) return false;
  try {
    Step();
  } catch (...) {
    failed_ = true;
    throw;
  }
  return !finished_;
}

void Backup::Step() {
  if (writer_ == nullptr) {
    writer_ = std::make_unique<ZipWriter>(growing_path_);
  } else if (listed_ < users_.size()) {
    List(users_[listed_++]);
  } else if (taken_ < files_.size()) {
    Write(files_[taken_++]);
  } else if (reader_ == nullptr) {
    writer_->Finish();
    reader_ = std::make_unique<ZipReader>(growing_path_);
  } else if (verified_ < written_.size()) {
    Verify();
  } else {
    Finish();
  }
}

void Backup::List(const User& user) {
  const std::string folder = users_path_ + user.folder_name + "/";
  if (!missing_.Try(user.name, [&] { CheckIsThere(folder); })) return;
  for (const BackupPart part :
       {BackupPart::profile, BackupPart::own_list, BackupPart::favourites}) {
    const BackupPlace place{.folder_name = user.folder_name, .part = part, .file_name = {}};
    const std::string path = PathOf(users_path_, place);
    missing_.Try(user.name, [&] {
      if (!PathIsTaken(path)) return;
      CheckCanBeCarried(place);
      files_.push_back({place, path});
    });
  }
  std::error_code failure;
  for (const FolderFile& day : FilesWithPathsIn(folder + "Files/", ".kvf", failure)) {
    const std::string file_name = day.path.substr(day.path.rfind('/') + 1);
    const BackupPlace place{
        .folder_name = user.folder_name, .part = BackupPart::day, .file_name = file_name};
    missing_.Try(day.name, [&] {
      CheckCanBeCarried(place);
      files_.push_back({place, day.path});
    });
  }
  if (failure && failure != std::errc::no_such_file_or_directory) {
    missing_.Add(user.name, std::system_error(failure));
  }
}

void Backup::Write(const File& file) {
  const std::string name = EntryNameOf(file.place);
  std::string bytes;
  FileStamp stamp;
  const bool read = missing_.Try(TextFromUtf8(name), [&] {
    const InputFile input(file.path);
    stamp = input.Stamp();
    bytes = input.ReadAll();
  });
  if (!read) return;
  writer_->Add(name, bytes, stamp.seconds);
  written_.push_back({name, bytes.size(), HashOf(bytes)});
}

void Backup::Verify() {
  const Written& wanted = written_[verified_];
  const auto entry = reader_->Next();
  const bool same = entry && entry->name == wanted.name;
  const std::string bytes = same ? reader_->Read(wanted.size) : std::string();
  if (!same || bytes.size() != wanted.size || HashOf(bytes) != wanted.hash) {
    throw std::system_error(EIO, std::generic_category());
  }
  ++verified_;
}

void Backup::Finish() {
  if (reader_->Next()) throw std::system_error(EIO, std::generic_category());
  reader_.reset();
  RenameFile(growing_path_, path_);
  finished_ = true;
}

std::string BackupFileName(const LocalTime& now) {
  return std::string(AppTitle) + " " + std::to_string(now.year) + "-" + TwoDigits(now.month) + "-" +
         TwoDigits(now.day) + ".zip";
}

}  // namespace kelvora
