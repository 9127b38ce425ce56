#include "food/combine_panel.h"

#include <QHBoxLayout>
#include <QKeyEvent>

#include "language/consumption_texts.h"
#include "platform/qt/long_label.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

namespace ct = consumption_text;

constexpr int kUnitWidth = 84;
constexpr int kButtonMargin = 24;

}  // namespace

CombinePanel::CombinePanel(const EntryContext& entry, QWidget* parent) : QWidget(parent) {
  NameWidget(this, "Pic_SP");
  UseSmallLetters(this);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  txt_8_ = new LongLabel(this, QStringLiteral("txt_8"));
  txt_nfo_8_ = new TextBox(this, QStringLiteral("txt_nfo_8"), entry);
  txt_7_ = new LongLabel(this, QStringLiteral("txt_7"));
  txt_nfo_7_ = new TextBox(this, QStringLiteral("txt_nfo_7"), entry);
  txt_nfo_7_->setFixedWidth(kUnitWidth);
  cmd_opslaan_ = new QPushButton(this);
  NameWidget(cmd_opslaan_, "cmd_opslaan");
  for (QLabel* const caption : {txt_8_, txt_7_}) {
    caption->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
  }
  txt_8_->setBuddy(txt_nfo_8_);
  txt_7_->setBuddy(txt_nfo_7_);

  auto* const layout = new QHBoxLayout(this);
  layout->setContentsMargins(8, 1, 8, 1);
  layout->setSpacing(5);
  layout->addWidget(txt_8_);
  layout->addWidget(txt_nfo_8_, 1);
  layout->addWidget(txt_7_);
  layout->addWidget(txt_nfo_7_);
  layout->addWidget(cmd_opslaan_);
  setFocusProxy(txt_nfo_8_);

  connect(cmd_opslaan_, &QPushButton::clicked, this, &CombinePanel::SavePressed);
  for (const TextBox* box : {txt_nfo_8_, txt_nfo_7_}) {
    connect(box, &QLineEdit::returnPressed, this, &CombinePanel::SavePressed);
  }
}

void CombinePanel::SetCaptions(const TextTables& texts, TextTable table) {
  const auto text = [&](std::size_t index) { return ToQt(texts[{table, index}]); };
  txt_8_->setText(text(ct::kCombineName));
  txt_7_->setText(text(ct::kCombineUnit));
  cmd_opslaan_->setText(text(ct::kCombineSave));
  cmd_opslaan_->setFixedWidth(fontMetrics().horizontalAdvance(cmd_opslaan_->text()) +
                              kButtonMargin);
  txt_nfo_8_->setAccessibleName(text(ct::kCombineName));
  txt_nfo_7_->setAccessibleName(text(ct::kCombineUnit));
  setAccessibleName(text(ct::kTipCombine));
}

Text CombinePanel::Name() const {
  return txt_nfo_8_->Entered();
}

Text CombinePanel::Unit() const {
  return txt_nfo_7_->Entered();
}

void CombinePanel::Clear() {
  txt_nfo_8_->clear();
  txt_nfo_7_->clear();
}

void CombinePanel::GoTo(CombineBox box) {
  GoToBox(box == CombineBox::name ? txt_nfo_8_ : txt_nfo_7_);
}

void CombinePanel::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Escape:
      return emit CloseAsked();
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (cmd_opslaan_->hasFocus()) emit SavePressed();
      return;
    default:
      QWidget::keyPressEvent(event);
  }
}

}  // namespace kelvora
