// The colour of hints on palettes of every kind.
#include "platform/qt/hint_label.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPalette>

namespace kelvora {
namespace {

// Black on white is 21 by definition; the grey #767676 is the well-known lightest one of 4.5 on
// white, #777777 has 4.48.
TEST(HintLabel, ContrastIsThatOfTheRelativeLuminance) {
  EXPECT_NEAR(ContrastOf(Qt::black, Qt::white), 21, 0.001);
  EXPECT_NEAR(ContrastOf(Qt::white, Qt::black), 21, 0.001);
  EXPECT_NEAR(ContrastOf(Qt::red, Qt::red), 1, 0.001);
  EXPECT_NEAR(ContrastOf(QColor("#767676"), Qt::white), 4.54, 0.005);
  EXPECT_NEAR(ContrastOf(QColor("#777777"), Qt::white), 4.48, 0.005);
}

TEST(HintLabel, AHintIsGreyAndCanBeRead) {
  struct Case {
    QColor letters, ground;
  };
  for (const auto& [letters, ground] :
       {Case{Qt::black, Qt::white}, Case{Qt::white, Qt::black}, Case{"#232629", "#eff0f1"},
        Case{"#fcfcfc", "#1b1e20"}, Case{"#002b36", "#fdf6e3"}, Case{"#000080", "#ffff00"}}) {
    const QColor grey = HintColour(letters, ground);
    EXPECT_GE(ContrastOf(grey, ground), 4.5) << letters.name().toStdString();
    EXPECT_LT(ContrastOf(grey, ground), 5.2) << letters.name().toStdString();
  }
}

TEST(HintLabel, WhereLettersCanHardlyBeReadHintsAreNoPaler) {
  EXPECT_EQ(HintColour(QColor("#999999"), Qt::white), QColor("#999999"));
}

TEST(HintLabel, FollowsThePaletteOfWhatItStandsOn) {
  QWidget page;
  const HintLabel hint(&page, QStringLiteral("hint"));
  const auto grey = [&] { return hint.palette().color(QPalette::WindowText); };
  for (const auto& [letters, ground] : {std::pair{Qt::white, Qt::black}, {Qt::black, Qt::white}}) {
    QPalette palette(ground);
    palette.setColor(QPalette::WindowText, letters);
    palette.setColor(QPalette::Window, ground);
    palette.setColor(QPalette::Base, ground);
    page.setPalette(palette);
    EXPECT_GE(ContrastOf(grey(), ground), 4.5);
    EXPECT_LT(ContrastOf(grey(), ground), 9);  // a grey, far from the 21 of the letters
  }
}

// A page whose grounds no grey can be read on together: that of the hint counts.
TEST(HintLabel, CanBeReadWhereGroundsDiffer) {
  QWidget page;
  QPalette palette(Qt::white);
  palette.setColor(QPalette::WindowText, Qt::white);
  palette.setColor(QPalette::Window, Qt::black);
  palette.setColor(QPalette::Base, Qt::white);
  page.setPalette(palette);
  const HintLabel hint(&page, QStringLiteral("hint"));
  EXPECT_GE(ContrastOf(hint.palette().color(QPalette::WindowText), Qt::black), 4.5);
}

// What has no room for all its lines has a mark at the end of those that fit, and says so.
TEST(HintLabel, IsCutWhereItsLinesHaveNoRoom) {
  QWidget page;
  HintLabel hint(&page, QStringLiteral("hint"));
  hint.setText(QStringLiteral("Drag food items from the lists and drop them here."));
  hint.resize(400, 60);
  EXPECT_FALSE(hint.IsCut());
  hint.resize(90, 16);
  EXPECT_TRUE(hint.IsCut());
  // Drawn to the end of its only line, and not below it.
  const QImage drawn = hint.grab().toImage();
  hint.setText({});
  const QImage empty = hint.grab().toImage();
  EXPECT_NE(drawn, empty);
}

}  // namespace
}  // namespace kelvora
