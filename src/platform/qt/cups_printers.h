// The printers of this platform, through CUPS. Each conversation with it runs on a thread of its
// own and is given up at its limit, so that no window waits for a printer; the three that printing
// needs take five seconds at the most.
#pragma once

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
  [[nodiscard]] std::string DeviceOf(const Text& printer) const;

  // What CUPS calls the printers that were listed last, by the names that text can hold.
  mutable std::map<Text, std::string> devices_;
};

}  // namespace kelvora
