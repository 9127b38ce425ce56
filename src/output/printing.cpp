#include "output/printing.h"

#include <algorithm>

#include "language/own_texts.h"
#include "language/print_texts.h"
#include "nutrition/dates.h"
#include "output/print_pages.h"
#include "output/sheet_fit.h"

namespace kelvora {
namespace {

using namespace print_text;

// The pointer shows that the printing system is waited for.
class Waiting {
 public:
  explicit Waiting(Pointer& pointer) : pointer_(pointer) { pointer_.ShowWait(); }
  ~Waiting() { pointer_.Restore(); }
  Waiting(const Waiting&) = delete;
  Waiting& operator=(const Waiting&) = delete;

 private:
  Pointer& pointer_;
};

bool SystemHas(Program& program, const Text& printer) {
  const Waiting waiting(program.platform.pointer);
  const std::vector<Text> names = program.platform.printers.Names();
  return std::ranges::find(names, printer) != names.end();
}

Sheet SheetOf(Program& program, const Text& printer) {
  const Waiting waiting(program.platform.pointer);
  return program.platform.printing.SheetOf(printer);
}

// A page longer than its sheet goes to the printer all the same, if the user wants what there is.
bool MayPrint(Program& program, const Sheet& sheet, const PrintedPage& page) {
  if (SheetHolds(sheet, page)) return true;
  const Box box{.title = Text(AppTitle),
                .text = OwnTextOf(program.texts, OwnText::sheet_too_small),
                .icon = BoxIcon::question,
                .buttons = BoxButtons::yes_no};
  return program.platform.boxes.Show(box) == BoxAnswer::yes;
}

// `make_page` makes the page for a width of the sheet.
template <class MakePage>
void PrintPage(Program& program, TextId title, MakePage make_page) {
  const Text printer = program.settings[Setting::combo_printer];
  if (!SystemHas(program, printer)) {
    return Tell(program, BoxIcon::warning,
                JoinLines(program.texts, {kNoPrinter, kNoPrinterAdvice}));
  }
  const Sheet sheet = SheetOf(program, printer);
  const PrintedPage page = make_page(sheet.width);
  if (!MayPrint(program, sheet, page)) return;
  const Waiting waiting(program.platform.pointer);
  program.platform.printing.Print({.printer = printer,
                                   .title = program.texts[title],
                                   .sheet = sheet,
                                   .page = WithinMargins(page, sheet)});
}

}  // namespace

void Print_Day(Program& program) {
  program.Guard("#FF10-0", [&] {
    PrintPage(program, kDayTitle, [&](double width) {
      const LocalTime now = program.platform.clock.Now();
      const Locale& locale = program.platform.locale;
      return DayPage(ReportContextOf(program), program.store, width,
                     {ShortDateOf(now, locale), ShortTimeOf(now, locale)});
    });
  });
}

void Print_Travel_Form(Program& program) {
  program.Guard("#FF10-1", [&] {
    PrintPage(program, kTravelTitle,
              [&](double width) { return TravelFormPage(ReportContextOf(program), width); });
  });
}

}  // namespace kelvora
