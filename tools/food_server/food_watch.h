// The thread that keeps the foods of the store as the folders have them.
//
// It looks at the folders every few seconds. What has changed, and hasn't changed again since the
// look before, is read and put into the store as a whole. A folder or a file that can't be read,
// and folders that hold no food at all, leave the foods that were read before, with one line in the
// log.
#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <stop_token>
#include <thread>

#include "food_server/configuration.h"
#include "food_server/food_sources.h"
#include "food_server/service.h"

namespace kelvora::server {

class FoodWatch {
 public:
  // All outlive it.
  FoodWatch(const Configuration& configuration, Store& store, Service& service);

  // Reads all folders again soon, whatever they look like.
  void ReadAgain();

 private:
  void Run(const std::stop_token& stop);
  void Look(const std::stop_token& stop);
  void Read(const std::vector<SourceFile>& files, const std::stop_token& stop);
  // Waits for the next look; a stop or a wish to read ends it.
  void Wait(const std::stop_token& stop);
  void Complain(const std::string& problem);

  const Configuration& configuration_;
  Store& store_;
  Service& service_;
  std::mutex mutex_;
  std::condition_variable_any wish_;
  bool wished_ = true;  // at the start
  std::vector<SourceFile> seen_, read_, tried_;
  std::chrono::steady_clock::time_point tried_at_;
  std::string last_problem_;
  std::jthread thread_;  // last: it uses all the others
};

}  // namespace kelvora::server
