#include "food/food_lists.h"

#include <cmath>
#include <limits>

#include "core/common.h"
#include "core/text_search.h"
#include "food/drag_text.h"
#include "language/lists_texts.h"
#include "language/own_texts.h"
#include "nutrition/numbers.h"
#include "nutrition/totals.h"

namespace kelvora {
namespace {

using namespace lists_text;

constexpr std::string_view kExtension = ".dat";
constexpr std::size_t kMaxDraggedRows = 10;

// Headings of the nutrient column and their tips, in the order of Priority.
constexpr std::array kNutrientHeadings = {kColumnKj,   kColumnKcal,  kColumnFatU,
                                          kColumnFatS, kColumnCarbs, kColumnProtein};
constexpr std::array kNutrientTips = {kTipColumnKj,   kTipColumnKcal,  kTipColumnFatU,
                                      kTipColumnFatS, kTipColumnCarbs, kTipColumnProtein};

bool ShowsOunces(const Program& program) {
  return program.settings[Setting::opt_gramoz] == "1";
}

}  // namespace

const TextList& FoodLists::SourceOf(FoodView view) const {
  switch (view) {
    case FoodView::standard:
      return temp_zoeken_;
    case FoodView::own:
      return program_.store.Custom_list;
    case FoodView::favourites:
      return program_.store.Favorites_list;
    case FoodView::internet:
      break;
  }
  return temp_internet_;
}

std::string_view FoodLists::LineAt(FoodView view, std::size_t row) const {
  return SourceOf(view)[NumberOf(view, row)];
}

Text FoodLists::Cell(FoodView view, std::size_t row, std::size_t column) const {
  const std::string_view line = LineAt(view, row);
  switch (column) {
    case 0:
      return std::to_string(NumberOf(view, row) + 1);
    case 1:
      return Text(FieldOf(line, FoodField::kProduct));
    case 2:
      return Text(FieldOf(line, FoodField::kUnit));
    case 3:
      return WeightCell(line);
    default:
      return NutrientCell(line);
  }
}

bool FoodLists::HasSecondLines() const {
  return LanguageOf(program_.texts) == Language::dutch;
}

Text FoodLists::SecondLine(FoodView view, std::size_t row) const {
  const std::string_view remark = FieldOf(LineAt(view, row), FoodField::kRemark);
  return Text(remark.substr(0, remark.find_first_of("\r\n")));
}

Text FoodLists::WeightCell(std::string_view line) const {
  const std::string_view gram = FieldOf(line, FoodField::kGram);
  if (!ShowsOunces(program_)) return Text(gram);
  const double grams = ReadStoredNumber(gram);
  // Beyond the range of a single there is nothing to show, and no place for a box while drawing.
  if (gram.empty() || std::fabs(grams) > std::numeric_limits<float>::max()) return {};
  return OuncesOfGrams(grams, program_.platform.locale.DecimalSeparator());
}

Text FoodLists::NutrientCell(std::string_view line) const {
  const Priority priority = PriorityOfUser(program_);
  const double value = ReadStoredNumber(FieldOf(line, FoodFieldOf(priority)));
  if (!std::isfinite(value)) return {};
  return FormatNumber(value, PatternOf(priority), program_.platform.locale.DecimalSeparator());
}

std::array<Text, kFoodColumns> FoodLists::Headings() const {
  const TextTables& texts = program_.texts;
  const auto priority = static_cast<std::size_t>(PriorityOfUser(program_));
  return {texts[kColumnNumber], texts[kColumnFood], texts[kColumnUnit],
          texts[ShowsOunces(program_) ? kColumnOz : kColumnGram],
          texts[kNutrientHeadings[priority]]};
}

const Text& FoodLists::NutrientTip() const {
  return program_.texts[kNutrientTips[static_cast<std::size_t>(PriorityOfUser(program_))]];
}

TextList FoodLists::Categories() const {
  TextList categories;
  for (const std::string_view file : program_.store.lst_categorien) {
    categories.Add(file.substr(0, file.size() - kExtension.size()));
  }
  return categories;
}

Text FileOfCategory(std::string_view shown_name) {
  return Text(shown_name).append(kExtension);
}

TextList FoodLists::Found(const Search& search) const {
  const CaselessFinder finder(search.text);
  TextList found;
  const auto add_from = [&](const TextList& list) {
    found.AddSharedLines(list, [&](std::string_view line) {
      return search.kind == SearchKind::at_front ? finder.IsAtFrontOf(line) : finder.IsIn(line);
    });
  };
  if (often_) {
    add_from(*often_);
  } else {
    add_from(program_.store.Default_list);
    add_from(program_.store.Custom_list);
  }
  return found;
}

void FoodLists::ShowFound(std::string_view code, Search search) {
  program_.Guard(code, [&] {
    program_.platform.pointer.ShowWait();
    temp_zoeken_ = Found(search);
    last_search_ = std::move(search);
    OrderOf(FoodView::standard).numbers.clear();
    program_.platform.pointer.Restore();
  });
}

bool FoodLists::SearchAgain() {
  if (!last_search_) return false;
  TextList found = Found(*last_search_);
  if (found == temp_zoeken_) return false;
  temp_zoeken_ = std::move(found);
  OrderOf(FoodView::standard).numbers.clear();
  return true;
}

std::optional<Text> FoodLists::Toon_Standaardlijst() {
  temp_zoeken_.Clear();
  last_search_.reset();
  often_.reset();
  OrderOf(FoodView::standard).numbers.clear();
  if (program_.store.Default_list.Empty()) return std::nullopt;
  return ChooseCategory(Categories()[0]);
}

Text FoodLists::ChooseCategory(std::string_view shown_name) {
  const Text file = FileOfCategory(shown_name);
  Zoek_In_Lijsten(file);
  return file;
}

void FoodLists::SearchPrefix(std::string_view text) {
  ShowFound("#F11-0", {SearchKind::at_front, Text(text)});
}

bool FoodLists::Zoek_In_Lijsten(std::string_view text) {
  if (text.empty()) return false;
  often_.reset();
  ShowFound("#F11-1", {SearchKind::anywhere, Text(text)});
  return true;
}

void FoodLists::ShowOften(const TextList& foods) {
  often_ = foods;
  SearchPrefix({});
}

bool FoodLists::NothingOften() const {
  return often_ && often_->Empty();
}

bool FoodLists::NoNameBegins() const {
  return last_search_ && last_search_->kind == SearchKind::at_front && temp_zoeken_.Empty();
}

Text FoodLists::AvailableText(FoodView view) const {
  const std::size_t count =
      view == FoodView::standard ? program_.store.Default_list.Count() : Count(view);
  return std::to_string(count) + " " +
         program_.texts[view == FoodView::internet ? kFoundOnInternet : kAvailable];
}

Text FoodLists::ResultsText() const {
  return std::to_string(temp_zoeken_.Count()) + " " + program_.texts[kResultsFound];
}

Text FoodLists::NothingFoundText() const {
  return std::to_string(Count(FoodView::internet)) + " " + program_.texts[kAvailable];
}

Text FoodLists::DragPayload(FoodView view, const std::vector<std::size_t>& rows) {
  if (rows.size() > kMaxDraggedRows) {
    Tell(program_, BoxIcon::warning, JoinLines(program_.texts, {kTooManyDragged, kSelectAgain}));
    return {};
  }
  Text payload(kAddMarker);
  for (const std::size_t row : rows) payload.append(LineAt(view, row)) += kLineEnd;
  return payload;
}

}  // namespace kelvora
