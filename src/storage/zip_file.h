// Zip files over libarchive: files with UTF-8 names and their bytes, one after the other. This file
// knows nothing of what they mean. Throws std::system_error; what libarchive can't say in the
// system's words is std::errc::io_error, and a file that is no zip or is damaged EBADMSG.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace kelvora {

class ZipWriter {
 public:
  // Makes a new file of its owner only.
  explicit ZipWriter(const std::string& path);
  ~ZipWriter();
  ZipWriter(const ZipWriter&) = delete;
  ZipWriter& operator=(const ZipWriter&) = delete;

  // `changed` in seconds since 1970.
  void Add(const std::string& name, std::string_view bytes, std::int64_t changed);
  // Writes the list of what was added, and syncs and closes the file. A file that is not finished
  // is no zip.
  void Finish();

 private:
  struct State;
  std::unique_ptr<State> state_;
};

struct ZipEntry {
  std::string name;  // as it stands there, which may be anything
  bool regular_file = false;
  bool encrypted = false;
  std::int64_t changed = 0;
};

// False for a file that doesn't have the list of its entries at its end, as one that was cut.
[[nodiscard]] bool HasListOfEntries(const std::string& path);

// Reads from the front to the end, once. Of a file without its list it finds what stands
// there whole.
class ZipReader {
 public:
  explicit ZipReader(const std::string& path);
  ~ZipReader();
  ZipReader(const ZipReader&) = delete;
  ZipReader& operator=(const ZipReader&) = delete;

  // The next entry; nothing behind the last one. Throws where the rest can't be read at all.
  [[nodiscard]] std::optional<ZipEntry> Next();
  // The bytes of the entry that Next gave last. Throws std::errc::file_too_large for more than
  // `most`, and EBADMSG where they are not what was put in; Next goes on behind either.
  [[nodiscard]] std::string Read(std::size_t most);

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace kelvora
