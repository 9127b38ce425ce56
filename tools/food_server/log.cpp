#include "food_server/log.h"

#include <atomic>
#include <cstdio>
#include <string>

namespace kelvora::server {
namespace {

std::atomic<LogLevel> shown = LogLevel::info;

}  // namespace

void SetLogLevel(LogLevel level) {
  shown = level;
}

void Log(LogLevel level, std::string_view text) {
  if (level > shown) return;
  std::string line = "kelvora-food-server: ";
  for (const char letter : text) {
    line += (letter >= 0 && letter < ' ') || letter == '\x7F' ? '?' : letter;
  }
  line += '\n';
  // One write of one line.
  std::fwrite(line.data(), 1, line.size(), stderr);
}

}  // namespace kelvora::server
