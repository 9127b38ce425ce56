// What the operating system alone needs for a file: the limits of reading and writing. No more is
// done than the calls themselves; throws std::system_error where one fails.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace kelvora::bench {

// Opens the file, reads it into the buffer and closes it; returns the number of bytes. The file is
// no longer than the buffer.
std::size_t ReadPlain(const std::string& path, std::span<char> buffer);

// Deletes the file, creates it, writes the bytes, syncs and closes it, and syncs its folder. The
// path is an absolute one.
void WritePlain(const std::string& path, std::string_view bytes);

// Creates the file, writes the bytes and closes it; and waits until all that was written to the
// disk of a folder lies there.
void WritePlainUnsynced(const std::string& path, std::string_view bytes);
void SyncPlain(const std::string& folder);

// As ReadPlain, through the buffered calls of the C library.
std::size_t ReadThroughLibrary(const std::string& path, std::span<char> buffer);

}  // namespace kelvora::bench
