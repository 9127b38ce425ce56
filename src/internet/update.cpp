#include "internet/update.h"

#include <algorithm>

#include "core/web_address.h"
#include "internet/sending.h"
#include "internet/servers.h"
#include "language/own_texts.h"
#include "language/update_texts.h"
#include "nutrition/numbers.h"

namespace kelvora {
namespace {

using namespace update_text;

constexpr std::string_view kQuery = "?version=";
constexpr int kTimeoutMilliseconds = 3000;
constexpr int kShownMilliseconds = 1000;

double NumberOf(std::string_view version) {
  Text digits(version);
  std::erase(digits, '.');
  return Val(digits);
}

}  // namespace

std::vector<Text> FieldsOfUpdate(std::string_view reply) {
  const auto fields = FieldsOf(reply);
  return {fields.begin(), fields.end()};
}

bool IsNewerVersion(std::string_view version) {
  return !version.empty() && NumberOf(version) > NumberOf(VersionText);
}

bool IsConnected(const Program& program, std::string_view address) {
  return IsLoopback(address) || program.platform.transfers.NetworkIsUp();
}

UpdateCheck::UpdateCheck(Program& program, UpdateCheckView& view, UpdateMode mode)
    : program_(program), view_(view), mode_(mode), status_(kConnecting) {}

UpdateCheck::~UpdateCheck() = default;

void UpdateCheck::Connect() {
  if (ended_) return;  // closed before it began
  program_.Guard("#F10-0", [&] {
    program_.update_checked = true;
    ShowStatus(kConnecting);
    const std::string host = ReadServerHosts(program_.paths).update;
    if (host.empty()) {
      return FailToConnect(OwnTextOf(program_.texts, OwnText::no_update_server));
    }
    if (!IsConnected(program_, host)) {
      ShowStatus(kNoConnection);
      return view_.CloseAfter(mode_ == UpdateMode::shown ? kShownMilliseconds : 0);
    }
    view_.StartTimer(kTimeoutMilliseconds);
    transfer_ =
        program_.platform.transfers.Get(host + std::string(kQuery) + std::string(VersionText),
                                        [this](TransferState state) { TakeState(state); });
  });
}

void UpdateCheck::TakeState(TransferState state) {
  const UserAction action(program_.actions);
  program_.Guard("#F10-1", [&] {
    if (state == TransferState::error) {
      return FailToConnect(TextFromUtf8(transfer_->ResponseText()));
    }
    Ontvangen_ = ended_ = true;
    txt_data_ = WholeReply(*transfer_);
    TakeReply();
  });
}

void UpdateCheck::TakeReply() {
  if (txt_data_.empty()) {
    Ontvangen_ = false;
    return view_.CloseWindow();
  }
  ShowStatus(kReceiving);
  lst_kvfoodinfo_ = FieldsOfUpdate(txt_data_);
  ShowStatus(kAnalysing);
  ShowStatus(kServerVersion);
  if (!lst_kvfoodinfo_.empty() && IsNewerVersion(lst_kvfoodinfo_[0])) {
    Tell(program_, BoxIcon::information,
         JoinLines(program_.texts, {kNewerAvailable, kFreeOfCharge, std::nullopt, kUseNovafetch}));
  }
  view_.CloseWindow();
}

void UpdateCheck::TakeTimeout() {
  program_.Guard("#F10-2", [&] {
    if (ended_) return;
    ended_ = true;
    program_.platform.pointer.ShowWait();
    ShowStatus(kNoConnection);
    transfer_.reset();
    program_.platform.pointer.Restore();
    view_.CloseWindow();
  });
}

void UpdateCheck::Stop() {
  ended_ = true;
  transfer_.reset();
}

void UpdateCheck::FailToConnect(const Text& response_text) {
  ended_ = true;  // the timer no longer counts, however long the box is looked at
  view_.ShowState();
  if (mode_ == UpdateMode::shown) {
    Tell(program_, BoxIcon::error,
         JoinLines(program_.texts, {kServerFailed, kSystemError, std::nullopt}) + "\n" +
             response_text);
  }
  view_.CloseWindow();
}

void UpdateCheck::ShowStatus(TextId status) {
  status_ = status;
  step_ = std::min(step_ + 1, kSteps);
  view_.ShowState();
}

Text UpdateCheck::lbl_versie() const {
  return Text(VersionText);
}

Text UpdateCheck::lbl_status() const {
  Text text = ": " + program_.texts[status_];
  if (status_ == kServerVersion) {
    text += " " + (lst_kvfoodinfo_.empty() ? Text() : lst_kvfoodinfo_[0]);
  }
  return text;
}

Text UpdateCheck::StatusBarText() const {
  return program_.texts[ended_ ? kStatusBarDone : kStatusBarChecking];
}

void CheckForUpdateOnce(Program& program) {
  if (program.update_checked || program.windows.core == nullptr) return;
  if (ReadServerHosts(program.paths).update.empty()) return;
  program.windows.core->OpenUpdate(UpdateMode::background);
}

}  // namespace kelvora
