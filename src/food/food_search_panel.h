// What stands above a food list: the search of the standard list with its categories, and that of
// the internet list. They hold the boxes and their captions; the window acts on them.
#pragma once

#include <functional>

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include "platform/qt/text_box.h"

namespace kelvora {

// A box to search in. Its text is selected whenever it gets the focus, so that the next word takes
// the place of the last one.
class SearchBox : public TextBox {
  Q_OBJECT

 public:
  using TextBox::TextBox;

  // Goes to the first row that was found, by Down or Tab; false if there is none.
  std::function<bool()> go_to_found;
  // Empties the search, by Escape.
  std::function<void()> empty;

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool next) override;
};

// Pic_zoek.
class FoodSearchPanel : public QWidget {
  Q_OBJECT

 public:
  FoodSearchPanel(const EntryContext& entry, QWidget* parent);
  void Set_Taal(const TextTables& texts);

  [[nodiscard]] QComboBox& Categories() { return *combo_cat_; }
  [[nodiscard]] QPushButton& Often() { return *cmd_often_; }
  [[nodiscard]] SearchBox& Search() { return *txt_zoeken_; }

 private:
  QLabel* txt_catuitleg_;
  QComboBox* combo_cat_;
  QLabel* txt_zoekuitleg_;
  QPushButton* cmd_often_;
  SearchBox* txt_zoeken_;
};

// Pic_internet.
class InternetSearchPanel : public QWidget {
  Q_OBJECT

 public:
  InternetSearchPanel(const EntryContext& entry, QWidget* parent);
  void Set_Taal(const TextTables& texts);
  // While a search runs nothing can be entered.
  void ShowSearching(bool running);
  // The name of the server in use, or that there is none.
  void ShowServer(const QString& name, const QString& tip);

  [[nodiscard]] SearchBox& Term() { return *txt_internet_; }

 private:
  QLabel* txt_internetzoektext_;
  SearchBox* txt_internet_;
  QLabel* txt_server_;
};

}  // namespace kelvora
