// What a list of foods takes of what is dropped on it.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>

#include "food/food_table_panel.h"
#include "platform/qt/text.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

class FoodTableDrops : public testing::Test {
 protected:
  FoodTableDrops() {
    table.drop = [this](const Text& payload) { dropped.push_back(payload); };
    table.show();
  }
  bool Drop(const QString& text) {
    QMimeData data;
    data.setText(text);
    QWidget* const target = table.viewport();
    const QPointF middle = target->rect().center();
    QDragEnterEvent enter(middle.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(target, &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent event(middle, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(target, &event);
    return true;
  }

  FoodTable table{"LV_test", nullptr};
  std::vector<Text> dropped;
};

TEST_F(FoodTableDrops, TakeADragOfThisProgramWhole) {
  const Text payload = "add-" + Packed("Cr\xE8me|") + Text(100'000, '\x80') + Packed("|~");
  EXPECT_TRUE(Drop(ToQtWhole(payload)));
  EXPECT_EQ(dropped, std::vector<Text>{payload});
}

TEST_F(FoodTableDrops, TakeNothingThatTextCantHold) {
  EXPECT_FALSE(Drop(ToQtWhole("add-" + Packed("Soup|~")).replace('S', QChar(0x0141))));
  EXPECT_TRUE(dropped.empty());
}

TEST_F(FoodTableDrops, AreOfferedWhereverTheDragGoesOverTheList) {
  for (const auto& [text, taken] :
       {std::pair{"add-Soup\xBD\xBE", true}, std::pair{"Soup", false}}) {
    QMimeData data;
    data.setText(QString::fromLatin1(text));
    const auto offered = [&](auto event) {
      event.ignore();
      QApplication::sendEvent(table.viewport(), &event);
      return event.isAccepted();
    };
    EXPECT_EQ(offered(QDragEnterEvent({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {})), taken);
    EXPECT_EQ(offered(QDragMoveEvent({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, {})), taken);
    QDragLeaveEvent leave;
    QApplication::sendEvent(table.viewport(), &leave);
  }
}

}  // namespace
}  // namespace kelvora
