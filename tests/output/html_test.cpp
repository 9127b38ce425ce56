#include "output/html.h"

#include <gtest/gtest.h>

#include "output/report_fixture.h"

namespace kelvora {
namespace {

// All pages are typed by hand from the rules.

TEST(HtmlReport, OfNoDaysIsThePageAroundThem) {
  ReportProgram test;
  test.program.profile[ProfileField::name] = "Anna";
  test.program.profile[ProfileField::height] = "1.80";
  test.program.profile[ProfileField::weight] = "80,5";
  EXPECT_EQ(
      test.Make({.format = ReportFormat::html, .graphs = false}, {}, "Anna's", {"3/5/27", 2027}),
      Typed(R"(<html>
<head>
<meta http-equiv="Content-Type" content="text/html; charset=iso-8859-1">
<style type="text/css">
	A:LINK{text-decoration: none; color: #3A3464;font-family:Verdana;text-decoration : underline;}
	A:VISITED{text-decoration: none; color: #3A3464;font-family:Verdana;text-decoration : underline;}
	A:ACTIVE{text-decoration: none; color: #EF4A00;font-family:Verdana;text-decoration : underline;}
	A:HOVER{ text-decoration: none; color: #EF4A00;font-family:Verdana;text-decoration : underline;}
	.tdKop1 {background-color:#5C6F90;color:#ffffff;font-family:Verdana;font-size:12px;}
	.tdKop2 {background-color:#5C6F90;color:#ffffff;font-family:Verdana;font-size:12px;}
	.tdKop3 {background-color:#3A3464;color:#ffffff;font-family:Verdana;text-align:right;font-size:10px;}
	.tdKop4 {background-color:#FFDDAD;color:#575757;font-family:Verdana;font-size:10px;}
	.tdKop5 {background-color:#FFDDAD;color:#BC0000;font-family:Verdana;text-align:right;font-size:10px;}
	.tdOL {background-color:#E5E9F1;color:#575757;font-family:Verdana;font-size:10px;}
	.tdML {background-color:#D0D8E6;color:#575757;font-family:Verdana;font-size:10px;}
	.tdAL {background-color:#B6BFD2;color:#575757;font-family:Verdana;font-size:10px;}
	.tdOR {background-color:#E5E9F1;color:#BC0000;font-family:Verdana;text-align:right;font-size:10px;}
	.tdMR {background-color:#D0D8E6;color:#BC0000;font-family:Verdana;text-align:right;font-size:10px;}
	.tdAR {background-color:#B6BFD2;color:#BC0000;font-family:Verdana;text-align:right;font-size:10px;}
	.tdNO {background-color:#E5E9F1;color:#575757;font-family:Verdana;font-size:10px;}
	.tdE1 {background-color:#D0D8E6;color:#575757;font-family:Verdana;text-align:left;font-size:10px;}
	.tdE2 {background-color:#FFF0DB;color:#3A3464;font-family:Verdana;text-align:right;font-size:10px;}
	.tdE3 {background-color:#FFE6C3;color:#3A3464;font-family:Verdana;text-align:right;font-size:10px;}
	.tdO1 {background-color:#E5E9F1;color:#575757;font-family:Verdana;text-align:left;font-size:10px;}
	.tdO2 {background-color:#FFF7EB;color:#3A3464;font-family:Verdana;text-align:right;font-size:10px;}
	.tdO3 {background-color:#FFEFD7;color:#3A3464;font-family:Verdana;text-align:right;font-size:10px;}
	.tdC {background-color:#FFFFFF;color:#C0C0C0;font-family:Verdana;text-align:right;font-size:10px;}
	.tdNOT {background-color:#FFFAF3;color:#575757;font-family:Verdana;font-size:10px;}
	.tdG1 { border: 2px outset white; }</style>
	<title>Kelvora FOOD summary of Anna's (0 days from  till )</title>
</head>
<body bgcolor="#ffffff">

<center>
<table width="650" cellspacing="1" cellpadding="0" bgcolor="#B4B4B4">
	<tr>
		<td class="tdKop3"><center>Kelvora FOOD summary<a name="#MyIndex"></a></center></td>
	</tr>
</table>
<table width="650" cellspacing="1" cellpadding="0" bgcolor="#B4B4B4">
	<tr>
		<td width="15%" class=" tdE1">Name:</td>
		<td class="tdE3"><p align=left>Anna</p></td>
		<td width="15%" class=" tdE1">Gender:</td>
		<td class="tdE3"><p align=left></p></td>
	</tr>
	<tr>
		<td width="15%" class=" tdO1">Reference ID:</td>
		<td class="tdE2"><p align=left> </p></td>
		<td width="15%" class=" tdO1">Height:</td>
		<td class="tdE2"><p align=left>1.80 Meter</p></td>
	</tr>
	<tr>
		<td width="15%" class=" tdE1">Address 1:</td>
		<td class="tdE3"><p align=left> </p></td>
		<td width="15%" class=" tdE1">Goal weight:</td>
		<td class="tdE3"><p align=left> Kg</p></td>
	</tr>
	<tr>
		<td width="15%" class=" tdO1">Address 2:</td>
		<td class="tdE2"><p align=left> </p></td>
		<td width="15%" class=" tdO1">Last weight:</td>
		<td class="tdE2"><p align=left>80.50 Kg</p></td>
	</tr>
	<tr>
		<td width="15%" class=" tdE1">City:</td>
		<td class="tdE3"><p align=left></p></td>
		<td width="15%" class=" tdE1">Age:</td>
		<td class="tdE3"><p align=left></p></td>
	</tr>
	<tr>
		<td width="15%" class=" tdO1">Postcode:</td>
		<td class="tdE2"><p align=left></p></td>
		<td width="15%" class=" tdO1">&nbsp;</td>
		<td class="tdE2">&nbsp;</td>
	</tr>
	<tr>
		<td width="15%" class=" tdE1">State or province:</td>
		<td class="tdE3"><p align=left></p></td>
		<td width="15%" class=" tdE1">&nbsp;</td>
		<td class="tdE3">&nbsp;</td>
	</tr>
	<tr>
		<td width="15%" class=" tdO1">Country:</td>
		<td class="tdE2"><p align=left></p></td>
		<td width="15%" class=" tdO1">This report:</td>
		<td class="tdE2"><p align=left>Summary of <i>0</i> days</p></td>
	</tr>
</table>
<br>
<table width="650" cellspacing="1" cellpadding="0" bgcolor="#B4B4B4">
	<tr>
		<td class="tdKop3"><p align=left>Date</p></td>
		<td class="tdKop3"><p align=left>Day</p></td>
		<td class="tdKop3"><p align=left>Weight</p></td>
		<td class="tdKop3">Gram</td>
		<td class="tdKop3">Kj</td>
		<td class="tdKop3">Kcal</td>
		<td class="tdKop3">Fat (u)</td>
		<td class="tdKop3">Fat (s)</td>
		<td class="tdKop3">Protein</td>
		<td class="tdKop3">Sodium</td>
		<td class="tdKop3">Carbs.</td>
	</tr>
</table>
<br>
<table width="650" cellspacing="0" cellpadding="0" bgcolor="#B4B4B4">
	<tr>
		<td class="tdC"><center>This page is created on 3/5/27 with <a href="http://www.example.org" target= "new">Kelvora FOOD</a> by <a href="http://www.example.org" target= "new">Brelux</a></center></td>
	</tr>
	<tr>
		<td class="tdC"><center>2026 - 2027 <a href="http://www.example.org" target= "new">Brelux</a></center></td>
	</tr>
</table>
</center>
</body>
</html>
)"));
}

TEST(DtaReport, OfOneDayIsIndexGraphsAndTheDay) {
  ReportProgram test;
  const auto graph = [](std::string_view colour, std::string_view height, std::string_view title) {
    Text page = Typed(R"(<table border="0" width="750" cellspacing="0" cellpadding="0">
	<tr align=left>
	<td class="tdO1">
	<table border="0" cellspacing="0" cellpadding="0">
		<tr align=left valign=bottom>
		<td><table border="0" cellspacing="0" cellpadding="0"><tr><td class="tdG1" bgcolor="COLOUR"><table border="0" cellspacing="0" cellpadding="0"><tr><td width="5" height="HEIGHT"></td></tr></table></td></tr></table></td>
	</tr>
	</table>
	</td>
	</tr>
	<tr>
	<td width="100%" class="tdKop3"><p align=left>TITLE</p></td>
	</tr>
	</table>
<br>
)");
    page = ReplaceAll(ReplaceAll(page, "COLOUR", colour), "HEIGHT", height);
    return ReplaceAll(page, "TITLE", title);
  };
  // Heights: 80.5 to even; 82/55 = 1.49; 0.4/2; 0.2; 3/5; 16/8.
  EXPECT_EQ(test.Make({.format = ReportFormat::dta}, {DayOf(kQuietDay)}),
            Typed(R"(<table width="750" cellspacing="1" cellpadding="0" bgcolor="#B4B4B4">
	<tr>
		<td class="tdKop3"><p align=left>Date</p></td>
		<td class="tdKop3"><p align=left>Day</p></td>
		<td class="tdKop3"><p align=left>Weight</p></td>
		<td class="tdKop3">Gram</td>
		<td class="tdKop3">Kj</td>
		<td class="tdKop3">Kcal</td>
		<td class="tdKop3">Fat (u)</td>
		<td class="tdKop3">Fat (s)</td>
		<td class="tdKop3">Protein</td>
		<td class="tdKop3">Sodium</td>
		<td class="tdKop3">Carbs.</td>
	</tr>
	<tr>
		<td class="tdO1"> » <a href="#05-03-0480.5">05-03-04</a></td>
		<td class="tdO1"><a name="#MyIndex"></a>Friday</td>
		<td class="tdO1">80.50 Kg</td>
		<td class="tdE2">35</td>
		<td class="tdE3">344</td>
		<td class="tdE2">82</td>
		<td class="tdE3">0</td>
		<td class="tdE2">0</td>
		<td class="tdE3">3</td>
		<td class="tdE2">0.172</td>
		<td class="tdE3">16</td>
	</tr>
</table>
<br>
)") + graph("#6887B6", "80", "weight") +
                graph("#ABD9AD", "1", "Kilocalories") + graph("#E8A2A2", "0", "Unsaturated fats") +
                graph("#C14747", "0", "Saturated fats") + graph("#FFD695", "1", "Proteins") +
                graph("#FF7C3B", "2", "Carbohydrates") +
                Typed(R"(<table width="750" cellspacing="0" cellpadding="0">
	<tr>
		<td width="33%" class="tdKop1"><p align=left>Date: <a name="#05-03-0480.5">05-03-04</a>, Friday</p></td>
		<td width="33%" class="tdKop1"><p align=center> »<a href="#MyIndex"><b>Back to index</b>«</a></p></td>
		<td class="tdKop2"><p align=right><b>80.50</b> Kg</p></td>
	</tr>
</table>
<table width="750" cellspacing="1" cellpadding="0" bgcolor="#B4B4B4">
	<tr>
		<td class="tdKop3"><p align=left>Food item</p></td>
		<td class="tdKop3"></td>
		<td class="tdKop3"><p align=left>Unit</p></td>
		<td class="tdKop3">Gram</td>
		<td class="tdKop3">Kj</td>
		<td class="tdKop3">Kcal</td>
		<td class="tdKop3">Fat (u)</td>
		<td class="tdKop3">Fat (s)</td>
		<td class="tdKop3">Protein</td>
		<td class="tdKop3">Sodium</td>
		<td class="tdKop3">Carbs.</td>
	</tr>
	<tr>
		<td class="tdOL">Bread</td>
		<td class="tdOL">1x</td>
		<td class="tdOL">1 slice</td>
		<td class="tdOR">35</td>
		<td class="tdOR">344</td>
		<td class="tdOR">82</td>
		<td class="tdOR">0</td>
		<td class="tdOR">0</td>
		<td class="tdOR">3</td>
		<td class="tdOR">0.172</td>
		<td class="tdOR">16</td>
	</tr>
	<tr>
		<td class="tdKop4">Total nutritional values:</td>
		<td class="tdKop4"></td>
		<td class="tdKop4"></td>
		<td class="tdKop5">35</td>
		<td class="tdKop5">344</td>
		<td class="tdKop5">82</td>
		<td class="tdKop5">0</td>
		<td class="tdKop5">0</td>
		<td class="tdKop5">3</td>
		<td class="tdKop5">0.172</td>
		<td class="tdKop5">16</td>
	</tr>
</table>
<table width="750" cellspacing="1" cellpadding="0" bgcolor="#B4B4B4">
	<tr>
		<td class="tdNOT">Slept.</td>
	</tr>
</table>
<br>
)"));
}

TEST(HtmlReport, WithoutDaysHasSixEmptyGraphsAndADtaFileNone) {
  ReportProgram test;
  const Text page = test.Make({.format = ReportFormat::html}, {});
  const Text without = test.Make({.format = ReportFormat::html, .graphs = false}, {});
  const ReportContext context = test.Context();
  Text graphs;
  for (const std::string_view title : {"weight", "Kilocalories", "Unsaturated fats",
                                       "Saturated fats", "Proteins", "Carbohydrates"}) {
    graphs += Export_HTML_Graph_Open(context) + Export_HTML_Graph_Close(context, title);
  }
  const std::size_t at = page.find(graphs);
  ASSERT_NE(at, Text::npos);
  EXPECT_EQ(Text(page).erase(at, graphs.size()), without);
  EXPECT_EQ(test.Make({.format = ReportFormat::dta}, {}),
            Export_DTA_Index_Head(context) + Typed("</table>\n<br>\n"));
}

TEST(HtmlReport, ATwelveFieldLineTakesTheColoursOfTheRowBeforeItAndEveryDayBeginsWithNone) {
  ReportProgram test;
  const Rec_DayFile day = DayOf({.morning = "Own|1|0|0|0|0|0|0|0|0|0||~",
                                 .afternoon = "Shop|1|0|0|0|0|0|0|0|0|0||Shop.dat|~",
                                 .evening = "Own|1|0|0|0|0|0|0|0|0|0||~"});
  const ReportContext context = test.Context();
  const Text first = Export_HTML_Day(context, day, DiaryChoice::leave_out);
  EXPECT_NE(first.find("<td class=\"\">Own</td>"), Text::npos);
  EXPECT_NE(first.find("<td class=\"tdML\">Shop</td>"), Text::npos);
  EXPECT_NE(first.find("<td class=\"tdML\">Own</td>"), Text::npos);
  EXPECT_EQ(Export_HTML_Day(context, day, DiaryChoice::leave_out), first);
}

TEST(HtmlReport, TheFooterNamesTheYearsOfTheProgram) {
  ReportProgram test;
  const ReportContext context = test.Context();
  for (const auto& [year, years] :
       {std::pair{1999, "<center>2026 <a"}, std::pair{2026, "<center>2026 <a"},
        std::pair{2031, "<center>2026 - 2031 <a"}}) {
    EXPECT_NE(Export_HTML_Footer(context, {"1-1", year}).find(years), Text::npos) << year;
  }
  EXPECT_EQ(Export_DTA_Footer(context, {"1-1", 2026}), "");
}

}  // namespace
}  // namespace kelvora
