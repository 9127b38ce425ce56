// The travel form: lines to write on, for each part of a day.
#include <array>

#include "language/print_texts.h"
#include "output/page_writer.h"
#include "output/print_pages.h"

namespace kelvora {
namespace {

using namespace print_text;

constexpr std::string_view kDayLine = "__________________";
constexpr std::string_view kCountLine = "______";
constexpr std::string_view kFoodLine =
    "___________________________________________________________";

constexpr double kCountPlace = 3000;
constexpr double kFoodPlace = 4000;

struct Block {
  TextId label;
  double head;
  double first_row;
};
constexpr std::array kBlocks = {Block{kMorning, 1700, 2000}, Block{kAfternoon, 6750, 6950},
                                Block{kEvening, 11700, 11900}};
constexpr int kRowsOfBlock = 13;
constexpr double kRowHeight = 350;

void WriteTop(PageWriter& page, const ReportContext& context) {
  constexpr double kDetails = 3000;
  constexpr double kLabels = 7000;
  constexpr double kLines = 7900;
  const TextTables& texts = context.texts;
  page.Write(kPageBold, kPageLeft, 600, texts[kTravelTitle]);
  page.Rule(850);
  page.Write(kPageHeading, kPageLeft, 900, texts[kPersonalDetails]);
  page.Write(kPageText, kDetails, 900, context.profile[ProfileField::name]);
  page.Write(kPageText, kDetails, 1100,
             texts[kReference] + " " + context.profile[ProfileField::reference]);
  page.Write(kPageText, kLabels, 900, texts[kTravelDay]);
  page.Write(kPageText, kLines, 900, Text(kDayLine));
  page.Write(kPageText, kLabels, 1100, texts[kTravelDate]);
  page.Write(kPageText, kLines, 1100, Text(kDayLine));
  page.Rule(1400);
}

void WriteBlock(PageWriter& page, const TextTables& texts, const Block& block) {
  page.Write(kPageHeading, kPageLeft, block.head, texts[block.label]);
  page.Write(kPageText, kCountPlace, block.head, texts[kCount]);
  page.Write(kPageText, kFoodPlace, block.head, texts[kColumnFood]);
  for (int row = 0; row < kRowsOfBlock; ++row) {
    const double y = block.first_row + row * kRowHeight;
    page.Write(kPageText, kCountPlace, y, Text(kCountLine));
    page.Write(kPageText, kFoodPlace, y, Text(kFoodLine));
  }
}

}  // namespace

PrintedPage TravelFormPage(const ReportContext& context, double width) {
  PageWriter page(width);
  WriteTop(page, context);
  for (const Block& block : kBlocks) WriteBlock(page, context.texts, block);
  page.Rule(16550);
  page.Write(kPageFoot, kPageLeft, 16600, context.texts[kMakerAndWebsite]);
  return page.Take();
}

}  // namespace kelvora
