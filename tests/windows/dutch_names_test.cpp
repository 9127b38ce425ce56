// The Dutch name of a food, in grey below its name, in a program that speaks Dutch.
#include "language/built_in_texts.h"
#include "platform/qt/cell_tips.h"
#include "platform/qt/contrast.h"
#include "windows/food_lists_user.h"

namespace kelvora {
namespace {

class DutchNames : public FoodListsWindowTest {
 protected:
  DutchNames() {
    store.Default_list.Add(LineOf({.product = "Coffee",
                                   .unit = "1 cup",
                                   .gram = "125",
                                   .remark = "koffie",
                                   .db = "Fruit.dat"}));
  }
  void Speak(void (*make)(TextTables&)) {
    make(program.texts);
    window.Set_Taal();
    if (program.windows.lists != nullptr) program.windows.lists->Set_Taal();
    QApplication::processEvents();
  }
  // A search in whole lines, as Enter makes it.
  void Search(const char* text) {
    auto* const box = In<QLineEdit>("txt_zoeken");
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, text);
    QTest::keyClick(box, Qt::Key_Return);
  }
  static QString Second(FoodTable* list, int row, int column = 1) {
    return list->Model().index(row, column).data(kSecondLineRole).toString();
  }
};

TEST_F(DutchNames, StandBelowTheNamesOfWhatASearchFinds) {
  Speak(&Make_Taal_Dutch);
  Open();
  Search("koffie");
  EXPECT_EQ(Names(List(1)), "Coffee");
  EXPECT_EQ(Second(List(1), 0), "koffie");
  EXPECT_EQ(Second(List(1), 0, 2), "");
  EXPECT_EQ(List(1)->Model().index(0, 1).data(Qt::AccessibleTextRole).toString(), "Coffee, koffie");
}

TEST_F(DutchNames, ComeAndGoWithTheLanguage) {
  Open();
  Search("koffie");
  FoodTable* const list = List(1);
  const int low = list->rowHeight(0);
  EXPECT_EQ(Second(list, 0), "");
  EXPECT_EQ(list->Model().index(0, 1).data(Qt::AccessibleTextRole).toString(), "");
  Speak(&Make_Taal_Dutch);
  EXPECT_EQ(Second(list, 0), "koffie");
  EXPECT_EQ(list->rowHeight(0), low + list->fontMetrics().height());
  Speak(&Make_Taal_English);
  EXPECT_EQ(Second(list, 0), "");
  EXPECT_EQ(list->rowHeight(0), low);
}

// The letters themselves: in the lower half of the cell there is a grey that can be read, and the
// columns stand where they did.
TEST_F(DutchNames, AreDrawnInGrey) {
  QFont sharp = QApplication::font();
  const QFont before = sharp;
  sharp.setStyleStrategy(QFont::NoAntialias);
  QApplication::setFont(sharp);
  Open();
  Search("koffie");
  FoodTable* const list = List(1);
  const int width = list->columnWidth(1);
  Speak(&Make_Taal_Dutch);
  list->clearSelection();
  EXPECT_EQ(list->columnWidth(1), width);
  const QRect cell = list->visualRect(list->Model().index(0, 1));
  const QImage picture = list->viewport()->grab().toImage();
  const auto darkest = [&](QRect place) {
    QColor found = Qt::white;
    for (int y = place.top(); y <= place.bottom(); ++y) {
      for (int x = place.left(); x < place.left() + 60; ++x) {
        const QColor pixel = picture.pixelColor(x, y);
        if (pixel.lightness() < found.lightness()) found = pixel;
      }
    }
    return found;
  };
  const QRect upper = cell.adjusted(2, 1, -2, -cell.height() / 2);
  const QRect lower = cell.adjusted(2, cell.height() / 2 + 1, -2, -1);
  const QColor ground = picture.pixelColor(cell.right() - 2, cell.bottom() - 2);
  EXPECT_GT(ContrastOf(darkest(upper), ground), 15);
  EXPECT_GE(ContrastOf(darkest(lower), ground), 4.5);
  EXPECT_LT(ContrastOf(darkest(lower), ground), 6);
  QApplication::setFont(before);
}

// A list of a hundred thousand foods makes the lines of those that are drawn and of no others.
TEST_F(DutchNames, AreMadeForDrawnCellsOnly) {
  Speak(&Make_Taal_Dutch);
  Open();
  FoodTable* const list = List(1);
  std::size_t made = 0;
  list->Model().Show({{"#"}, {"Food"}, {"Unit"}, {"Gram"}, {"Kcal"}}, 100'000,
                     [](std::size_t, std::size_t) { return Text("x"); });
  list->Model().ShowSecondLine(1, [&made](std::size_t) {
    ++made;
    return Text("y");
  });
  list->viewport()->update();
  QApplication::processEvents();
  EXPECT_GT(made, 0u);
  EXPECT_LT(made, 1000u);
}

}  // namespace
}  // namespace kelvora
