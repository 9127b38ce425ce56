#include "platform/qt/cups_printers.h"

#include <algorithm>
#include <utility>

#include "platform/qt/cups_connection.h"
#include "platform/qt/page_pdf.h"
#include "platform/qt/text.h"
#include "platform/qt/within_limit.h"

namespace kelvora {

template <class Work>
auto CupsPrinters::Ask(std::chrono::milliseconds limit, Work work) const {
  using std::chrono::steady_clock;
  // Counts the time also where the work throws.
  struct Spent {
    std::chrono::milliseconds& left;
    steady_clock::time_point begin = steady_clock::now();
    ~Spent() {
      left -= std::chrono::duration_cast<std::chrono::milliseconds>(steady_clock::now() - begin);
    }
  } const spent{left_};
  return WithinLimit(limit, std::move(work));
}

std::vector<Text> CupsPrinters::Names() const {
  left_ = kLimitOfCommand;
  std::vector<std::string> found;
  try {
    found = Ask(kLimitOfNames,
                [](Deadline deadline) { return CupsConnection(deadline).PrinterNames(); });
  } catch (const NoPrintingSystem&) {  // nor are there printers
  }
  devices_.clear();
  std::vector<Text> names;
  for (const std::string& device : found) {
    names.push_back(TextFromUtf8(device));
    devices_.try_emplace(names.back(), device);
  }
  return names;
}

std::string CupsPrinters::DeviceOf(const Text& printer) const {
  const auto found = devices_.find(printer);
  return found == devices_.end() ? Utf8FromText(printer) : found->second;
}

Sheet CupsPrinters::SheetOf(const Text& printer) {
  return Ask(kLimitOfSheet, [device = DeviceOf(printer)](Deadline deadline) {
    return CupsConnection(deadline).SheetOf(device);
  });
}

void CupsPrinters::Print(const PrintJob& job) {
  const QByteArray pdf = PdfOf(job.page, job.sheet, ToQt(job.title));
  const auto limit = std::max(std::exchange(left_, kLimitOfCommand), kLeastOfJob);
  WithinLimit(limit, [device = DeviceOf(job.printer), title = Utf8FromText(job.title),
                      medium = job.sheet.medium, pdf](Deadline deadline) {
    CupsConnection(deadline).Print(device, title, medium,
                                   {pdf.constData(), static_cast<std::size_t>(pdf.size())});
  });
}

}  // namespace kelvora
