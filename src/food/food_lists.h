// The lists that food comes from: what they show, how they are searched and sorted, and what a
// drag takes out of them. The food lists window draws this and holds nothing itself.
//
// A row stands for the line of its number in the source list, whatever the sort; rows count from 0
// here. Populating a view puts its rows in the order of the lines again. Which way the next click
// on a heading sorts outlives that. food_list_commands.h holds what changes the lists.
#pragma once

#include <array>
#include <optional>
#include <string_view>
#include <vector>

#include "core/column_sort.h"
#include "core/program.h"

namespace kelvora {

inline constexpr std::size_t kFoodColumns = 5;

// The file of a category, by the name that is shown.
[[nodiscard]] Text FileOfCategory(std::string_view shown_name);

class FoodLists {
 public:
  explicit FoodLists(Program& program)
      : last_clicked(program.day.last_clicked_food), program_(program) {}

  // The lines that a view shows; of `temp_zoeken` for the standard list.
  [[nodiscard]] std::size_t Count(FoodView view) const { return SourceOf(view).Count(); }
  // The line of a row; "" beyond the end.
  [[nodiscard]] std::string_view LineAt(FoodView view, std::size_t row) const;

  // The foods of the internet view, which a search fills.
  [[nodiscard]] TextList& temp_internet() { return temp_internet_; }

  // The text of one cell; column 0 holds the line's number. Made anew at each call.
  [[nodiscard]] Text Cell(FoodView view, std::size_t row, std::size_t column) const;

  // What stands below a food's name: in Dutch the first line of the remark, which holds the Dutch
  // names of the foods that come with the program.
  [[nodiscard]] bool HasSecondLines() const;
  [[nodiscard]] Text SecondLine(FoodView view, std::size_t row) const;

  [[nodiscard]] std::array<Text, kFoodColumns> Headings() const;
  // The tool tip of the last heading, the only one that has one.
  [[nodiscard]] const Text& NutrientTip() const;

  // Puts the rows in the order of the lines. Returns the row to be selected: the first whose
  // Product was last clicked, in whatever view.
  std::optional<std::size_t> Populate(FoodView view);

  // A click on the heading of a column.
  void SortByColumn(FoodView view, std::size_t column);
  // Sorts anew by a column of values, if the rows stand so: its values are others now.
  void SortAgain(FoodView view);
  // How the rows stand; nothing while they stand in the order of the lines.
  [[nodiscard]] std::optional<ColumnOrder> ShownOrder(FoodView view) const;

  // The numbers of the lines of rows, and where lines stand now, from top to bottom.
  [[nodiscard]] std::vector<std::size_t> NumbersOf(FoodView view,
                                                   const std::vector<std::size_t>& rows) const;
  [[nodiscard]] std::vector<std::size_t> RowsOf(FoodView view,
                                                std::vector<std::size_t> numbers) const;

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

  // Lists these foods in the place of a search. What is searched by its beginning from then on is
  // searched among them, until the standard list is shown or a search goes through everything.
  void ShowOften(const TextList& foods);
  // True while that list shows no food at all.
  [[nodiscard]] bool NothingOften() const;

  // Searches as the last time, after the own list has changed. True if what is found has changed.
  bool SearchAgain();

  // True while a search for names that begin with a text has found none.
  [[nodiscard]] bool NoNameBegins() const;

  // The second panel of the status bar: how many a view has, and what a search found.
  [[nodiscard]] Text AvailableText(FoodView view) const;
  [[nodiscard]] Text ResultsText() const;
  // The same panel of the internet view after a search that found nothing.
  [[nodiscard]] Text NothingFoundText() const;

  // The payload of dragging these rows; empty after the warning that there are too many.
  [[nodiscard]] Text DragPayload(FoodView view, const std::vector<std::size_t>& rows);

  // The Product of the row last clicked; all views share it.
  Text& last_clicked;

 private:
  // How the rows of a view stand, and what its headings were clicked for last.
  struct Order {
    std::vector<std::uint32_t> numbers;  // of the lines, row by row; empty for their own order
    std::optional<ColumnOrder> last_click;
    SortOrder next_by_value = SortOrder::ascending;
  };

  [[nodiscard]] const TextList& SourceOf(FoodView view) const;
  [[nodiscard]] const Order& OrderOf(FoodView view) const;
  [[nodiscard]] Order& OrderOf(FoodView view);
  [[nodiscard]] std::size_t NumberOf(FoodView view, std::size_t row) const;
  [[nodiscard]] Text WeightCell(std::string_view line) const;
  [[nodiscard]] Text NutrientCell(std::string_view line) const;
  [[nodiscard]] static SortOrder NextOrder(Order& view_order, std::size_t column);
  [[nodiscard]] std::vector<std::uint32_t> SortedRows(FoodView view, const ColumnOrder& by) const;
  void Sort(FoodView view, const ColumnOrder& by);

  enum class SearchKind { at_front, anywhere };
  struct Search {
    SearchKind kind;
    Text text;
  };
  [[nodiscard]] TextList Found(const Search& search) const;
  void ShowFound(std::string_view code, Search search);

  Program& program_;
  TextList temp_zoeken_, temp_internet_;
  std::optional<Search> last_search_;  // what `temp_zoeken` holds the answer to
  std::optional<TextList> often_;      // what it is searched among, if not everything
  std::array<Order, kFoodViews.size()> orders_;
};

}  // namespace kelvora
