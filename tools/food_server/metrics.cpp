#include "food_server/metrics.h"

#include <algorithm>
#include <string_view>

namespace kelvora::server {
namespace {

constexpr std::array<std::string_view, kRequestKinds> kKindNames = {"search", "submission",
                                                                    "health", "metrics", "other"};

class PrometheusText {
 public:
  void Begin(std::string_view name, std::string_view type, std::string_view help) {
    name_ = std::string("kelvora_food_server_").append(name);
    text_ += "# HELP " + name_ + " " + std::string(help) + "\n";
    text_ += "# TYPE " + name_ + " " + std::string(type) + "\n";
  }
  // `labels` with their braces, behind the ending of the name.
  void Add(const std::string& labels, const std::string& value) {
    text_ += name_ + labels + " " + value + "\n";
  }
  void One(std::string_view name, std::string_view type, std::string_view help,
           std::uint64_t value) {
    Begin(name, type, help);
    Add("", std::to_string(value));
  }
  [[nodiscard]] std::string Text() && { return std::move(text_); }

 private:
  std::string name_, text_;
};

std::string Seconds(double seconds) {
  std::string text = std::to_string(seconds);
  text.erase(text.find_last_not_of('0') + 1);
  if (text.ends_with('.')) text.pop_back();
  return text;
}

}  // namespace

void Metrics::Count(RequestKind kind, int status, Duration took) {
  const auto found = std::ranges::find(kStatuses, status);
  if (found != kStatuses.end()) {
    ++requests_[static_cast<std::size_t>(kind)]
               [static_cast<std::size_t>(found - kStatuses.begin())];
  }
  if (kind != RequestKind::search || status != 200) return;
  const double seconds = std::chrono::duration<double>(took).count();
  ++searches_[static_cast<std::size_t>(std::ranges::lower_bound(kBounds, seconds) -
                                       kBounds.begin())];
  search_microseconds_ += static_cast<std::uint64_t>(seconds * 1e6);
}

std::string Metrics::Text(const Now& now) const {
  PrometheusText text;
  text.Begin("requests_total", "counter", "Requests that were answered.");
  for (std::size_t kind = 0; kind < kRequestKinds; ++kind) {
    for (std::size_t i = 0; i < kStatuses.size(); ++i) {
      text.Add("{kind=\"" + std::string(kKindNames[kind]) + "\",status=\"" +
                   std::to_string(kStatuses[i]) + "\"}",
               std::to_string(requests_[kind][i]));
    }
  }
  text.Begin("search_seconds", "histogram", "From a whole request to its answer.");
  std::uint64_t sum = 0;
  for (std::size_t i = 0; i < searches_.size(); ++i) {
    sum += searches_[i];
    const std::string bound = i < kBounds.size() ? Seconds(kBounds[i]) : "+Inf";
    text.Add("_bucket{le=\"" + bound + "\"}", std::to_string(sum));
  }
  text.Add("_sum", Seconds(static_cast<double>(search_microseconds_) / 1e6));
  text.Add("_count", std::to_string(sum));
  text.One("connections", "gauge", "Connections that are open.", now.connections);
  text.One("waiting_requests", "gauge", "Requests that wait for a thread.", now.waiting);
  text.One("store_up", "gauge", "Whether the store answers.", now.store_answers ? 1 : 0);
  if (!now.store_answers) return std::move(text).Text();
  text.One("foods", "gauge", "Foods that searches find.", now.store.foods);
  text.Begin("submissions", "gauge", "Submissions by state.");
  text.Add("{state=\"unchecked\"}", std::to_string(now.store.unchecked));
  text.Add("{state=\"accepted\"}", std::to_string(now.store.accepted));
  text.Add("{state=\"refused\"}", std::to_string(now.store.refused));
  return std::move(text).Text();
}

}  // namespace kelvora::server
