// Whether what is tested runs under the sanitizers. The same objects of a test are linked to both,
// so that only the linked program knows.
#pragma once

extern "C" {
[[gnu::weak]] void __asan_init();
[[gnu::weak]] void __lsan_disable();
[[gnu::weak]] void __lsan_enable();
}

namespace kelvora {

inline bool UnderSanitizers() {
  return __asan_init != nullptr;
}

// While it lives, what is left behind counts as no leak.
class NoLeakCounts {
 public:
  NoLeakCounts() {
    if (UnderSanitizers()) __lsan_disable();
  }
  ~NoLeakCounts() {
    if (UnderSanitizers()) __lsan_enable();
  }
  NoLeakCounts(const NoLeakCounts&) = delete;
  NoLeakCounts& operator=(const NoLeakCounts&) = delete;
};

}  // namespace kelvora
