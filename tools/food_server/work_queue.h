// Threads that work through a queue, which says when it is full.
#pragma once

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace kelvora::server {

class WorkQueue {
 public:
  using Work = std::function<void()>;

  WorkQueue(std::size_t threads, std::size_t most_waiting);
  // Does what waits, then ends.
  ~WorkQueue();
  WorkQueue(const WorkQueue&) = delete;
  WorkQueue& operator=(const WorkQueue&) = delete;

  void Add(Work work);
  // True if as much waits as should; more is taken all the same.
  [[nodiscard]] bool IsFull() { return Waiting() >= most_waiting_; }
  [[nodiscard]] std::size_t Waiting();

 private:
  void Run();

  std::size_t most_waiting_;
  std::mutex mutex_;
  std::condition_variable more_;
  std::deque<Work> waiting_;
  bool ending_ = false;
  std::vector<std::jthread> threads_;  // last: they use all the others
};

}  // namespace kelvora::server
