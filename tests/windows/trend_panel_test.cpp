// The trend chart as a user sees it: grid, lines and colours in pictures of two sizes and two
// scales, what its days say to pointer and keyboard, and its tick boxes. Places by hand: the first
// column and row of pixels are 0 percent of the width and height, the last 100 percent.
#include "analysis/trend_panel.h"

#include <gtest/gtest.h>

#include <QHelpEvent>
#include <QTest>
#include <QToolTip>

#include "analysis/day_series_of.h"
#include "language/built_in_texts.h"
#include "platform/qt/hint_label.h"
#include "support/test_program.h"
#include "windows/chart_pictures.h"
#include "windows/find_in.h"

namespace kelvora {
namespace {

constexpr QSize kSmallest(604, 280);  // in the smallest window
constexpr QSize kLarge(748, 640);
constexpr Colour kRed{215, 31, 1};       // of line 4, saturated fat
constexpr Colour kBlack{0, 0, 0};        // of line 0, the weight of the food
constexpr Colour kYellow{237, 239, 39};  // of line 5, carbohydrates

int Distance(QColor one, QColor other) {
  return std::abs(one.red() - other.red()) + std::abs(one.green() - other.green()) +
         std::abs(one.blue() - other.blue());
}

class TrendPictures : public testing::Test {
 protected:
  TrendPictures() : panel(test.program, nullptr) {
    panel.SetWords(test.program.texts);
    days = DaysOfDates({"040301", "040302", "040310"});
    const char* const values[] = {"1000", "8400", "2000", "10", "20", "250", "60", "2", "80"};
    for (std::size_t i = 0; i < kSeriesCount; ++i) {
      days.L_data_1[i].assign(3, values[i]);
      days.L_data_2[i] = {0, 0, 0};
    }
    UntickAll();
  }
  ~TrendPictures() override { QToolTip::hideText(); }

  void UntickAll() {
    for (const int i : {0, 1, 2}) Tick(i);
    QTest::mouseClick(&Find("Teken_dag"), Qt::LeftButton, {}, {5, Find("Teken_dag").height() / 2});
  }
  void Tick(int line) {
    QWidget& box = Find(qPrintable(QStringLiteral("Teken_lijn_%1").arg(line)));
    QTest::mouseClick(&box, Qt::LeftButton, {}, {5, box.height() / 2});
  }
  QWidget& Find(const char* name) { return *FindIn<QWidget>(panel, QLatin1String(name)); }
  QWidget& Chart() { return Find("Pic_Grafiek"); }

  // The pixel at these shares of the chart's width and height.
  QPointF Place(double across, double down) {
    const QRect chart = Chart().geometry();
    return {chart.left() + across * (chart.width() - 1), chart.top() + down * (chart.height() - 1)};
  }
  // True if a pixel at the place or beside it has at least four tenths of the colour.
  bool HasInk(const QImage& picture, QPointF place, const Colour& colour) {
    const QColor ground = AsDrawn(kChartGround);
    const int most = Distance(ground, AsDrawn(colour)) * 6 / 10;
    const QPoint middle = (place * picture.devicePixelRatio()).toPoint();
    for (int dy = -1; dy <= 1; ++dy) {
      for (int dx = -1; dx <= 1; ++dx) {
        const QPoint pixel = middle + QPoint(dx, dy);
        if (!picture.rect().contains(pixel)) continue;
        if (Distance(picture.pixelColor(pixel), AsDrawn(colour)) <= most) return true;
      }
    }
    return false;
  }
  template <class Probe>
  void AtEverySizeAndScale(Probe probe) {
    for (const QSize size : {kSmallest, kLarge}) {
      for (const double scale : {1.0, 2.0}) {
        SCOPED_TRACE(testing::Message() << size.height() << " at " << scale);
        probe(PictureOf(panel, size, scale));
      }
    }
  }

  TestProgram test;
  DaySeries days;
  TrendPanel panel;
};

TEST_F(TrendPictures, HaveTheGridOnTheirGround) {
  panel.Show(days, kPerFile);
  AtEverySizeAndScale([&](const QImage& picture) {
    for (int i = 1; i <= 10; ++i) {
      // Rounded to a row of pixels, whose middle is half a pixel away at the most.
      EXPECT_TRUE(HasInk(picture, Place(0.3, i / 10.0), kChartGrey)) << i;
      EXPECT_EQ(At(picture, Place(0.3, i / 10.0 - 0.05)), AsDrawn(kChartGround)) << i;
    }
    EXPECT_EQ(At(picture, Place(0.3, 1)), AsDrawn(kChartGrey));  // the last row
  });
}

// Red falls from the top left to the bottom right corner, black lies in the middle and rises to the
// top, yellow lies on the bottom edge.
TEST_F(TrendPictures, HaveThreeLinesInTheirPlacesAndColours) {
  days.L_data_2[4] = {0, 50, 100};
  days.L_data_2[0] = {50, 50, 0};
  days.L_data_2[5] = {100, 100, 100};
  for (const int line : {0, 4, 5}) Tick(line);
  panel.Show(days, kPerFile);
  AtEverySizeAndScale([&](const QImage& picture) {
    EXPECT_TRUE(HasInk(picture, Place(0.25, 0.25), kRed));
    EXPECT_TRUE(HasInk(picture, Place(0.75, 0.75), kRed));
    EXPECT_TRUE(HasInk(picture, Place(0.1, 0.5), kBlack));
    EXPECT_TRUE(HasInk(picture, Place(0.75, 0.25), kBlack));
    EXPECT_FALSE(HasInk(picture, Place(0.75, 0.45), kBlack));
    EXPECT_EQ(At(picture, Place(0.4, 1)), AsDrawn(kYellow));
  });
}

TEST_F(TrendPictures, HaveTheTrueDistanceOfTheDatesPerDate) {
  days.L_data_2[4] = {0, 90, 90};  // the second day one ninth of the way
  Tick(4);
  panel.Show(days, kPerDate);
  AtEverySizeAndScale([&](const QImage& picture) {
    EXPECT_TRUE(HasInk(picture, Place(1.0 / 18, 0.45), kRed));
    EXPECT_TRUE(HasInk(picture, Place(0.5, 0.9), kRed));
    EXPECT_FALSE(HasInk(picture, Place(0.25, 0.45), kRed));
  });
}

TEST_F(TrendPictures, HaveCrispLinesOfOnePixel) {
  days.L_data_2[4] = {0, 0, 0};
  Tick(4);
  panel.Show(days, kPerFile);
  for (const double scale : {1.0, 2.0}) {
    const QImage picture = PictureOf(panel, kSmallest, scale);
    const QPoint top = (QPointF(Chart().geometry().topLeft() + QPoint(50, 0)) * scale).toPoint();
    const int thickness = static_cast<int>(scale);
    for (int row = 0; row < thickness; ++row) {
      EXPECT_EQ(picture.pixelColor(top + QPoint(0, row)), AsDrawn(kRed)) << row << " at " << scale;
    }
    EXPECT_EQ(picture.pixelColor(top + QPoint(0, thickness)), AsDrawn(kChartGround)) << scale;
  }
}

TEST_F(TrendPictures, HaveDayLinesInChartAndStripBehindTheLines) {
  days.L_data_2[4] = {30, 30, 30};
  Tick(4);
  panel.Show(days, kPerFile);
  AtEverySizeAndScale([&](const QImage& picture) {
    EXPECT_EQ(At(picture, Place(1, 0.55)), AsDrawn(kChartGround));
  });
  QTest::mouseClick(&Find("Teken_dag"), Qt::LeftButton, {}, {5, Find("Teken_dag").height() / 2});
  AtEverySizeAndScale([&](const QImage& picture) {
    EXPECT_EQ(At(picture, Place(1, 0.55)), AsDrawn(kChartGrey));
    EXPECT_TRUE(HasInk(picture, Place(0.5, 0.55), kChartGrey));
    EXPECT_TRUE(HasInk(picture, Place(0.5, 0.3), kRed));
    const QRect strip = Find("Pic_Grafiek_top").geometry();
    EXPECT_EQ(At(picture, QPointF(strip.right(), strip.top() + 2)), AsDrawn(kChartGrey));
    EXPECT_EQ(At(picture, QPointF(strip.left() + 20, strip.top() + 2)), AsDrawn(kChartGround));
  });
}

TEST_F(TrendPictures, FollowEachTick) {
  days.L_data_2[4] = {50, 50, 50};
  panel.Show(days, kPerFile);
  const auto has_line = [&] { return HasInk(PictureOf(panel, kLarge, 1), Place(0.25, 0.5), kRed); };
  EXPECT_FALSE(has_line());
  Tick(4);
  EXPECT_TRUE(has_line());
  Tick(4);
  EXPECT_FALSE(has_line());
}

TEST_F(TrendPictures, DrawLaterLinesOverEarlierOnes) {
  days.L_data_2[4] = days.L_data_2[5] = {50, 50, 50};
  for (const int line : {5, 4}) Tick(line);
  panel.Show(days, kPerFile);
  const QImage picture = PictureOf(panel, kLarge, 2);
  EXPECT_TRUE(HasInk(picture, Place(0.25, 0.5), kYellow));
  EXPECT_FALSE(HasInk(picture, Place(0.25, 0.5), kRed));
}

TEST_F(TrendPictures, HoldValuesFarOutsideTheChart) {
  days.L_data_2[4] = {0, 1e30, -1e30};
  Tick(4);
  panel.Show(days, kPerDate);
  EXPECT_TRUE(HasInk(PictureOf(panel, kLarge, 1), Place(0, 0.5), kRed));
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(TrendPictures, PrintPercentagesBesideTheGridAndDatesBelow) {
  panel.Show(days, kPerFile);
  AtEverySizeAndScale([&](const QImage& picture) {
    const auto has_letters = [&](QRect place) {
      for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x) {
          if (Distance(At(picture, QPointF(x, y)), panel.palette().color(QPalette::Window)) > 200) {
            return true;
          }
        }
      }
      return false;
    };
    const QRect scale = Find("Pic_txt").geometry();
    for (int i = 1; i <= 9; ++i) {
      const int middle = static_cast<int>(Place(0, i / 10.0).y());
      EXPECT_TRUE(has_letters({scale.left(), middle - 4, scale.width(), 8})) << i;
    }
    const QRect dates = Find("Pic_dates").geometry();
    EXPECT_TRUE(has_letters({dates.left(), dates.top(), 50, dates.height()}));
    EXPECT_TRUE(has_letters({dates.right() - 50, dates.top(), 51, dates.height()}));
    EXPECT_TRUE(has_letters({dates.center().x() - 25, dates.top(), 50, dates.height()}));
    EXPECT_FALSE(has_letters({dates.left() + dates.width() / 4 - 20, dates.top(), 40, 12}));
  });
  EXPECT_EQ(Find("Pic_dates").accessibleName(), "01-03-04 - 10-03-04");
}

TEST_F(TrendPictures, TellTheNearestDayUnderThePointer) {
  Tick(0);
  Tick(4);
  days.L_data_1[0] = {"1000", "1100", "1200"};
  panel.Show(days, kPerFile);
  PictureOf(panel, kLarge, 1);
  const auto hover = [&](double across) {
    const QPoint place(static_cast<int>(across * Chart().width()), 20);
    QHelpEvent help(QEvent::ToolTip, place, Chart().mapToGlobal(place));
    QCoreApplication::sendEvent(&Chart(), &help);
  };
  hover(0.6);
  const QString second = "02-03-04\nFood weight: 1100 gram\nFat, saturated: 20.00 gram";
  EXPECT_EQ(Chart().accessibleDescription(), second);
  EXPECT_TRUE(QToolTip::text().contains(second)) << QToolTip::text().toStdString();
  hover(0.8);
  EXPECT_TRUE(Chart().accessibleDescription().startsWith("10-03-04\nFood weight: 1200 gram"));
  QEvent leave(QEvent::Leave);
  QCoreApplication::sendEvent(&Chart(), &leave);
  EXPECT_EQ(Chart().accessibleDescription(), "01-03-04 - 10-03-04");
}

TEST_F(TrendPictures, MarkTheDayThatTheyTellOf) {
  panel.Show(days, kPerFile);
  PictureOf(panel, kLarge, 1);
  QTest::keyClick(&Chart(), Qt::Key_Right);
  QTest::keyClick(&Chart(), Qt::Key_Right);
  EXPECT_TRUE(HasInk(PictureOf(panel, kLarge, 1), Place(0.5, 0.33), kBlack));
  QTest::keyClick(&Chart(), Qt::Key_Escape);
  EXPECT_FALSE(HasInk(PictureOf(panel, kLarge, 1), Place(0.5, 0.33), kBlack));
}

TEST_F(TrendPictures, LetTheKeyboardWalkTheDays) {
  days = DaysOfDates(ConsecutiveKeys(31));
  for (auto& heights : days.L_data_2) heights.assign(31, 50);
  panel.Show(days, kPerDate);
  PictureOf(panel, kLarge, 1);
  EXPECT_EQ(Chart().focusPolicy(), Qt::StrongFocus);
  const auto press = [&](Qt::Key key) {
    QTest::keyClick(&Chart(), key);
    return Chart().accessibleDescription().left(8);
  };
  EXPECT_EQ(press(Qt::Key_Right), "01-01-00");
  EXPECT_EQ(press(Qt::Key_Right), "02-01-00");
  EXPECT_EQ(press(Qt::Key_End), "31-01-00");
  EXPECT_EQ(press(Qt::Key_Right), "31-01-00");
  EXPECT_EQ(press(Qt::Key_Left), "30-01-00");
  EXPECT_EQ(press(Qt::Key_PageUp), "27-01-00");  // a tenth of thirty steps
  EXPECT_EQ(press(Qt::Key_PageDown), "30-01-00");
  EXPECT_EQ(press(Qt::Key_Home), "01-01-00");
  EXPECT_EQ(press(Qt::Key_Left), "01-01-00");
  EXPECT_TRUE(QToolTip::text().contains("01-01-00"));
  EXPECT_EQ(press(Qt::Key_Escape), "01-01-00");
  EXPECT_EQ(Chart().accessibleDescription(), "01-01-00 - 31-01-00");
  EXPECT_EQ(press(Qt::Key_Left), "31-01-00");
}

TEST_F(TrendPictures, TellNothingWhereThereAreNoDays) {
  panel.Show(DaysOfDates({"040301", "040301"}), kPerFile);
  PictureOf(panel, kLarge, 1);
  QTest::keyClick(&Chart(), Qt::Key_Right);
  EXPECT_EQ(Chart().accessibleDescription(), "01-03-04 - 01-03-04");
  panel.Show({}, kPerFile);
  QTest::keyClick(&Chart(), Qt::Key_Home);
  EXPECT_EQ(Chart().accessibleDescription(), "");
}

TEST_F(TrendPictures, ForgetTheDayWithTheDays) {
  panel.Show(days, kPerFile);
  PictureOf(panel, kLarge, 1);
  QTest::keyClick(&Chart(), Qt::Key_End);
  panel.Show(DaysOfDates({"050101", "050102"}), kPerFile);
  EXPECT_EQ(Chart().accessibleDescription(), "01-01-05 - 02-01-05");
}

TEST_F(TrendPictures, CutNoWordsInEitherLanguage) {
  for (const bool dutch : {false, true}) {
    if (dutch) Make_Taal_Dutch(test.program.texts);
    panel.SetWords(test.program.texts);
    PictureOf(panel, kSmallest, 1);
    EXPECT_EQ(panel.size(), kSmallest);  // it needs no more
    for (const QCheckBox* const box : panel.findChildren<QCheckBox*>()) {
      EXPECT_GE(box->width(), box->sizeHint().width()) << box->text().toStdString();
      EXPECT_FALSE(box->toolTip().isEmpty());
      const QRect place(box->mapTo(&panel, QPoint()), box->size());
      EXPECT_TRUE(panel.rect().contains(place)) << box->text().toStdString();
    }
    for (const QGroupBox* const frame : panel.findChildren<QGroupBox*>()) {
      EXPECT_GE(frame->width(), frame->minimumSizeHint().width()) << frame->title().toStdString();
    }
  }
  EXPECT_EQ(FindIn<QCheckBox>(panel, "Teken_lijn_0")->text(), "Gewicht van je voeding");
  EXPECT_EQ(Chart().accessibleName(), "Trendlijnen van alle dagen");
}

TEST_F(TrendPictures, HaveABarOfEachColourThatShowsOnLightAndDark) {
  for (const QColor window : {QColor(239, 239, 239), QColor(40, 40, 40)}) {
    QPalette palette;
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, window.lightness() > 128 ? Qt::black : Qt::white);
    panel.setPalette(palette);
    PictureOf(panel, kSmallest, 1);
    for (std::size_t i = 0; i < kTrendLines.size(); ++i) {
      QWidget& bar = Find(qPrintable(QStringLiteral("Bar_kleur_%1").arg(i)));
      const QImage picture = PictureOf(bar, bar.size(), 1);
      EXPECT_EQ(picture.pixelColor(bar.rect().center()), AsDrawn(kTrendLines[i].colour)) << i;
      EXPECT_GE(ContrastOf(picture.pixelColor(0, 0), window), 4.5) << i;
    }
  }
}

TEST_F(TrendPictures, TickTheFirstThreeLinesAndTheDayLinesAtTheStart) {
  TrendPanel fresh(test.program, nullptr);
  for (int i = 0; i < 8; ++i) {
    const auto* const box = FindIn<QCheckBox>(fresh, QStringLiteral("Teken_lijn_%1").arg(i));
    EXPECT_EQ(box->isChecked(), i < 3) << i;
  }
  EXPECT_TRUE(FindIn<QCheckBox>(fresh, "Teken_dag")->isChecked());
}

TEST_F(TrendPictures, HoldTwentyYearsOfDays) {
  days = DaysOfDates(ConsecutiveKeys(7300));
  for (auto& heights : days.L_data_2) {
    for (int i = 0; i < 7300; ++i) heights.push_back(i % 2 == 0 ? 20 : 80);
  }
  Tick(4);
  panel.Show(days, kPerDate);
  const QImage picture = PictureOf(panel, kLarge, 1);
  EXPECT_TRUE(HasInk(picture, Place(0.37, 0.5), kRed));
  EXPECT_FALSE(HasInk(picture, Place(0.37, 0.15), kRed));
  EXPECT_EQ(Chart().accessibleDescription(), "01-01-00 - 26-12-19");  // 7,304 days to 2019-12-31
}

}  // namespace
}  // namespace kelvora
