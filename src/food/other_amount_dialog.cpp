#include "food/other_amount_dialog.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "language/food_details_texts.h"
#include "language/own_texts.h"
#include "platform/qt/hint_label.h"
#include "platform/qt/long_label.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

constexpr int kWidth = 340;
constexpr int kSpacing = 8;

}  // namespace

OtherAmountDialog::OtherAmountDialog(Program& program, std::string_view food, std::string_view now,
                                     Change change, QWidget* parent)
    : QDialog(parent), change_(std::move(change)) {
  const TextTables& texts = program.texts;
  NameWidget(this, "other_amount");
  setWindowTitle(ToQt(OwnTextOf(texts, OwnText::other_amount)));
  auto* const name = new LongLabel(this, QStringLiteral("lbl_food"));
  name->setText(ToQtCell(food));
  QLabel* const caption = NewLabel(this, QStringLiteral("lbl_amount"));
  caption->setText(ToQt(OwnTextOf(texts, OwnText::amount)));
  txt_amount_ = new AmountBox(this, EntryContextOf(program));
  txt_amount_->Set_Taal();
  txt_amount_->ShowText(now);
  caption->setBuddy(txt_amount_);
  auto* const hint = new HintLabel(this, QStringLiteral("lbl_amount_hint"));
  hint->setText(ToQt(OwnTextOf(texts, OwnText::amount_tip)));
  const auto button = [this, &texts](const char* object_name, TextId words) {
    auto* const made = new QPushButton(ToQt(texts[words]), this);
    NameWidget(made, object_name);
    return made;
  };
  QPushButton* const cmd_opslaan = button("cmd_opslaan", food_details_text::kSave);
  QPushButton* const cmd_annuleer = button("cmd_annuleer", food_details_text::kCancel);
  cmd_opslaan->setDefault(true);
  connect(cmd_opslaan, &QPushButton::clicked, this, &OtherAmountDialog::accept);
  connect(cmd_annuleer, &QPushButton::clicked, this, &OtherAmountDialog::reject);
  auto* const buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(cmd_opslaan);
  buttons->addWidget(cmd_annuleer);

  auto* const row = new QHBoxLayout;
  row->addWidget(caption);
  row->addWidget(txt_amount_);
  row->addStretch();
  auto* const layout = new QVBoxLayout(this);
  layout->setSpacing(kSpacing);
  layout->addWidget(name);
  layout->addLayout(row);
  layout->addWidget(hint);
  layout->addLayout(buttons);
  resize(kWidth, heightForWidth(kWidth));
  GoToBox(txt_amount_);
}

void OtherAmountDialog::accept() {
  const auto amount = txt_amount_->Read();
  if (!amount) return;
  if (const auto fault = change_(*amount)) return txt_amount_->Refuse(*fault);
  QDialog::accept();
}

}  // namespace kelvora
