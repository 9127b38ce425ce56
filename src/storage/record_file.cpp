#include "storage/record_file.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>

#include "core/common.h"
#include "core/failure.h"

namespace kelvora {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLongStringMark = 0xFFFF;
constexpr std::size_t kLongestString = 0xFFFFFFFF;

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

[[noreturn]] void ThrowFileError(int error = errno) {
  throw std::system_error(error != 0 ? error : EIO, std::generic_category());
}

// Opens a regular file, or makes one. A folder, a pipe or a device in its place is refused: opening
// one may wait for ever.
File Open(const std::string& path, const char* mode) {
  std::error_code unknown;
  const fs::file_status status = fs::status(path, unknown);
  if (fs::is_directory(status)) ThrowFileError(EISDIR);
  if (fs::exists(status) && !fs::is_regular_file(status)) ThrowFileError(EINVAL);
  errno = 0;
  File file(std::fopen(path.c_str(), mode));
  if (file == nullptr) ThrowFileError();
  return file;
}

// A file that nobody may write is not deleted either, though its folder would allow it.
void ThrowIfWriteProtected(const std::string& path) {
  constexpr fs::perms kAnyWrite =
      fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  std::error_code unknown;
  if ((fs::status(path, unknown).permissions() & kAnyWrite) == fs::perms::none) {
    ThrowFileError(EACCES);
  }
  Open(path, "r+b");
}

void WriteWhole(const std::string& path, std::string_view bytes) {
  File file = Open(path, "wb");
  errno = 0;
  if (!bytes.empty() && std::fwrite(bytes.data(), 1, bytes.size(), file.get()) != bytes.size()) {
    ThrowFileError();
  }
  // Buffered bytes may meet a full disk only now.
  if (std::fclose(file.release()) != 0) ThrowFileError();
}

// Reads little-endian numbers and strings from the front of a file image; what lies beyond the end
// reads as zero bytes and empty strings.
class RecordReader {
 public:
  explicit RecordReader(std::string_view bytes) : rest_(bytes) {}

  std::uint32_t Number(std::size_t size) {
    std::uint32_t value = 0;
    const std::string_view bytes = Take(size);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
      value |= std::uint32_t{static_cast<unsigned char>(bytes[i])} << (8 * i);
    }
    return value;
  }

  std::string_view String() {
    const std::uint32_t length = Number(2);
    return Take(length == kLongStringMark ? Number(4) : length);
  }

 private:
  std::string_view Take(std::size_t size) {
    const std::string_view taken = rest_.substr(0, size);
    rest_.remove_prefix(taken.size());
    return taken;
  }

  std::string_view rest_;
};

void AppendNumber(std::string& out, std::size_t value, int size) {
  for (int i = 0; i < size; ++i) out += static_cast<char>(value >> (8 * i));
}

void AppendString(std::string& out, std::string_view text) {
  if (text.size() > kLongestString) ThrowSystemError(std::errc::file_too_large);
  if (text.size() < kLongStringMark) {
    AppendNumber(out, text.size(), 2);
  } else {
    AppendNumber(out, kLongStringMark, 2);
    AppendNumber(out, text.size(), 4);
  }
  out += text;
}

template <class AnyString>
bool DecodeInto(std::string_view bytes, std::span<AnyString> strings) {
  RecordReader reader(bytes);
  if (static_cast<std::int32_t>(reader.Number(4)) <= 0) return false;
  for (AnyString& string : strings) string = reader.String();
  return true;
}

}  // namespace

InputFile::InputFile(const std::string& path) : file_(Open(path, "rb").release()) {}

std::optional<InputFile> InputFile::TryOpen(const std::string& path) {
  try {
    return InputFile(path);
  } catch (const std::system_error&) {
    return std::nullopt;
  }
}

std::string InputFile::ReadAll() {
  std::FILE* const file = file_.get();
  // The bytes go straight to where they stay.
  std::setvbuf(file, nullptr, _IONBF, 0);
  const long size = std::fseek(file, 0, SEEK_END) == 0 ? std::ftell(file) : 0;
  std::rewind(file);
  std::string bytes(static_cast<std::size_t>(std::max(size, 0L)), '\0');
  errno = 0;
  bytes.resize(std::fread(bytes.data(), 1, bytes.size(), file));
  if (std::ferror(file) != 0) ThrowFileError();
  return bytes;
}

std::string ReadFile(const std::string& path) {
  return InputFile(path).ReadAll();
}

void DeleteFileIfThere(const std::string& path) {
  while (FileExists(path)) {
    ThrowIfWriteProtected(path);
    if (std::remove(path.c_str()) != 0) ThrowFileError();
  }
}

void WriteFileAnew(const std::string& path, std::string_view bytes) {
  DeleteFileIfThere(path);
  try {
    WriteWhole(path, bytes);
  } catch (...) {
    // A part of a file would be taken for the whole.
    if (FileExists(path)) std::remove(path.c_str());
    throw;
  }
}

bool DecodeFirstRecord(std::string_view bytes, std::span<Text> strings) {
  return DecodeInto(bytes, strings);
}

bool DecodeFirstRecord(std::string_view bytes, std::span<std::string_view> strings) {
  return DecodeInto(bytes, strings);
}

std::string EncodeRecord(std::span<const Text> strings) {
  std::size_t size = 4;
  for (const Text& string : strings) size += string.size() + 6;
  std::string bytes;
  bytes.reserve(size);
  AppendNumber(bytes, 1, 4);
  for (const Text& string : strings) AppendString(bytes, string);
  return bytes;
}

void ThrowNoRecord() {
  ThrowSystemError(std::errc::no_message_available);
}

}  // namespace kelvora
