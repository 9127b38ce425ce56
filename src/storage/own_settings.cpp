#include "storage/own_settings.h"

#include <span>
#include <system_error>
#include <vector>

#include "core/web_address.h"
#include "storage/record_file.h"

namespace kelvora {
namespace {

std::string FileOf(const Paths& paths) {
  return paths.SettingsFile.substr(0, paths.SettingsFile.rfind('/') + 1) + "own.conf";
}

struct Line {
  std::string_view whole;
  std::string_view key;
  std::string_view value;
};

std::vector<Line> LinesOf(std::string_view file) {
  std::vector<Line> lines;
  while (!file.empty()) {
    Line line{.whole = file.substr(0, file.find('\n')), .key = {}, .value = {}};
    file.remove_prefix(std::min(file.size(), line.whole.size() + 1));
    const std::size_t mark = line.whole.find('=');
    if (mark != line.whole.npos && !line.whole.starts_with('#')) {
      line.key = TrimmedLine(line.whole.substr(0, mark));
      line.value = TrimmedLine(line.whole.substr(mark + 1));
    }
    lines.push_back(line);
  }
  return lines;
}

}  // namespace

std::optional<std::string> OwnSetting(const Paths& paths, std::string_view key) {
  std::string file;
  try {
    file = ReadFile(FileOf(paths));
  } catch (const std::system_error&) {
    return std::nullopt;
  }
  for (const Line& line : LinesOf(file)) {
    if (line.key == key) return std::string(line.value);
  }
  return std::nullopt;
}

void SetOwnSetting(const Paths& paths, std::string_view key, std::string_view value) {
  const std::string path = FileOf(paths);
  const std::string before = PathIsTaken(path) ? ReadFile(path) : std::string();
  const std::string wanted = std::string(key) + " = " + std::string(value) + "\n";
  std::string after;
  bool set = false;
  for (const Line& line : LinesOf(before)) {
    if (line.key != key) {
      after.append(line.whole) += '\n';
    } else if (!set) {
      after += wanted;
      set = true;
    }
  }
  if (!set) after += wanted;
  if (after == before) return;
  const std::string_view piece = after;
  PutInPlace(path, path + ".new", std::span(&piece, 1), Durable::at_once);
}

}  // namespace kelvora
