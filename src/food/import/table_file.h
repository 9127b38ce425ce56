// One file of a table: its beginning, its size, and a reader of its rows.
#pragma once

#include "food/import/delimited.h"
#include "food/import/table_source.h"
#include "storage/disk.h"

namespace kelvora {

class TableFile {
 public:
  // Throws std::system_error; only a regular file can be a table, or a link to one.
  explicit TableFile(const std::string& path)
      : file_(OpenForReading(path)), sample_(kSampleSize, '\0') {
    std::size_t size = 0;
    while (size < sample_.size()) {
      const std::size_t taken = ReadSome(file_, sample_.data() + size, sample_.size() - size);
      if (taken == 0) break;
      size += taken;
    }
    sample_.resize(size);
  }

  [[nodiscard]] std::string_view Sample() const { return sample_; }
  [[nodiscard]] std::uint64_t Size() const {
    return static_cast<std::uint64_t>(StampOf(file_).size);
  }

  // Reads from the beginning, once; this object stays as long.
  [[nodiscard]] DelimitedReader Reader(const DelimitedForm& form) {
    return {[this](char* to, std::size_t size) {
              const std::size_t from_sample = std::min(size, sample_.size() - given_);
              if (from_sample == 0) return ReadSome(file_, to, size);
              sample_.copy(to, from_sample, given_);
              given_ += from_sample;
              return from_sample;
            },
            form};
  }

 private:
  FileHandle file_;
  std::string sample_;
  std::size_t given_ = 0;
};

// Tells of progress now and then, since a row is little.
class ImportSteps {
 public:
  ImportSteps(const ImportProgress& progress, std::uint64_t all) : progress_(progress), all_(all) {}
  [[nodiscard]] bool GoOn(std::uint64_t done) {
    if (done < next_) return true;
    next_ = done + kStep;
    return progress_(std::min(done, all_), all_);
  }

 private:
  static constexpr std::uint64_t kStep = 256 << 10;
  const ImportProgress& progress_;
  std::uint64_t all_;
  std::uint64_t next_ = 0;
};

}  // namespace kelvora
