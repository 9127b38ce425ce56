#include "output/xml.h"

#include <gtest/gtest.h>

#include "output/report_fixture.h"

namespace kelvora {
namespace {

// Typed by hand from the rules; 9783E459 is zlib's crc32 of "Anna1.80R1".
TEST(XmlReport, IsTheLinesOfOneDayInTheirOrder) {
  ReportProgram test;
  Rec_Profile& profile = test.program.profile;
  profile[ProfileField::name] = "Anna";
  profile[ProfileField::height] = "1.80";
  profile[ProfileField::reference] = "R1";
  profile[ProfileField::remark] = Written("It's (fine)\\r\\n& so é");
  const Rec_DayFile day =
      DayOf({.notes = "It's <b>fine</b>\\r\\n",
             .header = "Anna~~~~~1.80~0,5~Female~42~05-03-04~75~Friday~~~~",
             .morning = "Pie, small|1|10,4|0.5|10|1.005|2.675|0|0.125|0,0625|1||"
                        "Pie.dat|~Pie, small|1|10,4|0.5|10|1.005|2.675|0|0.125|"
                        "0,0625|1||Pie.dat|~",
             .evening = "Own|1|1|1|1|1|1|1|1|1|0||~"});
  EXPECT_EQ(test.Make({.format = ReportFormat::xml}, {day}, "A(n)na&"),
            Typed(R"(<?xml version="1.0"?>
<?xml-stylesheet type='text/xsl'?>
<File>
<Details>
<Username>A(n)na&</Username>
<StartDate>05-03-04</StartDate>
<EndDate>05-03-04</EndDate>
<Days>1</Days>
</Details>
<UserDetails>
<CRCUserID>9783E459</CRCUserID>
<ReferenceID>R1</ReferenceID>
<Name>Anna</Name>
<Address1></Address1>
<Address2></Address2>
<City></City>
<Postcode></Postcode>
<Province></Province>
<Country></Country>
<Gender></Gender>
<Age></Age>
<HeightMeter>1.80</HeightMeter>
<WeightKG></WeightKG>
<GoalWeightKG></GoalWeightKG>
<Priority></Priority>
<Notes>Its fine
 so e</Notes>
</UserDetails>
<Day>
<Date>05-03-04</Date>
<KG>.50</KG>
<LBS>1.10</LBS>
<FoodItems>
<FoodItem>
<Product>Pie. small</Product>
<DB>Pie.dat</DB>
<POD>0</POD>
<X>2</X>
<Gram>21</Gram>
<Kj>1</Kj>
<Kcal>20</Kcal>
<FatU>5.35</FatU>
<FatS>0</FatS>
<Protein>2.01</Protein>
<Sodium>0.125</Sodium>
<Carbs>0.25</Carbs>
</FoodItem>
<FoodItem>
<Product>Own</Product>
<DB>2</DB>
<POD></POD>
<X>1</X>
<Gram>1</Gram>
<Kj>1</Kj>
<Kcal>21</Kcal>
<FatU>1</FatU>
<FatS>1</FatS>
<Protein>1</Protein>
<Sodium>1</Sodium>
<Carbs>1</Carbs>
</FoodItem>
</FoodItems>
<Totals>
<Gram>22</Gram>
<Kj>2</Kj>
<Kcal>21</Kcal>
<FatU>6</FatU>
<FatS>1</FatS>
<Protein>3</Protein>
<Sodium>1.12</Sodium>
<Carbs>1</Carbs>
</Totals>
<Notes>Its <b>fine</b>
</Notes>
</Day>
</File>
)"));
}

TEST(XmlReport, OfNoDaysHasNoUser) {
  ReportProgram test;
  EXPECT_EQ(test.Make({.format = ReportFormat::xml}, {}), Typed(R"(<?xml version="1.0"?>
<?xml-stylesheet type='text/xsl'?>
<File>
<Details>
<Username>Anna</Username>
<StartDate></StartDate>
<EndDate></EndDate>
<Days>0</Days>
</Details>
</File>
)"));
}

TEST(XmlReport, AWeightOfZeroPrintsAndAnEmptyOneStaysEmpty) {
  ReportProgram test;
  const ReportContext context = test.Context();
  const auto weights = [&context](const std::string& weight) {
    const Text day = Export_XML_Day(context, DayOf({.header = "~~~~~~" + weight + "~~~~~~~~~"}),
                                    DiaryChoice::leave_out);
    const std::size_t from = day.find("<KG>");
    return day.substr(from, day.find("<FoodItems>") - from);
  };
  EXPECT_EQ(weights("0"), Typed("<KG>.00</KG>\n<LBS>.00</LBS>\n"));
  EXPECT_EQ(weights(""), Typed("<KG></KG>\n<LBS></LBS>\n"));
}

TEST(XmlReport, ADayWithoutFoodClosesItsItemsAtOnce) {
  ReportProgram test;
  const Text day = Export_XML_Day(test.Context(), Rec_DayFile(), DiaryChoice::leave_out);
  EXPECT_NE(day.find(Typed("<FoodItems>\n</FoodItems>\n<Totals>\n<Gram>0</Gram>\n")), Text::npos);
  EXPECT_TRUE(day.ends_with(Typed("</Totals>\n</Day>\n")));
}

}  // namespace
}  // namespace kelvora
