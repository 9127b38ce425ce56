#include "storage/record_file.h"

#include <algorithm>
#include <cstdint>
#include <system_error>

#include "core/failure.h"

namespace kelvora {
namespace {

constexpr std::size_t kCountSize = 4;
constexpr std::size_t kLongStringMark = 0xFFFF;
constexpr std::size_t kLongestString = 0xFFFFFFFF;

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

void AppendNumber(std::string& out, std::size_t value, std::size_t size) {
  for (std::size_t i = 0; i < size; ++i) out += static_cast<char>(value >> (8 * i));
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
  const auto count = static_cast<std::int32_t>(reader.Number(kCountSize));
  if (count <= 0 && bytes.size() >= kCountSize) return false;
  for (AnyString& string : strings) string = reader.String();
  return true;
}

}  // namespace

InputFile::InputFile(const std::string& path) : file_(OpenForReading(path)) {}

std::optional<InputFile> InputFile::TryOpen(const std::string& path) {
  try {
    return InputFile(path);
  } catch (const std::system_error&) {
    return std::nullopt;
  }
}

std::string ReadFile(const std::string& path) {
  return InputFile(path).ReadAll();
}

void WriteFileAnew(const std::string& path, std::string_view bytes, NewFileMode mode) {
  ReplaceFile(path, FilePieces(&bytes, 1), mode);
}

void WriteFileAnew(const std::string& path, std::span<const Text> pieces) {
  const std::vector<std::string_view> views(pieces.begin(), pieces.end());
  ReplaceFile(path, views, NewFileMode::by_mask);
}

bool DecodeFirstRecord(std::string_view bytes, std::span<Text> strings) {
  return DecodeInto(bytes, strings);
}

bool DecodeFirstRecord(std::string_view bytes, std::span<std::string_view> strings) {
  return DecodeInto(bytes, strings);
}

std::string EncodeRecord(std::span<const Text> strings) {
  std::size_t size = kCountSize;
  for (const Text& string : strings) size += string.size() + 6;
  std::string bytes;
  bytes.reserve(size);
  AppendNumber(bytes, 1, kCountSize);
  for (const Text& string : strings) AppendString(bytes, string);
  return bytes;
}

std::string FrontOfLongString(std::uint64_t size) {
  if (size > kLongestString) ThrowSystemError(std::errc::file_too_large);
  std::string front;
  AppendNumber(front, 1, kCountSize);
  AppendNumber(front, kLongStringMark, 2);
  AppendNumber(front, size, 4);
  return front;
}

void ThrowNoRecord() {
  ThrowSystemError(std::errc::no_message_available);
}

}  // namespace kelvora
