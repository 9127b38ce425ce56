#include "platform/qt/cups_printers.h"

#include "platform/qt/cups_connection.h"
#include "platform/qt/page_pdf.h"
#include "platform/qt/text.h"
#include "platform/qt/within_limit.h"

namespace kelvora {
namespace {

using namespace std::chrono_literals;

// A printer that was just found in a network may take a while to tell its sheet; the rest is quick
// with any server that answers.
constexpr auto kLimitOfNames = 1000ms;
constexpr auto kLimitOfSheet = 2400ms;
constexpr auto kLimitOfJob = 900ms;

}  // namespace

std::vector<Text> CupsPrinters::Names() const {
  std::vector<std::string> found;
  try {
    found = WithinLimit(kLimitOfNames,
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
  return WithinLimit(kLimitOfSheet, [device = DeviceOf(printer)](Deadline deadline) {
    return CupsConnection(deadline).SheetOf(device);
  });
}

void CupsPrinters::Print(const PrintJob& job) {
  const QByteArray pdf = PdfOf(job.page, job.sheet, ToQt(job.title));
  WithinLimit(kLimitOfJob, [device = DeviceOf(job.printer), title = Utf8FromText(job.title),
                            medium = job.sheet.medium, pdf](Deadline deadline) {
    CupsConnection(deadline).Print(device, title, medium,
                                   {pdf.constData(), static_cast<std::size_t>(pdf.size())});
  });
}

}  // namespace kelvora
