#include "output/html_page.h"

#include "language/export_texts.h"
#include "language/main_texts.h"
#include "output/html_layout.h"

namespace kelvora {
namespace {

using namespace export_text;

// Classes that no cell has stand here too, and are part of the page.
constexpr std::array<std::string_view, 25> kStyleSheet = {
    "A:LINK{text-decoration: none; color: #3A3464;font-family:Verdana;text-decoration : "
    "underline;}",
    "A:VISITED{text-decoration: none; color: #3A3464;font-family:Verdana;text-decoration : "
    "underline;}",
    "A:ACTIVE{text-decoration: none; color: #EF4A00;font-family:Verdana;text-decoration : "
    "underline;}",
    "A:HOVER{ text-decoration: none; color: #EF4A00;font-family:Verdana;text-decoration : "
    "underline;}",
    ".tdKop1 {background-color:#5C6F90;color:#ffffff;font-family:Verdana;font-size:12px;}",
    ".tdKop2 {background-color:#5C6F90;color:#ffffff;font-family:Verdana;font-size:12px;}",
    ".tdKop3 {background-color:#3A3464;color:#ffffff;font-family:Verdana;text-align:right;"
    "font-size:10px;}",
    ".tdKop4 {background-color:#FFDDAD;color:#575757;font-family:Verdana;font-size:10px;}",
    ".tdKop5 {background-color:#FFDDAD;color:#BC0000;font-family:Verdana;text-align:right;"
    "font-size:10px;}",
    ".tdOL {background-color:#E5E9F1;color:#575757;font-family:Verdana;font-size:10px;}",
    ".tdML {background-color:#D0D8E6;color:#575757;font-family:Verdana;font-size:10px;}",
    ".tdAL {background-color:#B6BFD2;color:#575757;font-family:Verdana;font-size:10px;}",
    ".tdOR {background-color:#E5E9F1;color:#BC0000;font-family:Verdana;text-align:right;"
    "font-size:10px;}",
    ".tdMR {background-color:#D0D8E6;color:#BC0000;font-family:Verdana;text-align:right;"
    "font-size:10px;}",
    ".tdAR {background-color:#B6BFD2;color:#BC0000;font-family:Verdana;text-align:right;"
    "font-size:10px;}",
    ".tdNO {background-color:#E5E9F1;color:#575757;font-family:Verdana;font-size:10px;}",
    ".tdE1 {background-color:#D0D8E6;color:#575757;font-family:Verdana;text-align:left;"
    "font-size:10px;}",
    ".tdE2 {background-color:#FFF0DB;color:#3A3464;font-family:Verdana;text-align:right;"
    "font-size:10px;}",
    ".tdE3 {background-color:#FFE6C3;color:#3A3464;font-family:Verdana;text-align:right;"
    "font-size:10px;}",
    ".tdO1 {background-color:#E5E9F1;color:#575757;font-family:Verdana;text-align:left;"
    "font-size:10px;}",
    ".tdO2 {background-color:#FFF7EB;color:#3A3464;font-family:Verdana;text-align:right;"
    "font-size:10px;}",
    ".tdO3 {background-color:#FFEFD7;color:#3A3464;font-family:Verdana;text-align:right;"
    "font-size:10px;}",
    ".tdC {background-color:#FFFFFF;color:#C0C0C0;font-family:Verdana;text-align:right;"
    "font-size:10px;}",
    ".tdNOT {background-color:#FFFAF3;color:#575757;font-family:Verdana;font-size:10px;}",
    ".tdG1 { border: 2px outset white; }",
};

// The year of the program's first release.
constexpr int kFirstYear = 2026;

// The attributes of the cells of the user table. The blank inside the class is part of the page.
struct UserCells {
  std::string_view label;
  std::string_view value_class;
};
constexpr std::array kUserCells = {UserCells{R"(width="15%" class=" tdE1")", "tdE3"},
                                   UserCells{R"(width="15%" class=" tdO1")", "tdE2"}};

Text WeightText(const ReportContext& context, ProfileField field) {
  return ConvertedWeight(context, context.profile[field]) + " " + WeightUnit(context);
}

// The second pair of cells in two of the rows holds nothing.
constexpr std::string_view kNoCell = "&nbsp;";

class UserTable {
 public:
  UserTable(Text& page, const TextTables& texts) : page_(page), texts_(texts) {}

  void AddRow(TextId label, std::string_view value, TextId second_label,
              std::string_view second_value) {
    OpenRow(page_);
    AddPair(label, value);
    AddPair(second_label, second_value);
    End();
  }
  void AddHalfRow(TextId label, std::string_view value) {
    OpenRow(page_);
    AddPair(label, value);
    AddCellWith(page_, Cells().label, {kNoCell});
    AddCell(page_, Cells().value_class, {kNoCell});
    End();
  }

 private:
  [[nodiscard]] const UserCells& Cells() const { return kUserCells[row_ % kUserCells.size()]; }
  void AddPair(TextId label, std::string_view value) {
    AddCellWith(page_, Cells().label, {texts_[label]});
    AddCell(page_, Cells().value_class, {"<p align=left>", value, "</p>"});
  }
  void End() {
    CloseRow(page_);
    ++row_;
  }

  Text& page_;
  const TextTables& texts_;
  std::size_t row_ = 0;
};

void AddTitle(Text& page, const ReportContext& context) {
  OpenBorderedTable(page, kHtmlWidth);
  OpenRow(page);
  AddCell(page, "tdKop3",
          {"<center>", context.texts[kReportTitle], R"(<a name="#MyIndex"></a></center>)"});
  CloseRow(page);
  CloseTable(page);
}

}  // namespace

void AddPageHead(Text& page, const ReportContext& context, const ReportSpan& span) {
  const TextTables& texts = context.texts;
  AddLine(page, 0, {"<html>"});
  AddLine(page, 0, {"<head>"});
  AddLine(page, 0, {R"(<meta http-equiv="Content-Type" content="text/html; charset=iso-8859-1">)"});
  AddLine(page, 0, {R"(<style type="text/css">)"});
  for (const std::string_view& rule : kStyleSheet) {
    const bool last = &rule == &kStyleSheet.back();
    AddLine(page, 1, {rule, last ? "</style>" : ""});
  }
  const Text days = std::to_string(span.days);
  AddLine(
      page, 1,
      {"<title>", texts[kPageTitle], " ", span.user_name, " (", days, " ", texts[kTitleDaysFrom],
       " ", span.start_date, " ", texts[kTitleTill], " ", span.end_date, ")</title>"});
  AddLine(page, 0, {"</head>"});
  AddLine(page, 0, {R"(<body bgcolor="#ffffff">)"});
  AddLine(page, 0, {});
  AddLine(page, 0, {"<center>"});
}

void AddUser(Text& page, const ReportContext& context, std::size_t days) {
  const Rec_Profile& profile = context.profile;
  const TextTables& texts = context.texts;
  AddTitle(page, context);
  OpenBorderedTable(page, kHtmlWidth);
  UserTable table(page, texts);
  table.AddRow(kUserName, profile[ProfileField::name], kUserGender, profile[ProfileField::gender]);
  table.AddRow(kUserReference, profile[ProfileField::reference] + " ", kUserHeight,
               HeightText(context, {kMeter, kFeetInch}));
  table.AddRow(kUserAddress1, profile[ProfileField::address_1] + " ", kUserGoalWeight,
               WeightText(context, ProfileField::goal_weight));
  table.AddRow(kUserAddress2, profile[ProfileField::address_2] + " ", kUserLastWeight,
               WeightText(context, ProfileField::weight));
  table.AddRow(kUserCity, profile[ProfileField::city], kUserAge, profile[ProfileField::age]);
  table.AddHalfRow(kUserPostcode, profile[ProfileField::postcode]);
  table.AddHalfRow(kUserState, profile[ProfileField::state]);
  table.AddRow(kUserCountry, profile[ProfileField::country], kReportContents,
               texts[kReportOf] + " <i>" + std::to_string(days) + "</i> " + texts[kReportDays]);
  CloseTable(page);
  AddLine(page, 0, {"<br>"});
}

void AddPageFoot(Text& page, const ReportContext& context, const ReportDay& today) {
  const TextTables& texts = context.texts;
  // The blank behind the equals sign is part of the page.
  const Text link = R"(<a href=")" + texts[main_text::kWebsiteAddress] + R"(" target= "new">)";
  Text years = std::to_string(kFirstYear);
  if (today.year > kFirstYear) years += " - " + std::to_string(today.year);

  AddLine(
      page, 0,
      {R"(<table width=")", kHtmlWidth, R"(" cellspacing="0" cellpadding="0" bgcolor="#B4B4B4">)"});
  OpenRow(page);
  AddCell(
      page, "tdC",
      {"<center>", texts[kFooterCreatedOn], " ", today.short_date, " ", texts[kFooterWith], " ",
       link, texts[kFooterProduct], "</a> ", texts[kFooterBy], " ", link, "Brelux</a></center>"});
  CloseRow(page);
  OpenRow(page);
  AddCell(page, "tdC", {"<center>", years, " ", link, "Brelux</a></center>"});
  CloseRow(page);
  CloseTable(page);
  for (const std::string_view closing : {"</center>", "</body>", "</html>"}) {
    AddLine(page, 0, {closing});
  }
}

}  // namespace kelvora
