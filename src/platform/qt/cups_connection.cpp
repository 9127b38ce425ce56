#include "platform/qt/cups_connection.h"

#include <algorithm>
#include <cstdlib>
#include <system_error>

#include "core/failure.h"

namespace kelvora {
namespace {

using namespace std::chrono;

// How often the library asks whether to go on waiting.
constexpr double kSecondsBetweenLooks = 0.1;

// A sheet of A4, for a printer that says nothing about paper; in hundredths of a millimetre.
constexpr int kUsualWidth = 21000;
constexpr int kUsualHeight = 29700;

double TwipsOfHundredths(int hundredths_of_millimetre) {
  constexpr double kHundredthsOfInch = 2540;
  constexpr double kTwipsOfInch = 1440;
  return hundredths_of_millimetre * kTwipsOfInch / kHundredthsOfInch;
}

// The library's own question for a password stands on a terminal that nobody looks at.
const char* NoPassword(const char*, http_t*, const char*, const char*, void*) {
  return nullptr;
}

int GoesOn(http_t*, void* deadline) {
  return steady_clock::now() < *static_cast<const Deadline*>(deadline) ? 1 : 0;
}

bool IsOnThisComputer(std::string_view server) {
  return server.starts_with('/') || server == "localhost";
}

// Where nobody has named a server and this computer has no socket of one, the library would ask a
// port of the loopback. Looking for printers is no reason to use the network.
bool NobodyPrintsHere() {
  return std::getenv("CUPS_SERVER") == nullptr && std::string_view(cupsServer()) == "localhost";
}

bool IsRefused(ipp_status_t status) {
  return status > IPP_STATUS_OK_EVENTS_COMPLETE;
}

class Options {
 public:
  Options() = default;
  ~Options() { cupsFreeOptions(count_, options_); }
  Options(const Options&) = delete;
  Options& operator=(const Options&) = delete;

  void Set(const char* name, const char* value) {
    count_ = cupsAddOption(name, value, count_, &options_);
  }
  [[nodiscard]] int Count() const { return count_; }
  [[nodiscard]] cups_option_t* Get() const { return options_; }

 private:
  int count_ = 0;
  cups_option_t* options_ = nullptr;
};

}  // namespace

struct CupsConnection::Destination {
  struct Free {
    void operator()(cups_dest_t* destination) const { cupsFreeDests(1, destination); }
    void operator()(cups_dinfo_t* info) const { cupsFreeDestInfo(info); }
  };
  std::unique_ptr<cups_dest_t, Free> named;
  std::unique_ptr<cups_dinfo_t, Free> info;
};

CupsConnection::CupsConnection(Deadline deadline) : deadline_(deadline), http_(nullptr, httpClose) {
  cupsSetPasswordCB2(NoPassword, nullptr);
  if (NobodyPrintsHere()) {
    throw NoPrintingSystem(std::make_error_code(std::errc::no_such_file_or_directory).message());
  }
  const auto left = duration_cast<milliseconds>(deadline_ - steady_clock::now()).count();
  http_.reset(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                           static_cast<int>(std::max<milliseconds::rep>(left, 1)), nullptr));
  if (http_ == nullptr) {
    // A server elsewhere that can't be reached may have printers all the same.
    if (!IsOver() && IsOnThisComputer(cupsServer())) throw NoPrintingSystem(cupsLastErrorString());
    ThrowLastError();
  }
  httpSetTimeout(http_.get(), kSecondsBetweenLooks, GoesOn, &deadline_);
}

void CupsConnection::ThrowLastError() const {
  if (IsOver()) ThrowSystemError(std::errc::timed_out);
  const char* const words = cupsLastErrorString();
  if (words == nullptr || *words == '\0') ThrowSystemError(std::errc::io_error);
  throw std::runtime_error(words);
}

std::vector<std::string> CupsConnection::PrinterNames() {
  cups_dest_t* found = nullptr;
  const int count = cupsGetDests2(http_.get(), &found);
  const auto free_all = [count](cups_dest_t* all) { cupsFreeDests(count, all); };
  const std::unique_ptr<cups_dest_t, decltype(free_all)> destinations(found, free_all);
  // A server without printers says that it found none.
  const ipp_status_t status = cupsLastError();
  if (IsOver() || (count == 0 && IsRefused(status) && status != IPP_STATUS_ERROR_NOT_FOUND)) {
    ThrowLastError();
  }
  std::vector<std::string> names;
  for (int i = 0; i < count; ++i) {
    const cups_dest_t& destination = found[i];
    names.emplace_back(destination.name);
    if (destination.instance != nullptr) names.back().append("/").append(destination.instance);
  }
  return names;
}

CupsConnection::Destination CupsConnection::Find(const std::string& printer) {
  const std::size_t slash = printer.find('/');
  const std::string name = printer.substr(0, slash);
  const std::string instance = slash == printer.npos ? "" : printer.substr(slash + 1);
  Destination destination;
  destination.named.reset(
      cupsGetNamedDest(http_.get(), name.c_str(), instance.empty() ? nullptr : instance.c_str()));
  if (destination.named == nullptr) ThrowLastError();
  destination.info.reset(cupsCopyDestInfo(http_.get(), destination.named.get()));
  if (destination.info == nullptr) ThrowLastError();
  return destination;
}

Sheet CupsConnection::SheetOf(const std::string& printer) {
  const Destination destination = Find(printer);
  cups_dest_t* const named = destination.named.get();
  cups_dinfo_t* const info = destination.info.get();
  // What the user set for this printer outside of the program, or else what it takes by itself.
  const char* medium = cupsGetOption(CUPS_MEDIA, named->num_options, named->options);
  if (medium == nullptr) {
    medium = ippGetString(cupsFindDestDefault(http_.get(), named, info, CUPS_MEDIA), 0, nullptr);
  }
  cups_size_t size{};
  const bool known =
      medium != nullptr && cupsGetDestMediaByName(http_.get(), named, info, medium,
                                                  CUPS_MEDIA_FLAGS_DEFAULT, &size) != 0;
  if (IsOver()) ThrowLastError();
  if (!known || size.width <= 0 || size.length <= 0) {
    return {.width = TwipsOfHundredths(kUsualWidth), .height = TwipsOfHundredths(kUsualHeight)};
  }
  return {.width = TwipsOfHundredths(size.width),
          .height = TwipsOfHundredths(size.length),
          .left = TwipsOfHundredths(size.left),
          .top = TwipsOfHundredths(size.top),
          .right = TwipsOfHundredths(size.right),
          .bottom = TwipsOfHundredths(size.bottom),
          .medium = medium};
}

void CupsConnection::Print(const std::string& printer, const std::string& title,
                           const std::string& medium, std::string_view pdf) {
  const Destination destination = Find(printer);
  cups_dest_t* const named = destination.named.get();
  Options options;
  for (int i = 0; i < named->num_options; ++i) {
    options.Set(named->options[i].name, named->options[i].value);
  }
  // The page is made for this sheet; whatever else fits pages to sheets leaves it alone.
  if (!medium.empty()) options.Set(CUPS_MEDIA, medium.c_str());
  options.Set("print-scaling", "none");
  options.Set(CUPS_ORIENTATION, CUPS_ORIENTATION_PORTRAIT);
  options.Set(CUPS_PRINT_QUALITY, CUPS_PRINT_QUALITY_NORMAL);

  int job = 0;
  if (IsRefused(cupsCreateDestJob(http_.get(), named, destination.info.get(), &job, title.c_str(),
                                  options.Count(), options.Get()))) {
    ThrowLastError();
  }
  try {
    Send(destination, job, title, pdf);
  } catch (...) {
    // A server that gives no answer drops a job without a document by itself.
    if (!IsOver()) cupsCancelDestJob(http_.get(), named, job);
    throw;
  }
}

void CupsConnection::Send(const Destination& destination, int job, const std::string& title,
                          std::string_view pdf) {
  cups_dest_t* const named = destination.named.get();
  cups_dinfo_t* const info = destination.info.get();
  constexpr int kLastDocument = 1;
  const bool begun =
      cupsStartDestDocument(http_.get(), named, info, job, title.c_str(), CUPS_FORMAT_PDF, 0,
                            nullptr, kLastDocument) == HTTP_STATUS_CONTINUE;
  if (!begun || cupsWriteRequestData(http_.get(), pdf.data(), pdf.size()) != HTTP_STATUS_CONTINUE ||
      IsRefused(cupsFinishDestDocument(http_.get(), named, info))) {
    ThrowLastError();
  }
}

}  // namespace kelvora
