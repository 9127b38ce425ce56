// What a list draws in its cells, and the tip of a cell that is cut.
#include "platform/qt/cell_tips.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHelpEvent>
#include <QTableView>
#include <QTest>
#include <QTextDocumentFragment>
#include <QToolTip>

#include "platform/qt/look.h"
#include "platform/qt/text.h"
#include "platform/qt/text_table_model.h"

namespace kelvora {
namespace {

class CellsOfLists : public testing::Test {
 protected:
  CellsOfLists() {
    table.setModel(&model);
    MakeRowList(&table);
    table.resize(400, 200);
  }
  ~CellsOfLists() override { QToolTip::hideText(); }

  void Show(const Text& text, int width = 100) {
    model.Show({{"Product"}, {"Unit"}}, 1,
               [text](std::size_t, std::size_t column) { return column == 0 ? text : Text("g"); });
    table.setColumnWidth(0, width);
    table.show();
    QApplication::processEvents();
  }
  QString Cell() { return model.index(0, 0).data().toString(); }
  // What a user reads who rests the pointer on a cell; empty without a tip.
  QString TipOf(int column) {
    QToolTip::hideText();
    const QPoint place = table.visualRect(model.index(0, column)).center();
    QHelpEvent event(QEvent::ToolTip, place, table.viewport()->mapToGlobal(place));
    QApplication::sendEvent(table.viewport(), &event);
    return QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText();
  }

  TextTableModel model;
  QTableView table;
};

TEST_F(CellsOfLists, DrawControlCharactersAsBlanks) {
  Show(
      "Bread\r\n\twith\x81\x7F"
      "butter");
  EXPECT_EQ(Cell(), "Bread   with  butter");
}

TEST_F(CellsOfLists, DrawNoMoreThanFiveHundredCharacters) {
  Show(Text(2'000'000, 'b'));
  EXPECT_EQ(Cell(), QString(499, 'b') + QChar(0x2026));
}

TEST_F(CellsOfLists, HaveATipOnlyWhereTheyAreCut) {
  table.setToolTip(QStringLiteral("the list"));
  Show("Bread");
  EXPECT_EQ(TipOf(0), "the list");
  Show("A bread with more words than the column has room for");
  EXPECT_EQ(TipOf(0), "A bread with more words than the column has room for");
  EXPECT_EQ(TipOf(1), "the list");
  // Another width of the column, and all of it is there.
  table.setColumnWidth(0, 390);
  EXPECT_EQ(TipOf(0), "the list");
}

TEST_F(CellsOfLists, HaveATipOfPlainText) {
  Show("<b>Bread</b> & <img src='x'>\t<h1>butter</h1>");
  EXPECT_EQ(TipOf(0), "<b>Bread</b> & <img src='x'> <h1>butter</h1>");
}

TEST_F(CellsOfLists, HaveATipOfTenLinesAtTheMost) {
  for (const Text& text : {Text(2'000'000, 'W'), Text(2'000'000, '\n'), Text(400, 'W')}) {
    Show(text, 20);
    const QString tip = TipOf(0);
    EXPECT_LE(tip.split('\n').size(), 10) << text.size();
    EXPECT_LE(tip.size(), 510) << text.size();
  }
  Show(Text(450, 'W'), 20);
  EXPECT_EQ(TipOf(0).split('\n').size(), 10);
  EXPECT_TRUE(TipOf(0).endsWith(QChar(0x2026)));
}

TEST(PlainTips, BreakLinesBetweenWords) {
  const QString tip = PlainTip(QStringLiteral("twelve chars ").repeated(20).trimmed());
  const QStringList lines = QTextDocumentFragment::fromHtml(tip).toPlainText().split('\n');
  EXPECT_GT(lines.size(), 2);
  EXPECT_LE(lines.size(), 10);
  for (const QString& line : lines) {
    EXPECT_TRUE(line.trimmed().startsWith("twelve") || line.trimmed().startsWith("chars"));
  }
}

TEST(PlainTips, KeepTheLinesThatTheTextHas) {
  const QString words = QStringLiteral("a line of some words\n").repeated(5).trimmed();
  EXPECT_EQ(QTextDocumentFragment::fromHtml(PlainTip(words)).toPlainText(), words);
}

}  // namespace
}  // namespace kelvora
