#include "food_server/food_watch.h"

#include <malloc.h>
#include <utility>

#include "food_server/log.h"

namespace kelvora::server {
namespace {

constexpr std::chrono::milliseconds kBetweenLooks(1000);
constexpr std::chrono::seconds kAfterFailure(10);  // of the same files

// A million foods take half a gigabyte while they are read, which the C library would keep.
struct GiveMemoryBack {
  GiveMemoryBack() = default;
  GiveMemoryBack(const GiveMemoryBack&) = delete;
  GiveMemoryBack& operator=(const GiveMemoryBack&) = delete;
  ~GiveMemoryBack() { malloc_trim(0); }
};

}  // namespace

FoodWatch::FoodWatch(const Configuration& configuration, Store& store, Service& service)
    : configuration_(configuration),
      store_(store),
      service_(service),
      thread_([this](const std::stop_token& stop) { Run(stop); }) {}

void FoodWatch::ReadAgain() {
  const std::lock_guard lock(mutex_);
  wished_ = true;
  wish_.notify_all();
}

void FoodWatch::Wait(const std::stop_token& stop) {
  std::unique_lock lock(mutex_);
  wish_.wait_for(lock, stop, kBetweenLooks, [this] { return wished_; });
}

void FoodWatch::Complain(const std::string& problem) {
  if (problem == last_problem_) return;
  last_problem_ = problem;
  Log(LogLevel::error, "the foods stay as they were: " + problem);
}

void FoodWatch::Run(const std::stop_token& stop) {
  while (!stop.stop_requested()) {
    try {
      Look(stop);
    } catch (const std::exception& failure) {
      Complain(failure.what());
    }
    Wait(stop);
  }
}

void FoodWatch::Look(const std::stop_token& stop) {
  if (store_.StateOfFoods() || configuration_.foods.empty()) service_.SetReady();
  if (configuration_.foods.empty()) return;
  auto files = FilesOf(configuration_.foods);
  const bool settled = files == seen_;
  seen_ = files;
  bool wished = false;
  {
    const std::lock_guard lock(mutex_);
    wished = std::exchange(wished_, false);
  }
  if (wished) {
    read_.clear();
    tried_.clear();
  }
  if (files == read_) last_problem_.clear();
  // A file that is being written is read when it is whole; at a wish it has had its time.
  if ((!settled && !wished) || files == read_) return;
  const auto now = std::chrono::steady_clock::now();
  if (files == tried_ && now - tried_at_ < kAfterFailure) return;
  tried_ = files;
  tried_at_ = now;
  Read(files, stop);
  read_ = std::move(files);
  last_problem_.clear();
  service_.SetReady();
}

void FoodWatch::Read(const std::vector<SourceFile>& files, const std::stop_token& stop) {
  const GiveMemoryBack after;
  const ReadFoods foods = ReadAllFoods(files);
  if (foods.lines.Empty()) throw std::runtime_error("no folder holds a food");
  const std::string count = std::to_string(foods.lines.Count());
  if (store_.StateOfFoods() == foods.state) {
    return Log(LogLevel::info, "the store holds the " + count + " foods of the folders");
  }
  Log(LogLevel::info, "reading " + count + " foods of " + std::to_string(files.size()) + " files");
  const std::vector<std::string_view> lines(foods.lines.begin(), foods.lines.end());
  const bool done =
      store_.ReplaceFoods(lines, foods.state, [&stop] { return !stop.stop_requested(); });
  if (stop.stop_requested() && !done) return;
  if (!done) throw std::runtime_error("another server puts foods into the store just now");
  Log(LogLevel::info,
      count + " foods can be searched; passed over: " + std::to_string(foods.passed));
}

}  // namespace kelvora::server
