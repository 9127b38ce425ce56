#include "peak_memory.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <fstream>
#include <malloc.h>
#include <stdexcept>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>

#include "storage/food_files.h"
#include "support/test_program.h"

namespace kelvora::bench {
namespace {

constexpr std::size_t kBytesPerKilobyte = 1024;

// A line such as "VmHWM:   1234 kB" of a file in /proc, in bytes.
std::size_t BytesIn(const char* path, std::string_view key) {
  std::ifstream file(path);
  for (std::string word; file >> word;) {
    std::size_t kilobytes = 0;
    if (word == key && file >> kilobytes) return kilobytes * kBytesPerKilobyte;
  }
  throw std::runtime_error("The system does not tell " + std::string(key));
}

// Lets the highest resident memory count from here on.
void ResetPeak() {
  std::ofstream file("/proc/self/clear_refs");
  if (!(file << "5" << std::flush)) throw std::runtime_error("The peak can't be reset");
}

}  // namespace

int MeasurePeak(const std::string& program_path) {
  TestProgram test;
  test.program.paths.ProgramPath = program_path;
  malloc_trim(0);
  ResetPeak();
  const std::size_t before = BytesIn("/proc/self/smaps_rollup", "Rss:");
  Load_Databases(test.program);
  const std::size_t peak = BytesIn("/proc/self/status", "VmHWM:");
  if (!test.boxes.shown.empty() || test.program.store.Default_list.Empty()) return 1;
  std::printf("%zu\n", peak - before);
  return 0;
}

std::size_t PeakOfLoading(const std::string& program_path) {
  std::array<int, 2> ends;
  if (pipe(ends.data()) != 0) throw std::runtime_error("No pipe");
  const pid_t child = fork();
  if (child < 0) throw std::runtime_error("No child process");
  if (child == 0) {
    dup2(ends[1], STDOUT_FILENO);
    close(ends[0]);
    close(ends[1]);
    // A new image: the memory of this process, much of it free, is not the child's to use again.
    execl("/proc/self/exe", "kelvora_bench", kMeasurePeak, program_path.c_str(), nullptr);
    _exit(1);
  }
  close(ends[1]);
  std::array<char, 32> answer;
  const ssize_t count = read(ends[0], answer.data(), answer.size());
  close(ends[0]);
  int status = 0;
  waitpid(child, &status, 0);
  std::size_t growth = 0;
  if (status != 0 || count <= 0 ||
      std::from_chars(answer.data(), answer.data() + count, growth).ec != std::errc()) {
    throw std::runtime_error("The child process did not load the foods");
  }
  return growth;
}

}  // namespace kelvora::bench
