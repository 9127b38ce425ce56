#include "core/unread.h"

#include <algorithm>

namespace kelvora {
namespace {

// A box that names more grows beyond the screen.
constexpr std::size_t kMostNames = 10;

}  // namespace

void Unread::Add(std::string_view name, const std::exception& failure) {
  const Text words = DescribeFailure(failure);
  auto reason = std::ranges::find(reasons_, words, &Reason::words);
  if (reason == reasons_.end()) reason = reasons_.insert(reason, Reason{words, {}});
  if (!name.empty()) reason->names.emplace_back(name);
}

void Unread::Report(const FailureBox& box, std::string_view code) const {
  if (Empty()) return;
  Text description;
  for (const Reason& reason : reasons_) {
    if (!description.empty()) description += '\n';
    description += reason.words;
    const std::size_t shown = std::min(reason.names.size(), kMostNames);
    for (std::size_t i = 0; i < shown; ++i) {
      description.append(i == 0 ? ": " : ", ").append(reason.names[i]);
    }
    if (shown < reason.names.size()) description += ", ...";
  }
  ReportFailure(box, code, description);
}

}  // namespace kelvora
