// What stands above a food list: the search of the standard list with its categories, and that of
// the internet list. They hold the boxes and their captions; the window acts on them.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include "platform/qt/text_box.h"

namespace kelvora {

// Pic_zoek.
class FoodSearchPanel : public QWidget {
  Q_OBJECT

 public:
  FoodSearchPanel(const EntryContext& entry, QWidget* parent);
  void Set_Taal(const TextTables& texts);

  [[nodiscard]] QComboBox& Categories() { return *combo_cat_; }
  [[nodiscard]] QPushButton& Often() { return *cmd_often_; }
  [[nodiscard]] TextBox& Search() { return *txt_zoeken_; }

 private:
  QLabel* txt_catuitleg_;
  QComboBox* combo_cat_;
  QLabel* txt_zoekuitleg_;
  QPushButton* cmd_often_;
  TextBox* txt_zoeken_;
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

  [[nodiscard]] TextBox& Term() { return *txt_internet_; }

 private:
  QLabel* txt_internetzoektext_;
  TextBox* txt_internet_;
  QLabel* txt_server_;
};

}  // namespace kelvora
