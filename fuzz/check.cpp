#include "fuzz/check.h"

#include <cstdio>
#include <cstdlib>
#include <sanitizer/allocator_interface.h>

namespace kelvora {
namespace {

// Of one thread each: the fuzzer watches memory in a thread of its own, which allocates as well.
thread_local bool metering = false;
thread_local std::size_t metered_bytes = 0;

void CountAllocation(const volatile void*, std::size_t size) {
  if (metering) metered_bytes += size;
}

void IgnoreFree(const volatile void*) {}

}  // namespace

void Check(bool holds, const char* rule) {
  if (holds) return;
  std::fprintf(stderr, "Does not hold: %s\n", rule);
  std::abort();
}

AllocationMeter::AllocationMeter() {
  static const bool installed =
      __sanitizer_install_malloc_and_free_hooks(&CountAllocation, &IgnoreFree) != 0;
  Check(installed, "allocations can be metered");
  metered_bytes = 0;
  metering = true;
}

AllocationMeter::~AllocationMeter() {
  metering = false;
}

std::size_t AllocationMeter::Bytes() const {
  return metered_bytes;
}

}  // namespace kelvora

// Quick defaults for many small inputs: short stacks of allocations, and freed memory that comes
// back while it is still warm. What an input freed stays poisoned for the rest of that input.
extern "C" const char* __asan_default_options() {
  return "malloc_context_size=4:quarantine_size_mb=8:thread_local_quarantine_size_kb=512";
}
