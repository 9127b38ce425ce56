#include "food_server/work_queue.h"

namespace kelvora::server {

WorkQueue::WorkQueue(std::size_t threads, std::size_t most_waiting) : most_waiting_(most_waiting) {
  for (std::size_t i = 0; i < threads; ++i) threads_.emplace_back([this] { Run(); });
}

WorkQueue::~WorkQueue() {
  {
    const std::lock_guard lock(mutex_);
    ending_ = true;
  }
  more_.notify_all();
}

void WorkQueue::Add(Work work) {
  {
    const std::lock_guard lock(mutex_);
    waiting_.push_back(std::move(work));
  }
  more_.notify_one();
}

std::size_t WorkQueue::Waiting() {
  const std::lock_guard lock(mutex_);
  return waiting_.size();
}

void WorkQueue::Run() {
  for (;;) {
    std::unique_lock lock(mutex_);
    more_.wait(lock, [this] { return ending_ || !waiting_.empty(); });
    if (waiting_.empty()) return;
    const Work work = std::move(waiting_.front());
    waiting_.pop_front();
    lock.unlock();
    work();
  }
}

}  // namespace kelvora::server
