#include "food/totals_panel.h"

#include <QGridLayout>

#include "language/consumption_texts.h"
#include "platform/qt/accessibility.h"
#include "platform/qt/long_label.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

namespace ct = consumption_text;

// The captions, each beside the label of the same number, and where the pair stands.
struct CaptionRow {
  const char* name;
  std::size_t text;
  int row, column, columns;
};
constexpr std::array kCaptions = {
    CaptionRow{"txt_1", ct::kEnergy, 0, 0, 2},  // two numbers in one
    CaptionRow{"txt_2", ct::kFatU, 0, 2, 1},    CaptionRow{"txt_3", ct::kFatS, 1, 0, 1},
    CaptionRow{"txt_4", ct::kProtein, 1, 1, 1}, CaptionRow{"txt_5", ct::kCarbohydrates, 1, 2, 1},
    CaptionRow{"txt_6", ct::kSodium, 2, 0, 1},  CaptionRow{"txt_9", ct::kWeight, 2, 1, 1},
};

}  // namespace

TotalsPanel::TotalsPanel(QWidget* parent) : QWidget(parent) {
  NameWidget(this, "Info_bar");
  UseSmallLetters(this);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  auto* const grid = new QGridLayout(this);
  grid->setContentsMargins(6, 1, 6, 1);
  grid->setHorizontalSpacing(6);
  grid->setVerticalSpacing(0);
  for (std::size_t i = 0; i < kCaptions.size(); ++i) {
    const CaptionRow& place = kCaptions[i];
    captions_[i] = new LongLabel(this, QLatin1String(place.name));
    captions_[i]->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    lbl_nfo_[i] = NewLabel(this, QStringLiteral("lbl_nfo_%1").arg(i + 1));
    auto* const pair = new QHBoxLayout;
    pair->setSpacing(3);
    pair->addWidget(captions_[i]);
    pair->addWidget(lbl_nfo_[i], 1);
    grid->addLayout(pair, place.row, place.column, 1, place.columns);
  }
  for (std::size_t i = 0; i < var_.size(); ++i) {
    var_[i] = NewLabel(this, QStringLiteral("var_%1").arg(i));
    var_[i]->hide();
  }
}

void TotalsPanel::SetCaptions(const TextTables& texts, TextTable table) {
  for (std::size_t i = 0; i < kCaptions.size(); ++i) {
    captions_[i]->setText(ToQt(texts[{table, kCaptions[i].text}]));
  }
  for (std::size_t i = 0; i < kCaptions.size(); ++i) NameValue(*lbl_nfo_[i], *captions_[i]);
  setAccessibleName(ToQt(texts[{table, ct::kTipTotals}]));
}

void TotalsPanel::Show(const ConsumptionTotals& totals) {
  for (std::size_t i = 0; i < lbl_nfo_.size(); ++i) {
    lbl_nfo_[i]->setText(ToQt(totals.lbl_nfo[i]));
    NameValue(*lbl_nfo_[i], *captions_[i]);
  }
  for (std::size_t i = 0; i < var_.size(); ++i) var_[i]->setText(ToQt(totals.var[i]));
}

std::array<Text, 8> TotalsPanel::ShownValues() const {
  std::array<Text, 8> values;
  for (std::size_t i = 0; i < var_.size(); ++i) values[i] = FromQt(var_[i]->text());
  return values;
}

}  // namespace kelvora
