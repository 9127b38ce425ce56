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
    QPalette palette;
    palette.setColor(QPalette::WindowText, letters);
    palette.setColor(QPalette::Window, ground);
    page.setPalette(palette);
    EXPECT_EQ(grey(), HintColour(letters, ground));
    EXPECT_GE(ContrastOf(grey(), ground), 4.5);
  }
}

}  // namespace
}  // namespace kelvora
