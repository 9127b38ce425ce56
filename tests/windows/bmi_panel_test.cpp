// The BMI panel as a user sees it: the colours of the ladder and the height of the arrow in
// pictures of two sizes and two scales, against places worked out by hand.
#include "analysis/bmi_panel.h"

#include <gtest/gtest.h>

#include <QLabel>

#include "language/built_in_texts.h"
#include "platform/qt/hint_label.h"
#include "support/test_program.h"
#include "windows/chart_pictures.h"
#include "windows/find_in.h"

namespace kelvora {
namespace {

constexpr QSize kSmallest(558, 227);  // in the smallest window
constexpr QSize kLarge(752, 600);

class BmiPictures : public testing::Test {
 protected:
  BmiPictures() : panel(nullptr) {
    test.OpenDay("Anna");
    panel.SetCaptions(test.program.texts);
  }
  void Toon(std::string_view height, std::string_view weight) {
    test.program.store.L_gegevens.Replace(HeaderRow::kHeight, height);
    test.program.store.L_gegevens.Replace(HeaderRow::kWeight, weight);
    Toon_BMI(test.program, chart);
    panel.Show(chart);
  }
  QWidget& Find(const char* name) { return *FindIn<QWidget>(panel, QLatin1String(name)); }
  QLabel& Label(const char* name) { return *FindIn<QLabel>(panel, QLatin1String(name)); }

  TestProgram test;
  BmiChart chart;
  BmiPanel panel;
};

// The middle of step i from the top: the ladder is 0.8 H - 20 pixels high in the middle of the
// panel, a step 0.05 H, and two of them lie 0.05 H - 4/3 pixels apart.
double MiddleOfStep(double panel_height, int i) {
  const double step = 0.05 * panel_height;
  const double top = (panel_height - (0.8 * panel_height - 20)) / 2;
  return top + i * (step - 4.0 / 3) + step / 2;
}

TEST_F(BmiPictures, StackTheColoursOfTheLadder) {
  Toon("1.80", "80");
  for (const QSize size : {kSmallest, kLarge}) {
    for (const double scale : {1.0, 2.0}) {
      const QImage picture = PictureOf(panel, size, scale);
      for (int i = 0; i < 16; ++i) {
        const QRect step = Find(kBmiLadder[static_cast<std::size_t>(i)].name.data()).geometry();
        const QPointF place(step.left() + 4, MiddleOfStep(size.height(), i));
        EXPECT_EQ(At(picture, place), AsDrawn(kBmiLadder[static_cast<std::size_t>(i)].background))
            << i << " at " << scale;
      }
    }
  }
}

// The rows of the picture in which the arrow has ink, as their middle.
double MiddleOfInk(const QImage& picture, const QRect& around, QColor ink) {
  const double scale = picture.devicePixelRatio();
  double sum = 0;
  int rows = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = static_cast<int>(around.left() * scale); x < around.right() * scale; ++x) {
      if (picture.pixelColor(x, y) != ink) continue;
      sum += (y + 0.5) / scale;
      ++rows;
      break;
    }
  }
  return rows == 0 ? -1 : sum / rows;
}

TEST_F(BmiPictures, HaveTheArrowAtTheHeightOfItsStep) {
  struct Case {
    const char* weight;
    int step;
  };
  // At 2 metres the index is a quarter of the weight.
  for (const Case& expected : {Case{"120", 0}, Case{"101", 1}, Case{"98.5", 2}, Case{"86.5", 8},
                               Case{"75", 14}, Case{"60", 15}}) {
    Toon("2.00", expected.weight);
    for (const QSize size : {kSmallest, kLarge}) {
      for (const double scale : {1.0, 2.0}) {
        const QImage picture = PictureOf(panel, size, scale);
        const QRect arrow = Find("pic_pijl").geometry();
        EXPECT_NEAR(MiddleOfInk(picture, arrow, panel.palette().color(QPalette::WindowText)),
                    MiddleOfStep(size.height(), expected.step), 1)
            << expected.weight << " at " << size.height() << " and " << scale;
      }
    }
  }
}

TEST_F(BmiPictures, HaveTheArrowsTipBesideTheLadder) {
  Toon("1.80", "80");
  const QImage picture = PictureOf(panel, kLarge, 2);
  const QRect arrow = Find("pic_pijl").geometry();
  const QColor ink = panel.palette().color(QPalette::WindowText);
  const double middle = MiddleOfStep(kLarge.height(), 2);
  EXPECT_EQ(At(picture, QPointF(arrow.right() - 2, middle)), ink);
  EXPECT_EQ(At(picture, QPointF(arrow.left() + 2, middle)), ink);
  // It narrows to the right: nothing stands above the tip.
  EXPECT_NE(At(picture, QPointF(arrow.right() - 2, middle - 5)), ink);
  EXPECT_EQ(Find("lbl_bmi_top").x() - (arrow.right() + 1), 4);  // 60 twips
  const QRect bar = Find("lbl_pijlbar").geometry();
  EXPECT_EQ(bar.right() + 1, Find("lbl_bmi_top").x());
  EXPECT_EQ(bar.top(), Find("lbl_bmi_top").y());
  EXPECT_EQ(bar.bottom(), Find("lbl_bmi_bottum").geometry().bottom());
}

TEST_F(BmiPictures, HaveNoArrowBeforeTheFirstIndex) {
  panel.Show(chart);
  PictureOf(panel, kLarge, 1);
  EXPECT_TRUE(Find("pic_pijl").isHidden());
  Toon("1.80", "80");
  EXPECT_FALSE(Find("pic_pijl").isHidden());
}

TEST_F(BmiPictures, HaveReadableNumbersOnEveryStep) {
  PictureOf(panel, kSmallest, 1);
  for (int i = 0; i < 14; ++i) {
    const QLabel& step = Label(qPrintable(QStringLiteral("lbl_bmi_%1").arg(i)));
    EXPECT_GE(ContrastOf(step.palette().color(QPalette::WindowText),
                         step.palette().color(QPalette::Window)),
              4.5)
        << i;
    EXPECT_LE(step.fontMetrics().ascent(), step.height()) << i;
    EXPECT_LE(step.fontMetrics().horizontalAdvance(step.text()), step.width()) << i;
  }
}

TEST_F(BmiPictures, CutNothingInEitherLanguage) {
  for (const char* system : {"0", "1"}) {
    test.program.settings[Setting::opt_system] = system;
    for (const bool dutch : {false, true}) {
      if (dutch) Make_Taal_Dutch(test.program.texts);
      panel.SetCaptions(test.program.texts);
      Toon("1.80", "80");
      PictureOf(panel, kSmallest, 1);
      for (const QLabel* const label : panel.findChildren<QLabel*>()) {
        if (label->objectName().startsWith("lbl_bmi_")) continue;
        EXPECT_GE(label->contentsRect().width(),
                  label->fontMetrics().horizontalAdvance(label->text()))
            << label->text().toStdString();
        EXPECT_GE(label->height(), label->fontMetrics().height()) << label->text().toStdString();
      }
    }
  }
}

TEST_F(BmiPictures, TellEveryNumberInWords) {
  Toon("1.80", "80");
  EXPECT_EQ(Label("lbl_gewicht").accessibleName(), "Weight: 80.00 kilogram");
  EXPECT_EQ(Label("lbl_ideaalmax").accessibleName(), "at most: 81 kilogram");
  EXPECT_EQ(Find("pic_pijl").accessibleName(), "BMI");
  EXPECT_EQ(Find("pic_pijl").accessibleDescription(), "24.69 (24,50 - 25,00)");
  EXPECT_TRUE(panel.accessibleDescription().contains("BMI: 24.69"));
  EXPECT_EQ(panel.focusPolicy(), Qt::TabFocus);
}

TEST_F(BmiPictures, HoldAWeightOfThirtyDigits) {
  Toon("1.80", "1" + Text(30, '0'));
  PictureOf(panel, kSmallest, 1);
  EXPECT_LE(Label("lbl_gewicht").parentWidget()->geometry().right(), Find("pic_pijl").x());
}

}  // namespace
}  // namespace kelvora
