#include "food_server/service.h"

#include <ctime>
#include <variant>

#include "food_server/fold.h"
#include "food_server/food_line.h"
#include "food_server/log.h"
#include "food_server/submission_form.h"

namespace kelvora::server {
namespace {

constexpr std::string_view kUtf8 = "text/plain; charset=utf-8";
constexpr std::int64_t kHour = 3600;

std::string_view QueryOf(std::string_view target) {
  const std::size_t mark = target.find('?');
  return mark == target.npos ? std::string_view() : target.substr(mark + 1);
}

Reply Said(int status, std::string text) {
  return {.status = status, .body = std::move(text) + "\n", .type = kUtf8};
}

}  // namespace

RequestKind KindOf(std::string_view target) {
  const std::string_view path = target.substr(0, target.find('?'));
  if (path == "/modules/kvzoek.php") return RequestKind::search;
  if (path == "/modules/swadd.php") return RequestKind::submission;
  if (path == "/health") return RequestKind::health;
  if (path == "/metrics") return RequestKind::metrics;
  return RequestKind::other;
}

std::optional<std::string_view> TermOf(std::string_view target) {
  constexpr std::string_view kItem = "item=";
  const std::string_view query = QueryOf(target);
  if (!query.starts_with(kItem)) return std::nullopt;
  return query.substr(kItem.size());
}

Service::Service(const Configuration& configuration, Store& store, Metrics& metrics)
    : configuration_(configuration), store_(store), metrics_(metrics) {}

Reply Service::Answer(const Request& request) {
  try {
    switch (KindOf(request.target)) {
      case RequestKind::search:
        return Search(request.target);
      case RequestKind::submission:
        return Submit(request);
      case RequestKind::health:
        return Health();
      case RequestKind::metrics:
        return ShowMetrics();
      case RequestKind::other:
        break;
    }
    return Said(404, "nothing is here");
  } catch (const std::exception& failure) {
    Log(LogLevel::error, failure.what());
    return Said(503, "the store doesn't answer");
  }
}

Reply Service::Search(std::string_view target) {
  const auto term = TermOf(target);
  if (!term) return Said(400, "a search begins with ?item=");
  if (!ready_) return Said(503, "the foods are being read");
  Reply reply;
  for (const std::string& food : store_.Search(FoldTerm(*term), kMostFoodsOfReply)) {
    (reply.body += food) += kReplyEnd;
  }
  return reply;
}

Reply Service::Submit(const Request& request) {
  const std::string_view query = QueryOf(request.target);
  auto read = ReadSubmission(query);
  if (const auto* const refusal = std::get_if<Refusal>(&read)) {
    return Said(400, "REFUSED: " + refusal->reason);
  }
  auto& [food, sender] = std::get<SubmittedFood>(read);
  const std::int64_t now = std::time(nullptr);
  const Submission submission{.time = now,
                              .food = std::move(food),
                              .sender = std::move(sender),
                              .address = request.address,
                              .query = std::string(query)};
  const SubmissionLimits limits{.of_address = configuration_.submissions_per_hour,
                                .since = now - kHour,
                                .unchecked = configuration_.unchecked_submissions};
  switch (store_.AddSubmission(submission, limits)) {
    case Added::too_many_of_address:
      return Said(429, "REFUSED: too many foods in one hour");
    case Added::too_many_unchecked:
      return Said(503, "REFUSED: too many foods wait to be checked");
    case Added::yes:
      break;
  }
  Log(LogLevel::info, "a food was submitted from " + request.address);
  return Said(200, "OK");
}

Reply Service::Health() {
  const StoreCounts counts = store_.Counts();
  if (!ready_) return Said(503, "the foods are being read");
  return Said(200, "ok\nfoods " + std::to_string(counts.foods));
}

Reply Service::ShowMetrics() {
  Metrics::Now now = now_();
  try {
    now.store = store_.Counts();
    now.store_answers = true;
  } catch (const StoreFailure& failure) {
    Log(LogLevel::error, failure.what());
  }
  return {.status = 200, .body = metrics_.Text(now), .type = "text/plain; version=0.0.4"};
}

}  // namespace kelvora::server
