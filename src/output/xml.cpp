#include "output/xml.h"

#include "nutrition/numbers.h"
#include "output/crc32.h"
#include "output/eaten_foods.h"

namespace kelvora {
namespace {

constexpr std::string_view kLineEnds = "\r\n";

// An amount of a food in its element, with the decimals of an item and of a total.
struct AmountElement {
  std::string_view element;
  std::size_t field;
  int item_decimals;
  int total_decimals;
};
constexpr int kUnrounded = -1;
constexpr std::array kAmounts = {
    AmountElement{"Gram", FoodField::kGram, 0, 0},
    AmountElement{"Kj", FoodField::kKj, 0, 0},
    AmountElement{"Kcal", FoodField::kKcal, 0, 0},
    AmountElement{"FatU", FoodField::kFatU, 2, 0},
    AmountElement{"FatS", FoodField::kFatS, 2, 0},
    AmountElement{"Protein", FoodField::kProtein, 2, 0},
    AmountElement{"Sodium", FoodField::kSodium, kUnrounded, 2},
    AmountElement{"Carbs", FoodField::kCarbs, 2, 0},
};

struct UserElement {
  std::string_view element;
  ProfileField field;
};
constexpr std::array kUserElements = {
    UserElement{"ReferenceID", ProfileField::reference},
    UserElement{"Name", ProfileField::name},
    UserElement{"Address1", ProfileField::address_1},
    UserElement{"Address2", ProfileField::address_2},
    UserElement{"City", ProfileField::city},
    UserElement{"Postcode", ProfileField::postcode},
    UserElement{"Province", ProfileField::state},
    UserElement{"Country", ProfileField::country},
    UserElement{"Gender", ProfileField::gender},
    UserElement{"Age", ProfileField::age},
    UserElement{"HeightMeter", ProfileField::height},
    UserElement{"WeightKG", ProfileField::weight},
    UserElement{"GoalWeightKG", ProfileField::goal_weight},
    UserElement{"Priority", ProfileField::type_prioriteit},
    UserElement{"Notes", ProfileField::remark},
};

void AddLine(Text& file, std::string_view line) {
  file.append(line).append(kLineEnds);
}

void AddElement(Text& file, std::string_view element, std::string_view value) {
  file.append("<").append(element).append(">").append(value).append("</").append(element);
  AddLine(file, ">");
}

Text Rounded(float value, int decimals, std::string_view separator) {
  return Str(decimals == kUnrounded ? value : RoundTo(value, decimals), separator);
}

void AddFood(Text& file, const EatenFood& food, const FoodAmounts& totals,
             std::string_view separator) {
  AddLine(file, "<FoodItem>");
  AddElement(file, "Product", food.Field(FoodField::kProduct));
  AddElement(file, "DB", food.Field(FoodField::kDb));
  AddElement(file, "POD", food.Field(FoodField::kPod));
  AddElement(file, "X", food.count);
  for (const AmountElement& amount : kAmounts) {
    const FoodAmounts& shown = amount.field == FoodField::kKcal ? totals : food.amounts;
    AddElement(file, amount.element, Rounded(shown[amount.field], amount.item_decimals, separator));
  }
  AddLine(file, "</FoodItem>");
}

void AddTotals(Text& file, const FoodAmounts& totals, std::string_view separator) {
  AddLine(file, "<Totals>");
  for (const AmountElement& amount : kAmounts) {
    const float seven_digits = Single(Val(Str(totals[amount.field], ".")));
    AddElement(file, amount.element, Rounded(seven_digits, amount.total_decimals, separator));
  }
  AddLine(file, "</Totals>");
}

// A weight with two decimals and no zero before the point; none if there is none.
Text WeightOrNothing(const ReportContext& context, const Text& stored) {
  return stored.empty() ? Text() : PrintNumber(context, stored, "###.00");
}

}  // namespace

Text Export_XML_Header(const ReportContext& context, std::string_view start_date,
                       std::string_view end_date, std::size_t days, std::string_view user_name) {
  return WritePiece(context, "#FF7-0", [&](Text& file) {
    AddLine(file, R"(<?xml version="1.0"?>)");
    AddLine(file, "<?xml-stylesheet type='text/xsl'?>");
    AddLine(file, "<File>");
    AddLine(file, "<Details>");
    AddElement(file, "Username", user_name);
    AddElement(file, "StartDate", start_date);
    AddElement(file, "EndDate", end_date);
    AddElement(file, "Days", std::to_string(days));
    AddLine(file, "</Details>");
  });
}

Text Export_XML_User(const ReportContext& context) {
  return WritePiece(context, "#FF7-1", [&](Text& file) {
    const Rec_Profile& profile = context.profile;
    AddLine(file, "<UserDetails>");
    AddElement(file, "CRCUserID",
               Get_CRC_UserID(profile[ProfileField::name] + profile[ProfileField::height] +
                              profile[ProfileField::reference]));
    for (const auto& [element, field] : kUserElements) AddElement(file, element, profile[field]);
    AddLine(file, "</UserDetails>");
    CleanText(file);
  });
}

Text Export_XML_Day(const ReportContext& context, const Rec_DayFile& day, DiaryChoice diary) {
  return WritePiece(context, "#FF7-2", [&](Text& file) {
    TextList header;
    SplitBlock(CommaToPoint(day[DayFileField::Header]), header);
    Text kilograms(header[HeaderRow::kWeight]);
    AddLine(file, "<Day>");
    AddElement(file, "Date", header[HeaderRow::kDate]);
    AddElement(file, "KG", WeightOrNothing(context, kilograms));
    AddElement(file, "LBS", WeightOrNothing(context, Kg_To_Lbs(kilograms, context.units)));
    AddLine(file, "<FoodItems>");
    const EatenFoods foods(day);
    FoodAmounts totals;
    for (const EatenFood& food : foods.Rows()) {
      totals.Add(food.amounts);
      AddFood(file, food, totals, context.separator);
    }
    AddLine(file, "</FoodItems>");
    AddTotals(file, totals, context.separator);
    if (diary == DiaryChoice::include) AddElement(file, "Notes", day[DayFileField::Notes]);
    AddLine(file, "</Day>");
    CleanText(file);
  });
}

Text Export_XML_Footer(const ReportContext& context) {
  return WritePiece(context, "#FF7-3", [](Text& file) { AddLine(file, "</File>"); });
}

}  // namespace kelvora
