// The printers of the platform against a real printing system, and against what is none.
#include "output/printing.h"

#include <memory>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QTimer>

#include "language/built_in_texts.h"
#include "output/print_pages.h"
#include "output/report_context.h"
#include "output/sheet_fit.h"
#include "platform/qt/text.h"
#include "windows/print_server.h"

namespace kelvora {
namespace {

constexpr double kHalfAMillimetre = 0.5 / 25.4 * 1440;  // in twips

Text WordsOfFailure(const std::function<void()>& routine) {
  try {
    routine();
  } catch (const std::exception& failure) {
    return DescribeFailure(failure);
  }
  return "no failure";
}

PrintedPage OneWord() {
  return {PrintedText{{.family = "Arial", .points = 10}, 200, 600, "Word"}};
}

// The rows of a day with two foods and all texts of the page.
struct PrintedDay : TestProgram {
  PrintedDay() {
    OpenDay("Anna");
    program.profile[ProfileField::name] = "Zoë Müller"_w;
    program.profile[ProfileField::address_1] = "Mill Lane 5";
    program.profile[ProfileField::city] = "Leeds";
    program.profile[ProfileField::reference] = "A-17";
    program.profile[ProfileField::height] = "1.80";
    program.profile[ProfileField::weight] = "80.5";
    program.profile[ProfileField::goal_weight] = "75";
    program.store.L_ochtend.Add(LineOf({.product = "Crème brûlée € – “fijn”"_w,
                                        .unit = "1 slice",
                                        .gram = "35",
                                        .kj = "343.5",
                                        .kcal = "82"}));
    program.store.L_avond.Add(LineOf({.product = "AVATAR To office", .gram = "200"}));
  }
  PrintedPage Page(double width) {
    return DayPage(ReportContextOf(program), program.store, width, {"05-03-26", "14:07"});
  }
  PrintedPage Form(double width) { return TravelFormPage(ReportContextOf(program), width); }
};

// Takes the words of each text from the page: the first within half a millimetre of its place, the
// others to its right on the same height.
void ExpectTexts(PdfPage pdf, const PrintedPage& page) {
  for (const auto& operation : page) {
    const auto* const text = std::get_if<PrintedText>(&operation);
    if (text == nullptr) continue;
    double from = text->x - kHalfAMillimetre;
    double to = text->x + kHalfAMillimetre;
    for (const QString& word : ToQt(text->text).split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
      const auto found = std::ranges::find_if(pdf.words, [&](const PdfWord& one) {
        return one.text == word && one.x >= from && one.x <= to &&
               std::abs(one.y - text->y) <= kHalfAMillimetre;
      });
      ASSERT_NE(found, pdf.words.end())
          << word.toStdString() << " of \"" << Utf8FromText(text->text) << "\" at " << text->x
          << ", " << text->y;
      from = found->x;
      to = pdf.width;
      pdf.words.erase(found);
    }
  }
  EXPECT_TRUE(pdf.words.empty()) << pdf.words.front().text.toStdString();
}

class PrintingSystem : public testing::Test {
 protected:
  static void SetUpTestSuite() { server_ = std::make_unique<PrintServer>(); }
  static void TearDownTestSuite() { server_.reset(); }

  // Prints the page on a queue, within the margins of its sheet, and reads the PDF that came out.
  PdfPage Print(const Text& queue, const std::function<PrintedPage(double)>& page_of,
                PrintedPage* placed = nullptr) {
    const Sheet sheet = printers_.SheetOf(queue);
    const PrintedPage page = WithinMargins(page_of(sheet.width), sheet);
    if (placed != nullptr) *placed = page;
    const auto name = QString::fromStdString(queue);
    const int before = static_cast<int>(server_->Printed(name, 0).size());
    printers_.Print({.printer = queue, .title = "Test", .sheet = sheet, .page = page});
    file_ = server_->Printed(name, before + 1).front();
    return ReadPdf(file_);
  }
  PrintJob Job(const Text& queue) {
    return {.printer = queue,
            .title = "Test",
            .sheet = {.width = 11906, .height = 16838},
            .page = OneWord()};
  }

  static inline std::unique_ptr<PrintServer> server_;
  CupsPrinters printers_;
  PrintedDay day_;
  QString file_;
};

TEST_F(PrintingSystem, TellsItsPrintersByTheirNames) {
  EXPECT_EQ(printers_.Names(), (std::vector<Text>{"A3", "A4", "A6", "Broken", "Letter", "Plain",
                                                  "Rejecting", "Stopped"}));
}

// Twenty twips are a point; the library rounds to hundredths of a millimetre on the way.
TEST_F(PrintingSystem, TellsTheSheetOfEachPrinter) {
  const Sheet a4 = printers_.SheetOf("A4");
  EXPECT_NEAR(a4.width, 595 * 20, 1);
  EXPECT_NEAR(a4.height, 842 * 20, 1);
  EXPECT_EQ(a4.medium, "iso_a4_210x297mm");
  EXPECT_EQ(a4.left + a4.top + a4.right + a4.bottom, 0);
  const Sheet letter = printers_.SheetOf("Letter");
  EXPECT_NEAR(letter.width, 612 * 20, 1);
  EXPECT_NEAR(letter.height, 792 * 20, 1);
  EXPECT_NEAR(letter.left, 360, 1);
  EXPECT_NEAR(letter.right, 360, 1);
  EXPECT_NEAR(letter.top, 720, 1);
  EXPECT_NEAR(letter.bottom, 720, 1);
  EXPECT_NEAR(printers_.SheetOf("A6").width, 298 * 20, 1);
  EXPECT_NEAR(printers_.SheetOf("A3").height, 1191 * 20, 1);
}

// 210 x 297 mm are 11905.5 x 16837.8 twips.
TEST_F(PrintingSystem, OfAPrinterThatTellsNothingOfPaperItIsA4) {
  const Sheet sheet = printers_.SheetOf("Plain");
  EXPECT_NEAR(sheet.width, 11905.5, 0.1);
  EXPECT_NEAR(sheet.height, 16837.8, 0.1);
  EXPECT_EQ(sheet.medium, "");
}

TEST_F(PrintingSystem, ADayStandsOnPaperWhereItIsLaidDown) {
  const PdfPage pdf = Print("A4", [&](double width) { return day_.Page(width); });
  EXPECT_NEAR(pdf.width, 595 * 20, kHalfAMillimetre);
  EXPECT_NEAR(pdf.height, 842 * 20, kHalfAMillimetre);
  ExpectTexts(pdf, day_.Page(printers_.SheetOf("A4").width));
  EXPECT_EQ(FontsOf(file_).join(QLatin1Char(' ')).toStdString(),
            "LiberationSans LiberationSans-Bold LiberationSans-BoldItalic");
}

TEST_F(PrintingSystem, SoDoesADutchDayOfStonesAndOunces) {
  Make_Taal_Dutch(day_.program.texts);
  day_.program.settings[Setting::opt_system] = "2";
  day_.program.settings[Setting::opt_gramoz] = "1";
  const PdfPage pdf = Print("A3", [&](double width) { return day_.Page(width); });
  ExpectTexts(pdf, day_.Page(printers_.SheetOf("A3").width));
}

TEST_F(PrintingSystem, SoDoesATravelForm) {
  const PdfPage pdf = Print("A4", [&](double width) { return day_.Form(width); });
  ExpectTexts(pdf, day_.Form(printers_.SheetOf("A4").width));
}

TEST_F(PrintingSystem, WherePrintersDontReachTheEdgesThePageStandsWithinThem) {
  PrintedPage placed;
  const PdfPage pdf = Print(
      "Letter", [&](double width) { return day_.Page(width); }, &placed);
  for (const PdfWord& word : pdf.words) {
    EXPECT_GE(word.x, 360 - kHalfAMillimetre);
    EXPECT_GE(word.y, 720 - kHalfAMillimetre);
  }
  ExpectTexts(pdf, placed);
}

// What stands beyond the sheet is not in anybody's way.
TEST_F(PrintingSystem, TheSmallestSheetTakesWhatFits) {
  const PdfPage pdf = Print("A6", [&](double width) { return day_.Page(width); });
  EXPECT_NEAR(pdf.width, 5953, kHalfAMillimetre);
  EXPECT_FALSE(pdf.words.empty());
}

// Text of any length, a line break and all characters of the code page go on paper as one run.
TEST_F(PrintingSystem, OddTextsPrintAsOneRun) {
  Text every_byte;
  for (int byte = 1; byte < 256; ++byte) every_byte += static_cast<char>(byte);
  const PrintFont font{.family = "Arial", .points = 8};
  const PdfPage pdf = Print("A4", [&](double) {
    return PrintedPage{PrintedText{font, 200, 600, every_byte},
                       PrintedText{font, 200, 900, "first\nsecond"},
                       PrintedText{font, 200, 1200, Text(1'000'000, 'i')}};
  });
  for (const PdfWord& word : pdf.words) EXPECT_LT(word.y, 1200 + kHalfAMillimetre);
  const auto second = std::ranges::find(pdf.words, QStringLiteral("second"), &PdfWord::text);
  ASSERT_NE(second, pdf.words.end());
  EXPECT_NEAR(second->y, 900, kHalfAMillimetre);
}

TEST_F(PrintingSystem, AQueueThatTakesNoJobsSaysSo) {
  EXPECT_EQ(WordsOfFailure([&] { printers_.Print(Job("Rejecting")); }),
            "Destination \"Rejecting\" is not accepting jobs.");
}

TEST_F(PrintingSystem, AStoppedQueueKeepsTheJob) {
  const qsizetype before = server_->Spooled();
  printers_.Print(Job("Stopped"));
  EXPECT_TRUE(Comes([&] { return server_->Spooled() == before + 1; }));
}

// The job is out of the program's hands by then.
TEST_F(PrintingSystem, ADeviceThatFailsIsTheSystemsOwnMatter) {
  EXPECT_EQ(WordsOfFailure([&] { printers_.Print(Job("Broken")); }), "no failure");
}

TEST_F(PrintingSystem, APrinterThatIsGoneIsNoOtherPrinter) {
  EXPECT_EQ(WordsOfFailure([&] { (void)printers_.SheetOf("Gone"); }),
            "The printer or class does not exist.");
  EXPECT_EQ(WordsOfFailure([&] { printers_.Print(Job("Gone")); }),
            "The printer or class does not exist.");
}

struct PrintingCommands : PrintingSystem {
  PrintedDay test;
  Platform platform{test.boxes, test.pointer, test.locale,         test.folders,
                    test.clock, test.screen,  test.events,         test.opener,
                    printers_,  printers_,    test.folder_chooser, test.transfers};
  Program program{platform};

  PrintingCommands() {
    Make_Taal_English(program.texts);
    program.settings = test.program.settings;
    program.profile = test.program.profile;
    program.store = test.program.store;
  }
};

TEST_F(PrintingCommands, TheSettingsChooseThePrinter) {
  const int before = static_cast<int>(server_->Printed(QStringLiteral("A3"), 0).size());
  program.settings[Setting::combo_printer] = "A3";
  Print_Day(program);
  Print_Travel_Form(program);
  EXPECT_TRUE(test.boxes.shown.empty()) << test.boxes.shown.front().text;
  EXPECT_EQ(server_->Printed(QStringLiteral("A3"), before + 2).size(), before + 2);
}

TEST_F(PrintingCommands, APrinterThatWasRemovedIsNotFound) {
  program.settings[Setting::combo_printer] = "Gone";
  Print_Day(program);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.starts_with("Kelvora FOOD couldn't find a printer.\n"));
}

TEST_F(PrintingCommands, ARefusalIsToldWithTheCode) {
  program.settings[Setting::combo_printer] = "Rejecting";
  Print_Travel_Form(program);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].text,
            "An error occured.\n\nDestination \"Rejecting\" is not accepting jobs.\n"
            "Brelux CODE:#FF10-1");
}

// A socket that is there and says nothing, or closes each conversation at once.
class DeafServer {
 public:
  enum class Manner { silent, closing };
  explicit DeafServer(Manner manner) : socket_(socket(AF_UNIX, SOCK_STREAM, 0)) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    folder_.Path("socket").copy(address.sun_path, sizeof address.sun_path - 1);
    EXPECT_EQ(bind(socket_, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    EXPECT_EQ(listen(socket_, 16), 0);
    if (manner == Manner::silent) return;
    closing_ = std::thread([this] {
      for (int client; (client = accept(socket_, nullptr, nullptr)) >= 0;) close(client);
    });
  }
  ~DeafServer() {
    shutdown(socket_, SHUT_RDWR);
    if (closing_.joinable()) closing_.join();
    close(socket_);
  }
  DeafServer(const DeafServer&) = delete;
  DeafServer& operator=(const DeafServer&) = delete;

 private:
  TemporaryFolder folder_;
  ChosenServer chosen_{folder_.Path("socket")};
  int socket_;
  std::thread closing_;
};

TEST(PrintingSystemWithoutQueues, HasNoPrinters) {
  const PrintServer server(Queues::none);
  EXPECT_TRUE(CupsPrinters().Names().empty());
}

TEST(WithoutPrintingSystem, ThereAreNoPrinters) {
  const TemporaryFolder folder;
  const ChosenServer nobody(folder.Path("socket"));
  CupsPrinters printers;
  EXPECT_TRUE(printers.Names().empty());
  EXPECT_NE(WordsOfFailure([&] { (void)printers.SheetOf("A4"); }), "no failure");
}

// A port of this computer, by its number: a server whose own computer may have printers.
TEST(PrintingSystemElsewhere, ThatCantBeReachedIsAFailure) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof address;
  const int taken = socket(AF_INET, SOCK_STREAM, 0);  // and nobody listens there
  ASSERT_EQ(bind(taken, reinterpret_cast<sockaddr*>(&address), size), 0);
  ASSERT_EQ(getsockname(taken, reinterpret_cast<sockaddr*>(&address), &size), 0);
  const ChosenServer nobody("127.0.0.1:" + std::to_string(ntohs(address.sin_port)));
  CupsPrinters printers;
  const Text words = WordsOfFailure([&] { (void)printers.Names(); });
  EXPECT_NE(words, "no failure");
  EXPECT_NE(words, "");
  close(taken);
}

// Without a limit this would wait forever. Timers run meanwhile, so windows are drawn.
TEST(SilentPrintingSystem, IsGivenUp) {
  const DeafServer server(DeafServer::Manner::silent);
  CupsPrinters printers;
  int ticks = 0;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] { ++ticks; });
  timer.start(10);
  EXPECT_EQ(WordsOfFailure([&] { (void)printers.Names(); }), "Connection timed out");
  EXPECT_GT(ticks, 3);
  EXPECT_EQ(WordsOfFailure([&] { (void)printers.SheetOf("A4"); }), "Connection timed out");
  EXPECT_EQ(WordsOfFailure([&] {
              printers.Print({.printer = "A4",
                              .title = "Test",
                              .sheet = {.width = 11906, .height = 16838},
                              .page = OneWord()});
            }),
            "Connection timed out");
}

TEST(SilentPrintingSystem, IsNotTakenForOneThatHangsUp) {
  const DeafServer server(DeafServer::Manner::closing);
  CupsPrinters printers;
  const Text words = WordsOfFailure([&] { (void)printers.Names(); });
  EXPECT_NE(words, "no failure");
  EXPECT_NE(words, "");
}

}  // namespace
}  // namespace kelvora
