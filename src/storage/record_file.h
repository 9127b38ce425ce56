// Counted records of strings: the one layer under every file of the program.
//
//   offset 0   signed 32-bit count of records, little-endian; written as 1
//   then       that many records, each a fixed row of strings
//   a string   unsigned 16-bit length, then that many bytes of Windows-1252
//              from 65,535 bytes on: 0xFFFF, unsigned 32-bit length, bytes
//
// No magic, no version, no checksum. Only the first record is read. What a cut file lacks reads as
// empty; a file that ends inside a string yields the bytes that are there. This file knows nothing
// of what the strings mean.
#pragma once

#include <optional>
#include <span>
#include <string>

#include "core/records.h"

namespace kelvora {

// The whole file. Throws std::system_error.
[[nodiscard]] std::string ReadFile(const std::string& path);

// Deletes the file and writes it anew. Throws std::system_error at whichever step fails, the
// closing included; the old file is gone from the delete on.
void WriteFileAnew(const std::string& path, std::string_view bytes);

// Deletes the file if there is one. Throws std::system_error.
void DeleteFileIfThere(const std::string& path);

// Fills `strings` from the first record of `bytes`; false, with `strings` untouched, if the count
// is 0 or less.
[[nodiscard]] bool DecodeFirstRecord(std::string_view bytes, std::span<Text> strings);

// A file image of one record.
[[nodiscard]] std::string EncodeRecord(std::span<const Text> strings);

// The first record of a file, nothing if it counts none. Throws std::system_error.
template <class AnyRecord>
[[nodiscard]] std::optional<AnyRecord> ReadFirstRecord(const std::string& path) {
  AnyRecord record;
  if (!DecodeFirstRecord(ReadFile(path), record.strings)) return std::nullopt;
  return record;
}

// The first record of a file; one that counts none leaves the record of the previous read of that
// kind standing, and fails before any read. Throws std::system_error or std::runtime_error.
template <class AnyRecord>
[[nodiscard]] const AnyRecord& ReadOrKeepRecord(const std::string& path,
                                                std::optional<AnyRecord>& last_read);

// Writes a file of one record, deleting the old one first. Throws std::system_error.
template <class AnyRecord>
void WriteRecord(const std::string& path, const AnyRecord& record) {
  WriteFileAnew(path, EncodeRecord(record.strings));
}

// Thrown where a record is needed and no file has yielded one.
[[noreturn]] void ThrowNoRecord();

template <class AnyRecord>
const AnyRecord& ReadOrKeepRecord(const std::string& path, std::optional<AnyRecord>& last_read) {
  if (auto record = ReadFirstRecord<AnyRecord>(path)) last_read = std::move(record);
  if (!last_read) ThrowNoRecord();
  return *last_read;
}

}  // namespace kelvora
