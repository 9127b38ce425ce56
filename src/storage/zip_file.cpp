#include "storage/zip_file.h"

#include <algorithm>
#include <archive.h>
#include <archive_entry.h>
#include <array>
#include <cerrno>
#include <exception>
#include <fstream>
#include <locale.h>
#include <span>
#include <sys/stat.h>
#include <system_error>

#include "storage/disk.h"

namespace kelvora {
namespace {

constexpr std::size_t kPiece = 64 << 10;
// The library goes to each entry's place by itself and reads anew from there: no more than most
// entries take.
constexpr std::size_t kBlock = 8 << 10;

// Loaded once: that takes longer than packing a day.
locale_t Utf8Locale() {
  static const locale_t locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", locale_t{});
  return locale;
}

// The library takes names to be in the character set of the process, which may be any.
class Utf8Names {
 public:
  Utf8Names() {
    if (Utf8Locale() != locale_t{}) before_ = uselocale(Utf8Locale());
  }
  ~Utf8Names() {
    if (before_ != locale_t{}) uselocale(before_);
  }
  Utf8Names(const Utf8Names&) = delete;
  Utf8Names& operator=(const Utf8Names&) = delete;

 private:
  locale_t before_{};
};

[[noreturn]] void Throw(int error) {
  throw std::system_error(error, std::generic_category());
}

// Where the system has no number for a failure the library has one below zero or takes one of those
// for a format that isn't kept.
[[noreturn]] void ThrowErrorOf(archive* zip, int without_number) {
  const int error = archive_errno(zip);
  Throw(error > 0 && error != EILSEQ && error != EINVAL ? error : without_number);
}

}  // namespace

struct ZipWriter::State {
  explicit State(FileHandle made)
      : file(std::move(made)), zip(archive_write_new()), entry(archive_entry_new()) {}
  State(const State&) = delete;
  State& operator=(const State&) = delete;
  ~State() {
    archive_entry_free(entry);
    // Closing writes; what is thrown away is not to be finished by it.
    abandoned = true;
    archive_write_free(zip);
  }

  static la_ssize_t Write(archive* zip, void* data, const void* bytes, std::size_t size) {
    auto& state = *static_cast<State*>(data);
    if (state.abandoned) return static_cast<la_ssize_t>(size);
    try {
      WriteBytes(state.file, {static_cast<const char*>(bytes), size});
      return static_cast<la_ssize_t>(size);
    } catch (const std::system_error& failure) {
      archive_set_error(zip, failure.code().value(), "writing failed");
      state.failure = std::current_exception();
      return ARCHIVE_FATAL;
    }
  }

  void Check(int result) {
    if (failure) std::rethrow_exception(failure);
    if (result < ARCHIVE_OK) ThrowErrorOf(zip, EIO);
  }

  FileHandle file;
  archive* zip;
  archive_entry* entry;
  std::exception_ptr failure;
  bool abandoned = false;
};

ZipWriter::ZipWriter(const std::string& path) : state_(std::make_unique<State>(MakeFile(path))) {
  const Utf8Names names;
  archive* const zip = state_->zip;
  if (zip == nullptr || state_->entry == nullptr) Throw(ENOMEM);
  state_->Check(archive_write_set_format_zip(zip));
  state_->Check(archive_write_set_options(zip, "hdrcharset=UTF-8"));
  state_->Check(archive_write_set_bytes_per_block(zip, static_cast<int>(kPiece)));
  state_->Check(archive_write_set_bytes_in_last_block(zip, 1));
  state_->Check(archive_write_open(zip, state_.get(), nullptr, &State::Write, nullptr));
}

ZipWriter::~ZipWriter() = default;

void ZipWriter::Add(const std::string& name, std::string_view bytes, std::int64_t changed) {
  const Utf8Names names;
  archive_entry* const entry = archive_entry_clear(state_->entry);
  archive_entry_set_pathname(entry, name.c_str());
  archive_entry_set_filetype(entry, AE_IFREG);
  archive_entry_set_perm(entry, S_IRUSR | S_IWUSR);
  archive_entry_set_mtime(entry, static_cast<time_t>(changed), 0);
  archive_entry_set_size(entry, static_cast<la_int64_t>(bytes.size()));
  state_->Check(archive_write_header(state_->zip, entry));
  const la_ssize_t written = archive_write_data(state_->zip, bytes.data(), bytes.size());
  state_->Check(static_cast<int>(written < 0 ? written : ARCHIVE_OK));
  state_->Check(archive_write_finish_entry(state_->zip));
}

void ZipWriter::Finish() {
  const Utf8Names names;
  state_->Check(archive_write_close(state_->zip));
  SyncFile(state_->file);
  state_->file.Close();
}

bool HasListOfEntries(const std::string& path) {
  constexpr std::string_view kMark("PK\x05\x06", 4);
  constexpr std::int64_t kLongestEnd = 22 + 0xFFFF;  // with a comment
  std::ifstream file(path, std::ios::binary | std::ios::ate);
  const std::int64_t size = file.tellg();
  if (size <= 0) return false;
  std::string end(static_cast<std::size_t>(std::min(size, kLongestEnd)), '\0');
  file.seekg(-static_cast<std::streamoff>(end.size()), std::ios::end);
  file.read(end.data(), static_cast<std::streamsize>(end.size()));
  return end.find(kMark) != end.npos;
}

struct ZipReader::State {
  explicit State(FileHandle opened) : file(std::move(opened)), zip(archive_read_new()) {}
  State(const State&) = delete;
  State& operator=(const State&) = delete;
  ~State() { archive_read_free(zip); }

  FileHandle file;
  archive* zip;
};

ZipReader::ZipReader(const std::string& path)
    : state_(std::make_unique<State>(OpenForReading(path))) {
  const Utf8Names names;
  archive* const zip = state_->zip;
  if (zip == nullptr) Throw(ENOMEM);
  if (archive_read_support_format_zip(zip) != ARCHIVE_OK ||
      archive_read_open_fd(zip, state_->file.Descriptor(), kBlock) != ARCHIVE_OK) {
    ThrowErrorOf(zip, EBADMSG);
  }
}

ZipReader::~ZipReader() = default;

std::optional<ZipEntry> ZipReader::Next() {
  const Utf8Names names;
  archive_entry* entry = nullptr;
  const int result = archive_read_next_header(state_->zip, &entry);
  if (result == ARCHIVE_EOF) return std::nullopt;
  if (result < ARCHIVE_WARN) ThrowErrorOf(state_->zip, EBADMSG);
  const char* const name = archive_entry_pathname(entry);
  return ZipEntry{.name = name != nullptr ? name : "",
                  .regular_file = archive_entry_filetype(entry) == AE_IFREG &&
                                  archive_entry_symlink(entry) == nullptr &&
                                  archive_entry_hardlink(entry) == nullptr,
                  .encrypted = archive_entry_is_encrypted(entry) != 0,
                  .changed = archive_entry_mtime(entry)};
}

std::string ZipReader::Read(std::size_t most) {
  const Utf8Names names;
  std::string bytes;
  std::array<char, kPiece> piece;
  while (true) {
    const la_ssize_t size = archive_read_data(state_->zip, piece.data(), piece.size());
    if (size == 0) return bytes;
    if (size < 0) Throw(EBADMSG);
    if (bytes.size() + static_cast<std::size_t>(size) > most) Throw(EFBIG);
    bytes.append(piece.data(), static_cast<std::size_t>(size));
  }
}

}  // namespace kelvora
