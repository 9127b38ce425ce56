// Offering a new food to the food server: what is sent, and what its answer means.
//
// The food stands in the own list before anything is sent. There is no second try, and nothing is
// kept to be sent later.
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "core/program.h"

namespace kelvora {

// A food as it is offered.
struct OfferedFood {
  Text name;  // as typed
  // Of 100 grams, as printed: kilojoules, kilocalories, saturated fat, unsaturated fat, protein,
  // carbohydrates, sodium.
  std::array<Text, 7> values;
};

// Who a food is sent by: the user of this computer, by the environment.
[[nodiscard]] Text SenderName();

// The address of a submission. No value is escaped; each goes up to a line break or a NUL.
[[nodiscard]] std::string SubmissionAddress(const ServerAddresses& servers, const OfferedFood& food,
                                            std::string_view sender);

// Whether the server has taken the food: only the first two characters of its reply count.
[[nodiscard]] bool IsAccepted(std::string_view reply);

class FoodSubmission {
 public:
  explicit FoodSubmission(Program& program) : program_(program) {}
  // Lets a submission that is under way go, without a word.
  ~FoodSubmission();
  FoodSubmission(const FoodSubmission&) = delete;
  FoodSubmission& operator=(const FoodSubmission&) = delete;

  // Sends the food; `on_end` is called when the boxes of its end have been answered. One at a time.
  void Send(const OfferedFood& food, std::function<void()> on_end);
  [[nodiscard]] bool IsUnderWay() const { return under_way_; }
  // Ends what is under way as a connection that fails does, box included.
  void GiveUp();

 private:
  void TakeState(TransferState state);
  void TakeReply();
  void EndTransfer();

  Program& program_;
  bool under_way_ = false;
  std::function<void()> on_end_;
  std::unique_ptr<Transfer> transfer_;
};

}  // namespace kelvora
