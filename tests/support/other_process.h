// Another process that does something in the same folders and ends without having closed anything,
// as one does that is killed.
#pragma once

#include <functional>
#include <sys/wait.h>
#include <unistd.h>

namespace kelvora {

// True if it came to the end of `work`. What it does in memory is gone with it; files stay.
inline bool InAnotherProcess(const std::function<void()>& work) {
  const pid_t child = fork();
  if (child == 0) {
    int status = 0;
    try {
      work();
    } catch (...) {
      status = 1;
    }
    _exit(status);
  }
  int status = 0;
  return child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status) &&
         WEXITSTATUS(status) == 0;
}

}  // namespace kelvora
