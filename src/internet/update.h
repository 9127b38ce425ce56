// The check whether a newer version of the program exists: what is asked, what the answer means,
// and what the window of the check shows meanwhile. It changes nothing of the user's.
#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "core/program.h"

namespace kelvora {

// The fields of a reply: what each "½" closes.
[[nodiscard]] std::vector<Text> FieldsOfUpdate(std::string_view reply);

// True if `version` is a greater number than that of this program, both without their points. So
// 1.10 is 110 and 1.9 is 19; versions with other numbers of digits compare oddly, as is meant.
[[nodiscard]] bool IsNewerVersion(std::string_view version);

// True if the machine has a network, or the address needs none.
[[nodiscard]] bool IsConnected(const Program& program, std::string_view address);

// The window of the check.
class UpdateCheckView {
 public:
  // Something of what is shown has changed.
  virtual void ShowState() = 0;
  // Starts Timeout_timer, which calls TakeTimeout once after so many milliseconds.
  virtual void StartTimer(int milliseconds) = 0;
  // Closes the window, at once or after so many milliseconds.
  virtual void CloseWindow() = 0;
  virtual void CloseAfter(int milliseconds) = 0;

 protected:
  ~UpdateCheckView() = default;
};

class UpdateCheck {
 public:
  // In the background nothing is told but that there is a newer version.
  UpdateCheck(Program& program, UpdateCheckView& view, UpdateMode mode);
  // Lets a check that runs go, without a word.
  ~UpdateCheck();
  UpdateCheck(const UpdateCheck&) = delete;
  UpdateCheck& operator=(const UpdateCheck&) = delete;

  // Begins the check, once; its end closes the window. A failure shows "#F10-0".
  void Connect();
  // The server has not answered in time. A failure shows "#F10-2".
  void TakeTimeout();
  // Ends a check that runs, as its window closes.
  void Stop();
  // A check of the background shows itself from now on.
  void Show() { mode_ = UpdateMode::shown; }

  // What the window shows.
  [[nodiscard]] Text lbl_versie() const;
  [[nodiscard]] Text lbl_status() const;
  [[nodiscard]] Text StatusBarText() const;
  [[nodiscard]] int Step() const { return step_; }
  static constexpr int kSteps = 4;

 private:
  void ShowStatus(TextId status);
  void TakeState(TransferState state);
  void TakeReply();
  void FailToConnect(const Text& response_text);

  Program& program_;
  UpdateCheckView& view_;
  UpdateMode mode_;
  TextId status_;
  int step_ = 0;
  bool Ontvangen_ = false;  // a reply has come
  bool ended_ = false;      // with or without one
  Text txt_data_;
  std::vector<Text> lst_kvfoodinfo_;
  std::unique_ptr<Transfer> transfer_;
};

// Lets the check run in the background, if none has begun since the program started and a server
// for it is known.
void CheckForUpdateOnce(Program& program);

}  // namespace kelvora
