// What the writers make of days that no dialog of this program wrote.
#include <gtest/gtest.h>

#include "output/report_fixture.h"
#include "output/xml.h"

namespace kelvora {
namespace {

// Beyond a single, and beyond a double.
const std::string kHuge(40, '9');
const std::string kEndless(400, '9');

Text CodesShown(const ReportProgram& test) {
  Text codes;
  for (const Box& box : test.boxes.shown) {
    codes += box.text.substr(box.text.find("CODE:") + 5) + " ";
  }
  return codes;
}

Rec_DayFile HugeFood() {
  DayText day = kQuietDay;
  day.morning = "Bread|1|0|" + kHuge + "|0|0|0|0|0|0|0||Bread.dat|~";
  return DayOf(day);
}

TEST(ReportFaults, ADayWithANumberTooLargeIsMissingAsAWholeAndTheRestStands) {
  const std::vector<std::pair<ReportFormat, Text>> formats = {{ReportFormat::html, "#FF6-7 "},
                                                              {ReportFormat::dta, "#FF5-6 "}};
  for (const auto& [format, codes] : formats) {
    ReportProgram test;
    const Text page = test.Make({.format = format}, {HugeFood(), DayOf(kQuietDay)});
    EXPECT_EQ(CodesShown(test), codes);
    // Both index rows and bars are there, and one section, which is that of the sound day.
    ReportProgram sound;
    const Text both = sound.Make({.format = format}, {DayOf(kQuietDay), DayOf(kQuietDay)});
    const Text section =
        format == ReportFormat::dta
            ? Export_DTA_Day(sound.Context(), DayOf(kQuietDay), DiaryChoice::include)
            : Export_HTML_Day(sound.Context(), DayOf(kQuietDay), DiaryChoice::include);
    EXPECT_EQ(page, Text(both).erase(both.find(section), section.size()));
  }
  ReportProgram xml;
  EXPECT_EQ(Export_XML_Day(xml.Context(), HugeFood(), DiaryChoice::include), "");
  EXPECT_EQ(CodesShown(xml), "#FF7-2 ");
}

TEST(ReportFaults, EachPieceOfAPageHasItsOwnCode) {
  DayText day = kQuietDay;
  day.trend = "35|" + kEndless + "|" + kHuge + "|0|0|0|0|0|0|";
  const Rec_DayFile record = DayOf(day);
  ReportProgram test;
  const ReportContext context = test.Context();
  EXPECT_EQ(Export_HTML_Index_Row(context, record), "");
  EXPECT_EQ(Export_DTA_Index_Row(context, record), "");
  EXPECT_EQ(Export_HTML_Graph_Bar(context, record, ReportGraph::kilocalories), "");
  EXPECT_EQ(Export_DTA_Graph_Bar(context, record, ReportGraph::kilocalories), "");
  EXPECT_EQ(CodesShown(test), "#FF6-2 #FF5-1 #FF6-5 #FF5-4 ");
  ReportProgram user;
  user.program.profile[ProfileField::weight] = kEndless;
  EXPECT_EQ(Export_HTML_User(user.Context(), 1), "");
  EXPECT_EQ(CodesShown(user), "#FF6-1 ");
}

TEST(ReportFaults, ADateThatIsNoneIsTellingAndStaysEmpty) {
  ReportProgram test;
  DayText day = kQuietDay;
  day.header = "Anna~~~~~1.80~80.5~Female~42~yesterday~75~Friday~~~~";
  const Text row = Export_HTML_Index_Row(test.Context(), DayOf(day));
  EXPECT_NE(row.find("<a href=\"#yesterday80.5\"></a>"), Text::npos);
  EXPECT_EQ(CodesShown(test), "#FF11-8 ");
}

TEST(ReportFaults, ADiaryOfHalfAMegabyteGoesThroughWhole) {
  const Text line = Written("5 < 6 & ]]> 'é'\\r\\n");
  const Text page_line = Written("5 < 6 & ]]> 'é'<br>\\n");
  Text diary, page_diary, xml_diary;
  for (int i = 0; i < 30000; ++i) {
    diary += line;
    page_diary += page_line;
    xml_diary += "5 < 6  ]]> e\r\n";
  }
  ASSERT_GT(diary.size(), 500000u);
  ReportProgram test;
  Rec_DayFile day = DayOf(kQuietDay);
  day[DayFileField::Notes] = diary;
  const ReportContext context = test.Context();
  EXPECT_NE(Export_HTML_Day(context, day, DiaryChoice::include)
                .find("<td class=\"tdNOT\">" + page_diary + "</td>\r\n"),
            Text::npos);
  EXPECT_NE(Export_XML_Day(context, day, DiaryChoice::include)
                .find("<Notes>" + xml_diary + "</Notes>\r\n"),
            Text::npos);
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST(ReportFaults, TenThousandDifferentFoodsOfADayAreRowsInTheirOrder) {
  ReportProgram test;
  DayText day = kQuietDay;
  day.morning.clear();
  for (int i = 0; i < 10000; ++i) {
    day.morning += "Food " + std::to_string(i) + "|1|1|0|0|0|0|0|0|0|0||x.dat|~";
  }
  const Text section = Export_HTML_Day(test.Context(), DayOf(day), DiaryChoice::leave_out);
  EXPECT_LT(section.find(">Food 9998<"), section.find(">Food 9999<"));
  EXPECT_NE(section.find("<td class=\"tdKop5\">10000</td>"), Text::npos);
}

}  // namespace
}  // namespace kelvora
