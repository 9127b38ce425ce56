// The bars of the requirements as a user sees them: where they end in pictures of two sizes and two
// scales, against lengths worked out by hand.
#include "analysis/requirements_panel.h"

#include <cmath>
#include <gtest/gtest.h>

#include "language/built_in_texts.h"
#include "platform/qt/hint_label.h"
#include "support/test_program.h"
#include "windows/chart_pictures.h"
#include "windows/find_in.h"

namespace kelvora {
namespace {

constexpr Colour kRequirement{63, 131, 196};
constexpr Colour kUse{240, 138, 60};

class RequirementPictures : public testing::Test {
 protected:
  RequirementPictures() {
    panel.Set_Taal(test.program.texts, AnalysisWindow::day_summary);
    for (std::size_t i = 0; i < rows.size(); ++i) {
      rows[i] = {.requirement_width = kRequirementTwips,
                 .use_width = kUseTwips,
                 .requirement_text = "Recommended:9000 Kj, 100%",
                 .use_text = "Used:6000 Kj, 66.66%",
                 .requirement_tip = "Energy, Kj: 9000 Kj, 100%",
                 .use_tip = "Energy, Kj used: 6000 Kj, 66.66%"};
    }
  }
  QWidget& Find(const QString& name) { return *FindIn<QWidget>(panel, name); }

  // The first and the last place from the left, in pixels of the picture, at which the middle of a
  // bar is seen in its colour.
  struct Ends {
    int first = -1;
    int last = -1;
  };
  Ends EndsOf(const QImage& picture, const QWidget& bar, const Colour& colour) {
    Ends ends;
    const double scale = picture.devicePixelRatio();
    const int y = static_cast<int>((bar.y() + bar.height() / 2.0) * scale);
    for (int x = 0; x < picture.width(); ++x) {
      if (picture.pixelColor(x, y) != AsDrawn(colour)) continue;
      if (ends.first < 0) ends.first = x;
      ends.last = x;
    }
    return ends;
  }

  // 200 and a third of a pixel, and 133 and a half.
  static constexpr float kRequirementTwips = 3005;
  static constexpr float kUseTwips = 2002.5F;
  TestProgram test;
  RequirementRows rows;
  RequirementsPanel panel{nullptr};
};

TEST_F(RequirementPictures, EndTheirBarsWhereTheLengthsSay) {
  panel.Show(rows);
  for (const QSize size : {QSize(558, 220), QSize(752, 600)}) {
    for (const double scale : {1.0, 2.0}) {
      const QImage picture = PictureOf(panel, size, scale);
      for (int row = 0; row < 7; ++row) {
        const QWidget& required = Find(QStringLiteral("pic_n_%1").arg(row));
        const QWidget& used = Find(QStringLiteral("pic_g_%1").arg(row));
        // At scale 1 200 and 134 pixels, at 2 401 and 267: halves go up.
        const Ends bar = EndsOf(picture, required, kRequirement);
        EXPECT_EQ(bar.last - bar.first + 1, scale == 1 ? 200 : 401) << row << " at " << scale;
        EXPECT_EQ(bar.first, (required.x() + 2) * scale);
        const Ends use = EndsOf(picture, used, kUse);
        EXPECT_EQ(use.last - use.first + 1, scale == 1 ? 134 : 267) << row << " at " << scale;
        EXPECT_EQ(use.first, (used.x() + 2) * scale);
        EXPECT_EQ(required.x(), used.x());
        EXPECT_LE(required.geometry().bottom(), used.y());
      }
    }
  }
}

TEST_F(RequirementPictures, ShowACapForAnAmountOfNothing) {
  rows[3].use_width = 0;
  rows[4].use_width = -500;  // amounts below zero, from a file
  panel.Show(rows);
  const QImage picture = PictureOf(panel, {558, 220}, 1);
  for (const char* name : {"pic_g_3", "pic_g_4"}) {
    const QWidget& bar = Find(QLatin1String(name));
    EXPECT_EQ(bar.width(), 4);
    EXPECT_EQ(EndsOf(picture, bar, kUse).first, -1);
    EXPECT_NE(picture.pixelColor(bar.geometry().center()), panel.palette().color(QPalette::Window));
  }
}

TEST_F(RequirementPictures, StayInThePanelWhateverTheAmounts) {
  rows[0].requirement_width = 1e30F;
  panel.Show(rows);
  PictureOf(panel, {558, 220}, 1);
  EXPECT_LE(Find("pic_n_0").width(), 558 + 4);
}

TEST_F(RequirementPictures, PutEachTextBehindItsBarAndInThePanel) {
  for (void (*make)(TextTables&) : {&Make_Taal_English, &Make_Taal_Dutch}) {
    make(test.program.texts);
    panel.Set_Taal(test.program.texts, AnalysisWindow::day_summary);
    for (const Schermstand stand : {Schermstand::normal, Schermstand::small}) {
      panel.SetStand(stand);
      const QSize size = stand == Schermstand::small ? QSize(460, 128) : QSize(558, 220);
      panel.Show(rows);
      PictureOf(panel, size, 1);
      // Worked out for these widths, the longest row fills the panel.
      const float room = static_cast<float>(panel.Widths().panel - 120 - panel.Widths().text);
      for (RequirementRow& row : rows) row.requirement_width = room;
      panel.Show(rows);
      for (int row = 0; row < 7; ++row) {
        for (const auto& [bar_name, text_name] :
             {std::pair{"pic_n_%1", "Pic_nt_%1"}, std::pair{"pic_g_%1", "Pic_gt_%1"}}) {
          const QWidget& bar = Find(QString(QLatin1String(bar_name)).arg(row));
          auto& text = *FindIn<QLabel>(panel, QString(QLatin1String(text_name)).arg(row));
          EXPECT_GT(text.x(), bar.geometry().right());
          EXPECT_GE(text.width(), text.sizeHint().width()) << text_name << row << size.height();
          EXPECT_LE(text.geometry().right(), size.width());
          EXPECT_GE(bar.y(), 0);
          EXPECT_LE(bar.geometry().bottom(), size.height());
        }
        auto& name = *FindIn<QLabel>(panel, QStringLiteral("lbl_stof_%1").arg(row));
        EXPECT_GE(name.width(), name.sizeHint().width());
        EXPECT_LT(name.geometry().right(), Find(QStringLiteral("pic_n_%1").arg(row)).x());
      }
    }
  }
}

TEST_F(RequirementPictures, TellTheirAmountsInWordsToo) {
  panel.Show(rows);
  EXPECT_EQ(Find("pic_n_0").accessibleName(), "Energy, Kj: 9000 Kj, 100%");
  EXPECT_EQ(Find("pic_n_0").toolTip(), "Energy, Kj: 9000 Kj, 100%");
  EXPECT_EQ(Find("pic_g_6").accessibleName(), "Energy, Kj used: 6000 Kj, 66.66%");
  EXPECT_EQ(panel.accessibleDescription().split('\n').size(), 14);
  EXPECT_EQ(panel.accessibleDescription().split('\n')[1], "Energy, Kj used: 6000 Kj, 66.66%");
}

// Bars are told from the panel and from each other by 3 to 1 at the least, on any palette.
TEST(RequirementColours, AreSeenOnLightAndOnDark) {
  for (const QColor ground : {QColor(239, 239, 239), QColor(45, 45, 48)}) {
    for (const Colour edge : {Colour{40, 90, 140}, Colour{176, 88, 26}}) {
      const double of_edge = ContrastOf(AsDrawn(edge), ground);
      const double of_middle =
          ContrastOf(AsDrawn(edge == Colour{40, 90, 140} ? kRequirement : kUse), ground);
      EXPECT_GE(std::max(of_edge, of_middle), 3.0);
    }
  }
}

}  // namespace
}  // namespace kelvora
