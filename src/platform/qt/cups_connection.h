// One conversation with CUPS, the printing system of this platform.
//
// The toolkit prints over CUPS too, but it waits for a dead server without end, prints on another
// printer when the chosen one is gone, and tells nobody what a server refused. So CUPS is spoken to
// directly, each conversation until its deadline; the toolkit makes the pages (page_pdf.h).
//
// Names and titles are UTF-8. Everything throws: std::errc::timed_out at the deadline, otherwise in
// the words of CUPS. Nothing here needs the thread of the windows.
#pragma once

#include <cups/cups.h>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "platform/printing.h"
#include "platform/qt/within_limit.h"

namespace kelvora {

// On this computer no printing system runs.
struct NoPrintingSystem : std::runtime_error {
  using std::runtime_error::runtime_error;
};

class CupsConnection {
 public:
  explicit CupsConnection(Deadline deadline);

  // The device names, "name" or "name/instance", in the order of CUPS.
  [[nodiscard]] std::vector<std::string> PrinterNames();

  // The sheet that a job without wishes of its own is printed on.
  [[nodiscard]] Sheet SheetOf(const std::string& printer);

  // Hands a PDF over as one job, with the options that the user set for this printer outside of the
  // program. A job that can't be handed over whole is taken back.
  void Print(const std::string& printer, const std::string& title, const std::string& medium,
             std::string_view pdf);

 private:
  struct Destination;

  [[nodiscard]] Destination Find(const std::string& printer);
  void Send(const Destination& destination, int job, const std::string& title,
            std::string_view pdf);
  [[noreturn]] void ThrowLastError() const;
  [[nodiscard]] bool IsOver() const { return std::chrono::steady_clock::now() >= deadline_; }

  Deadline deadline_;
  std::unique_ptr<http_t, void (*)(http_t*)> http_;
};

}  // namespace kelvora
