#include "core/action_log.h"

#include <algorithm>

namespace kelvora {

void ActionLog::Begin() {
  under_way_ = true;
  told_.clear();
}

void ActionLog::End() {
  under_way_ = false;
  told_.clear();
}

bool ActionLog::FirstTime(std::string_view what) {
  if (!under_way_) return true;
  if (std::ranges::find(told_, what) != told_.end()) return false;
  told_.emplace_back(what);
  return true;
}

UserAction::UserAction(ActionLog& log) : begun_(log.UnderWay() ? nullptr : &log) {
  if (begun_ != nullptr) begun_->Begin();
}

UserAction::~UserAction() {
  if (begun_ != nullptr) begun_->End();
}

}  // namespace kelvora
