// The panel of the five largest as a user sees it: wedges at the angles worked out by hand, in
// pictures of two sizes and two scales, the legend beside them, and all of it in words.
#include "analysis/top5_panel.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

#include <QApplication>
#include <QLabel>

#include "language/built_in_texts.h"
#include "nutrition/numbers.h"
#include "platform/qt/text.h"
#include "support/test_program.h"
#include "windows/chart_pictures.h"
#include "windows/find_in.h"

namespace kelvora {
namespace {

// Kilocalories of ten foods, together 1000: 30, 25, 15, 10 and 5 percent, and 15 left over.
constexpr std::array<std::string_view, 10> kCells = {"300", "250", "150", "100", "50",
                                                     "40",  "40",  "30",  "30",  "10"};
constexpr std::array<Colour, 6> kBlues = {
    {{0, 56, 140}, {0, 80, 200}, {5, 105, 255}, {65, 141, 255}, {125, 177, 255}, {185, 213, 255}}};
constexpr QSize kSmallest(558, 227);  // in the smallest window
constexpr QSize kLarge(752, 700);

class Top5Pictures : public testing::Test {
 protected:
  Top5Pictures()
      : panel(
            [this](const Wedge& wedge, const PictureSize& picture) {
              return Teken_Taartpunt(test.program, AnalysisWindow::day_summary, wedge, picture);
            },
            &host) {
    host.show();
  }

  SummaryRows Rows(Text name = "Bread") const {
    SummaryRows rows;
    for (const std::string_view cell : kCells) {
      SummaryRow& row = rows.emplace_back();
      row[SummaryColumn::food] = name + " " + std::to_string(rows.size());
      for (std::size_t column = 5; column < kSummaryColumns; ++column) row.cells[column] = cell;
    }
    return rows;
  }
  void Show(const SummaryRows& rows, int gekozen_stof = 1) {
    Bouw_Top5(test.program, AnalysisWindow::day_summary, rows, gekozen_stof, top5);
    panel.Show(top5);
  }
  QWidget& Pie() { return *FindIn<QWidget>(panel, "Graph_pie"); }
  QLabel& Label(const char* name) { return *FindIn<QLabel>(panel, QLatin1String(name)); }

  // A place of the pie: `share` of its radius away from the middle, at that percentage of the way
  // round, counter-clockwise from the east.
  QPointF PlaceAt(double percent, double share) {
    const QSizeF size = Pie().size();
    const double radius = std::min(size.width(), size.height()) / 2 - 140.0 / 15;
    const double angle = percent / 100 * 2 * std::numbers::pi;
    const QPointF middle(size.width() / 2, size.height() / 2);
    return Pie().pos() + middle + QPointF(std::cos(angle), -std::sin(angle)) * radius * share;
  }

  TestProgram test;
  Top5 top5;
  QWidget host;  // shown, so that a new size counts at once
  Top5Panel panel;
};

TEST_F(Top5Pictures, HaveEachWedgeAtItsAngle) {
  Show(Rows());
  // The ends by hand, with 0.1 percent between two: 30, 55.1, 70.2, 80.3, 85.4, 100.
  constexpr std::array kEnds = {0.0, 30.0, 55.1, 70.2, 80.3, 85.4, 100.0};
  for (const QSize size : {kSmallest, kLarge}) {
    for (const double scale : {1.0, 2.0}) {
      SCOPED_TRACE(testing::Message() << size.width() << " at " << scale);
      const QImage picture = PictureOf(panel, size, scale);
      for (std::size_t i = 0; i < 6; ++i) {
        SCOPED_TRACE(i);
        const QColor colour = AsDrawn(kBlues[i]);
        for (const double share : {0.3, 0.6, 0.95}) {
          EXPECT_EQ(At(picture, PlaceAt((kEnds[i] + kEnds[i + 1]) / 2, share)), colour) << share;
        }
        // Near both sides, as far away as the outline reaches.
        EXPECT_EQ(At(picture, PlaceAt(kEnds[i] + 0.8, 0.9)), colour);
        EXPECT_EQ(At(picture, PlaceAt(kEnds[i + 1] - 0.8, 0.9)), colour);
      }
    }
  }
}

TEST_F(Top5Pictures, OutlineTheCircleInTheDarkColour) {
  Show(Rows());
  for (const double scale : {1.0, 2.0}) {
    const QImage picture = PictureOf(panel, kLarge, scale);
    const double radius = Pie().height() / 2.0;
    // Of the light wedges, whose green is 141 and more, as the ground's is. A line of one pixel may
    // lie over two, and is half as dark then.
    for (const double percent : {75.0, 83.0, 95.0}) {
      int darkest = 255;
      for (double off = -1.5; off <= 1.5; off += 0.25) {
        darkest = std::min(darkest, At(picture, PlaceAt(percent, 1 + off / radius)).green());
      }
      EXPECT_LT(darkest, scale == 2 ? 60 : 125) << percent << " at " << scale;
      EXPECT_EQ(At(picture, PlaceAt(percent, 1 + 4 / radius)),
                panel.palette().color(QPalette::Window));
    }
  }
}

TEST_F(Top5Pictures, AreSmoothAtTheEdgeOfTheCircle) {
  Show(Rows());
  const QImage picture = PictureOf(panel, kLarge, 1);
  std::set<QRgb> colours;
  for (double percent = 86; percent < 99; percent += 0.05) {
    colours.insert(At(picture, PlaceAt(percent, 1)).rgb());
  }
  EXPECT_GT(colours.size(), 10u);  // without smoothing: outline, wedge and ground
}

TEST_F(Top5Pictures, NeverGiveThePieASquare) {
  Show(Rows());
  int drawn = 0;
  for (int height = 200; height < 600; ++height) {
    panel.resize(558, height);
    EXPECT_NE(Pie().width(), Pie().height());
    drawn += SectorOf(top5.Graph_pie[0], {Pie().width() * 15, Pie().height() * 15}).radius > 0;
  }
  EXPECT_EQ(drawn, 400);
}

TEST_F(Top5Pictures, HaveTheLegendBesideThePieAndNothingCut) {
  for (const bool dutch : {false, true}) {
    if (dutch) Make_Taal_Dutch(test.program.texts);
    for (int gekozen_stof = 0; gekozen_stof < 7; ++gekozen_stof) {
      Show(Rows("Brood, volkoren, gesneden, 12"), gekozen_stof);
      PictureOf(panel, kSmallest, 1);
      const QLabel& heading = Label("lbl_soort");
      EXPECT_GE(heading.width(), heading.fontMetrics().horizontalAdvance(heading.text()));
      EXPECT_GE(heading.x(), Pie().geometry().right());
      int bottom = heading.geometry().bottom();
      for (const QLabel* name : panel.findChildren<QLabel*>(QRegularExpression("lbl_piename_."))) {
        EXPECT_GT(name->y(), bottom - 1) << name->objectName().toStdString();
        bottom = name->geometry().bottom();
        for (const QString& line : name->text().split('\n')) {
          EXPECT_GE(name->width(), name->fontMetrics().horizontalAdvance(line))
              << line.toStdString();
        }
        EXPECT_GE(name->height(), 2 * name->fontMetrics().height());
        EXPECT_LE(bottom, panel.height());
      }
    }
  }
}

TEST_F(Top5Pictures, HaveASwatchOfEachWedgesColour) {
  Show(Rows());
  const QImage picture = PictureOf(panel, kLarge, 2);
  for (std::size_t i = 0; i < 6; ++i) {
    QWidget& swatch = *FindIn<QWidget>(panel, QStringLiteral("lbl_piecolor_%1").arg(i));
    EXPECT_EQ(At(picture, QRectF(swatch.geometry()).center()), AsDrawn(kBlues[i])) << i;
  }
}

TEST_F(Top5Pictures, KeepLaidDownColoursInADarkPalette) {
  QPalette dark;
  dark.setColor(QPalette::Window, QColor(30, 30, 30));
  dark.setColor(QPalette::WindowText, QColor(240, 240, 240));
  panel.setPalette(dark);
  Show(Rows());
  const QImage picture = PictureOf(panel, kLarge, 1);
  EXPECT_EQ(At(picture, PlaceAt(15, 0.6)), AsDrawn(kBlues[0]));
  EXPECT_EQ(At(picture, PlaceAt(0, 1.05)), QColor(30, 30, 30));
}

TEST_F(Top5Pictures, ShowTheNoticeInTheMiddleOfAnEmptyPie) {
  Show(Rows());
  SummaryRows few = Rows();
  few.resize(5);
  Show(few);
  const QImage picture = PictureOf(panel, kSmallest, 1);
  QLabel& notice = Label("lbl_leeg");
  EXPECT_FALSE(notice.isHidden());
  EXPECT_TRUE(notice.text().contains("There are only 5 food items present."));
  const QPoint off = notice.geometry().center() - Pie().geometry().center();
  EXPECT_LE(off.manhattanLength(), 2);
  EXPECT_LE(notice.heightForWidth(notice.width()), notice.height());
  EXPECT_EQ(At(picture, PlaceAt(15, 0.9)), panel.palette().color(QPalette::Window));
  EXPECT_EQ(Label("lbl_piename_0").text(), ": -");
  Show(Rows());
  EXPECT_TRUE(notice.isHidden());
}

TEST_F(Top5Pictures, CutANameThatIsTooWideAtItsEndOnly) {
  Show(Rows(Text(134, 'W')));
  PictureOf(panel, kSmallest, 1);
  const QLabel& name = Label("lbl_piename_0");
  EXPECT_EQ(name.text(), ToQt(Text(30, 'W') + "\n[30%, 300 Kcal]"));
  EXPECT_GE(Pie().width(), 120);
  EXPECT_LE(name.geometry().right(), panel.width());
}

TEST_F(Top5Pictures, TellNameValueAndShareInWords) {
  Show(Rows());
  EXPECT_EQ(Pie().accessibleName(), "Pie chart for: (Energy, Kcal)");
  const QStringList lines = Pie().accessibleDescription().split('\n');
  ASSERT_EQ(lines.size(), 6);
  EXPECT_EQ(lines[0], "Bread 1: 300 Kcal, 30%");
  EXPECT_EQ(lines[4], "Bread 5: 50 Kcal, 5%");
  EXPECT_EQ(lines[5], "Overige consumpties: 15%");  // 14.6 left
  EXPECT_EQ(Label("lbl_piename_0").accessibleName(), lines[0]);
  EXPECT_EQ(FindIn<QWidget>(panel, "lbl_piecolor_5")->accessibleName(), lines[5]);
  EXPECT_EQ(Pie().focusPolicy(), Qt::TabFocus);
  SummaryRows few = Rows();
  few.resize(2);
  Show(few);
  EXPECT_TRUE(Pie().accessibleDescription().contains("There are only 2 food items present."));
}

TEST_F(Top5Pictures, KeepThePieWhileTheyAreTooLargeForIt) {
  Show(Rows());
  panel.resize(9000, 300);
  ASSERT_FALSE(test.boxes.shown.empty());
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("#F9-11"));
  panel.resize(kLarge);
  const QImage picture = PictureOf(panel, kLarge, 1);
  EXPECT_EQ(At(picture, PlaceAt(15, 0.6)), AsDrawn(kBlues[0]));
}

}  // namespace
}  // namespace kelvora
