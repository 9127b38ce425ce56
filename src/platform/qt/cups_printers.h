// The printers of this platform, through CUPS. Each conversation with it runs on a thread of its
// own and is given up at its limit, so that no window waits for a printer; the three that printing
// needs take five seconds at the most.
#pragma once

#include <chrono>
#include <map>
#include <string>

#include "platform/printers.h"
#include "platform/printing.h"

namespace kelvora {

class CupsPrinters : public Printers, public Printing {
 public:
  std::vector<Text> Names() const override;
  Sheet SheetOf(const Text& printer) override;
  void Print(const PrintJob& job) override;

 private:
  // One command of the user's asks for the names, the sheet and the job, in this order. What the
  // first ones leave of their time is the job's.
  static constexpr std::chrono::milliseconds kLimitOfCommand{4300};
  static constexpr std::chrono::milliseconds kLimitOfNames{1000};
  // A printer that was just found in a network may take a while to tell its sheet.
  static constexpr std::chrono::milliseconds kLimitOfSheet{2400};
  static constexpr std::chrono::milliseconds kLeastOfJob{500};

  [[nodiscard]] std::string DeviceOf(const Text& printer) const;
  template <class Work>
  auto Ask(std::chrono::milliseconds limit, Work work) const;

  mutable std::chrono::milliseconds left_ = kLimitOfCommand;
  // What CUPS calls the printers that were listed last, by the names that text can hold.
  mutable std::map<Text, std::string> devices_;
};

}  // namespace kelvora
