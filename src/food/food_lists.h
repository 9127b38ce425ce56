// The lists that food comes from: what they show, how they are searched and what a drag takes out
// of them. The food lists window draws this and holds nothing itself.
//
// A row's number is the place of its line in the source list; a drag finds the line by it.
#pragma once

#include <array>
#include <optional>
#include <string_view>
#include <vector>

#include "core/program.h"

namespace kelvora {

enum class FoodView { standard, own, favourites, internet };

inline constexpr std::size_t kFoodColumns = 5;

class FoodLists {
 public:
  explicit FoodLists(Program& program) : program_(program) {}

  // The lines that a view shows; of `temp_zoeken` for the standard list.
  [[nodiscard]] std::size_t Count(FoodView view) const { return SourceOf(view).Count(); }

  // The text of one cell; column 0 holds the row's number. Made anew at each call.
  [[nodiscard]] Text Cell(FoodView view, std::size_t row, std::size_t column) const;

  [[nodiscard]] std::array<Text, kFoodColumns> Headings() const;

  // The categories as shown, without their extension.
  [[nodiscard]] TextList Categories() const;

  // The standard list begins with its first category; returns what then stands in the search box,
  // nothing if there are no foods.
  [[nodiscard]] std::optional<Text> Toon_Standaardlijst();

  // Lists all lines of the category: a search for its file name. Returns that name, which stays
  // visible in the search box.
  Text ChooseCategory(std::string_view shown_name);

  // Lists the foods whose line begins with the text, standard list first, then the own list,
  // without regard to case.
  void SearchPrefix(std::string_view text);

  // Lists the foods that hold the text anywhere in their line. An empty text changes nothing and
  // gives false.
  bool Zoek_In_Lijsten(std::string_view text);

  // The second panel of the status bar for what was last listed.
  [[nodiscard]] Text AvailableText(FoodView view) const;
  [[nodiscard]] Text ResultsText() const;

  // The payload of dragging these rows; empty after the warning that there are too many.
  [[nodiscard]] Text DragPayload(FoodView view, const std::vector<std::size_t>& rows);

  // The Product of the row last clicked; all views share it.
  Text last_clicked;

 private:
  [[nodiscard]] const TextList& SourceOf(FoodView view) const;
  [[nodiscard]] Text WeightCell(std::string_view line) const;
  [[nodiscard]] Text NutrientCell(std::string_view line) const;
  template <class Wanted>
  void Collect(std::string_view code, Wanted wanted);

  Program& program_;
  TextList temp_zoeken_, temp_internet_;
};

}  // namespace kelvora
