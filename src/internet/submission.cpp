#include "internet/submission.h"

#include <cstdlib>
#include <utility>

#include "core/web_address.h"
#include "internet/sending.h"
#include "language/new_food_texts.h"
#include "storage/settings_file.h"

namespace kelvora {
namespace {

using namespace new_food_text;

constexpr std::string_view kAccepted = "OK";
constexpr std::string_view kRemark = "Kelvora FOOD";
constexpr std::string_view kUnknownSender = "user";

// The keys of the values in the order in which they are sent, and where each value stands.
struct ValueKey {
  std::string_view key;
  std::size_t value;
};
constexpr std::array<ValueKey, 7> kValueKeys = {{
    {"&kj=", 0},
    {"&kcal=", 1},
    {"&vvet=", 2},
    {"&ovet=", 3},
    {"&kdr=", 5},
    {"&ew=", 4},
    {"&nat=", 6},
}};

void TellOfFailedConnection(Program& program) {
  program.platform.boxes.Show({.title = program.texts[kSendErrorTitle],
                               .text = JoinLines(program.texts, {kSendError, kSendErrorCheck}),
                               .icon = BoxIcon::error});
}

}  // namespace

Text SenderName() {
  for (const char* const variable : {"USERNAME", "USER"}) {
    const char* const name = std::getenv(variable);
    if (name != nullptr && *name != '\0') return TextFromUtf8(name);
  }
  return Text(kUnknownSender);
}

std::string SubmissionAddress(const ServerAddresses& servers, const OfferedFood& food,
                              std::string_view sender) {
  std::string address = servers.submission;
  const auto add = [&address](std::string_view key, std::string_view value) {
    address.append(key).append(SendablePart(value));
  };
  add("?naam=", food.name);
  for (const auto& [key, value] : kValueKeys) add(key, food.values[value]);
  add("&opmerking=", kRemark);
  add("&gepost=", sender);
  return address;
}

bool IsAccepted(std::string_view reply) {
  return reply.starts_with(kAccepted);
}

FoodSubmission::~FoodSubmission() {
  EndTransfer();
}

void FoodSubmission::Send(const OfferedFood& food, std::function<void()> on_end) {
  if (under_way_) return;
  under_way_ = true;
  on_end_ = std::move(on_end);
  program_.platform.pointer.Hold();
  const bool sent = program_.Guard("#F1-3", [&] {
    transfer_ =
        program_.platform.transfers.Get(SubmissionAddress(program_.servers, food, SenderName()),
                                        [this](TransferState state) { TakeState(state); });
  });
  if (!sent) GiveUp();
}

void FoodSubmission::TakeState(TransferState state) {
  const UserAction action(program_.actions);
  if (state == TransferState::error) return GiveUp();
  program_.Guard("#F1-4", [&] { TakeReply(); });
  EndTransfer();
  std::exchange(on_end_, nullptr)();
}

void FoodSubmission::TakeReply() {
  if (!IsAccepted(WholeReply(*transfer_))) return;
  Tell(program_, BoxIcon::information,
       JoinLines(program_.texts,
                 {kSubmitted, std::nullopt, kSubmittedStatus, kSubmittedCheck, kSubmittedThanks}));
  AddToCounter(program_.settings[Setting::SubmitCount], 1);
  Save_Settings(program_);
}

void FoodSubmission::GiveUp() {
  if (!under_way_) return;
  transfer_.reset();
  TellOfFailedConnection(program_);
  EndTransfer();
  std::exchange(on_end_, nullptr)();
}

void FoodSubmission::EndTransfer() {
  if (under_way_) program_.platform.pointer.Release();
  under_way_ = false;
  transfer_.reset();
}

}  // namespace kelvora
