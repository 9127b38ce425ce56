// By how much loading food files makes a process grow at its highest.
#pragma once

#include <cstddef>
#include <string>

namespace kelvora::bench {

// The argument that makes this program measure itself, instead of running benchmarks; the folder of
// the food set follows it.
inline constexpr const char* kMeasurePeak = "--measure-peak-of";

// Loads the food files below `program_path` and prints the growth of the highest resident memory in
// bytes. Returns the exit status. To be called first thing in a process of its own: memory that
// anything else has used before would be used again and not count.
int MeasurePeak(const std::string& program_path);

// Runs MeasurePeak in a child process. Throws std::runtime_error if that fails.
[[nodiscard]] std::size_t PeakOfLoading(const std::string& program_path);

}  // namespace kelvora::bench
