// `Pic_Behoefte`: seven nutrients, each with its name, a bar for what is recommended over a bar for
// what was used, and a text behind either. It draws rows that it is given; how long the bars are is
// worked out from the widths that it tells.
#pragma once

#include <array>

#include <QLabel>
#include <QWidget>

#include "analysis/requirements.h"
#include "analysis/summary_size.h"

namespace kelvora {

// `pic_n_0` and its like: one bar of three pieces, a cap at either end and the middle between them,
// which alone is as long as the amount says.
class AmountBar : public QWidget {
  Q_OBJECT

 public:
  enum class Look { requirement, use };
  static constexpr int kCap = 2;  // pixels

  AmountBar(Look look, const QString& object_name, QWidget* parent);

  // The middle, in twips.
  void SetLength(float twips);
  [[nodiscard]] double MiddlePixels() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const Look look_;
  double middle_ = 0;  // pixels, with fractions
};

class RequirementsPanel : public QWidget {
  Q_OBJECT

 public:
  explicit RequirementsPanel(QWidget* parent);

  void Set_Taal(const TextTables& texts, AnalysisWindow window);
  void Show(const RequirementRows& rows);
  void SetStand(Schermstand stand);
  // Stands in the lower right corner, to the right of all bars and texts.
  void SetCorner(QWidget* corner);

  // What the bars have to be worked out for: as the panel is now, with these texts.
  [[nodiscard]] PanelWidths Widths() const;

 signals:
  void Resized();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  struct Line {
    AmountBar* bar;
    QLabel* text;
  };

  // The two lines of a row, requirement and use.
  [[nodiscard]] Line& LineOf(std::size_t row, bool use) { return lines_[2 * row + (use ? 1 : 0)]; }
  void ShowLine(Line& line, float length, const Text& text, const Text& tip);
  // Letters as large as the rows of this height allow.
  void FitLetters();
  void Plaats_Balken();
  void PlaceLine(std::size_t index, int left, const BarPlaces& places);
  [[nodiscard]] int NamesWidth() const;
  [[nodiscard]] int CornerWidth() const;

  std::array<QLabel*, kRequirementRows> names_;
  std::array<Line, 2 * kRequirementRows> lines_;
  QWidget* corner_ = nullptr;
  Schermstand stand_ = Schermstand::normal;
};

}  // namespace kelvora
