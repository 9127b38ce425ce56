// Counted records of strings: the one layer under every file of the program.
//
//   offset 0   signed 32-bit count of records, little-endian; written as 1
//   then       that many records, each a fixed row of strings
//   a string   unsigned 16-bit length, then that many bytes of Windows-1252
//              from 65,535 bytes on: 0xFFFF, unsigned 32-bit length, bytes
//
// No magic, no version, no checksum. Only the first record is read. What a cut file lacks reads as
// empty; a file that ends inside a string, or inside the count, yields the bytes that are there.
// This file knows nothing of what the strings mean.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "core/records.h"
#include "storage/disk.h"

namespace kelvora {

// A regular file, open for reading. Anything else is refused, so that none can keep the program
// waiting.
class InputFile {
 public:
  // Throws std::system_error.
  explicit InputFile(const std::string& path);
  // Nothing if the file can't be opened.
  [[nodiscard]] static std::optional<InputFile> TryOpen(const std::string& path);

  // The whole file; asked once. Throws std::system_error.
  [[nodiscard]] std::string ReadAll() const { return ReadBytes(file_); }
  // The state that it was opened in.
  [[nodiscard]] FileStamp Stamp() const { return StampOf(file_); }

 private:
  FileHandle file_;
};

// The whole file. Throws std::system_error.
[[nodiscard]] std::string ReadFile(const std::string& path);

// Deletes the file and writes it anew, see ReplaceFile. Throws std::system_error at whichever step
// fails, the closing included.
void WriteFileAnew(const std::string& path, std::string_view bytes,
                   NewFileMode mode = NewFileMode::by_mask);
// The same of pieces that follow each other, for what is too large to be joined first.
void WriteFileAnew(const std::string& path, std::span<const Text> pieces);

// Fills `strings` from the first record of `bytes`; false, with `strings` untouched, if the count
// is 0 or less. Fewer bytes than a count has are a file cut short: its strings are empty. Views
// stay valid as long as `bytes`.
[[nodiscard]] bool DecodeFirstRecord(std::string_view bytes, std::span<Text> strings);
[[nodiscard]] bool DecodeFirstRecord(std::string_view bytes, std::span<std::string_view> strings);

// A file image of one record. Throws std::system_error for a string of 4 GiB or more.
[[nodiscard]] std::string EncodeRecord(std::span<const Text> strings);

// What stands in front of a long string of that size in a file of one record with that string
// alone. Throws std::system_error for 4 GiB or more.
[[nodiscard]] std::string FrontOfLongString(std::uint64_t size);

// The first record of a file image, nothing if it counts none.
template <class AnyRecord>
[[nodiscard]] std::optional<AnyRecord> DecodeRecord(std::string_view bytes) {
  AnyRecord record;
  if (!DecodeFirstRecord(bytes, record.strings)) return std::nullopt;
  return record;
}

// The first record of a file, nothing if it counts none. Throws std::system_error.
template <class AnyRecord>
[[nodiscard]] std::optional<AnyRecord> ReadFirstRecord(const std::string& path) {
  return DecodeRecord<AnyRecord>(ReadFile(path));
}

// Writes a file of one record, deleting the old one first. Throws std::system_error.
template <class AnyRecord>
void WriteRecord(const std::string& path, const AnyRecord& record,
                 NewFileMode mode = NewFileMode::by_mask) {
  WriteFileAnew(path, EncodeRecord(record.strings), mode);
}

// Thrown where a record is needed and no file has yielded one.
[[noreturn]] void ThrowNoRecord();

}  // namespace kelvora
