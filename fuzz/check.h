// What every fuzz target needs: a check that ends the process, and a meter of allocated memory.
//
// Both work in every build type. libFuzzer takes the end of the process for a finding, prints the
// stack and keeps the input.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace kelvora {

// Ends the process with `rule`, the sentence that should have held, unless it holds.
void Check(bool holds, const char* rule);

// The input of a target as text.
[[nodiscard]] inline std::string_view InputOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

// Adds up all bytes that the process asks for during its life. What is freed meanwhile counts too,
// so the sum bounds the most that was held at once. One meter at a time.
class AllocationMeter {
 public:
  AllocationMeter();
  ~AllocationMeter();
  AllocationMeter(const AllocationMeter&) = delete;
  AllocationMeter& operator=(const AllocationMeter&) = delete;
  [[nodiscard]] std::size_t Bytes() const;
};

}  // namespace kelvora
