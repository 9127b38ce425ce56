#include "days/day_address_panel.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>

#include "language/day_settings_texts.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

using namespace day_settings_text;

constexpr std::array kAddressFields = {
    DayFieldId::pg_1,  DayFieldId::pg_2,  DayFieldId::pg_3,  DayFieldId::pg_4,
    DayFieldId::pg_15, DayFieldId::pg_12, DayFieldId::pg_13,
};

}  // namespace

DayAddressPanel::DayAddressPanel(Program& program, DayForm& form, QWidget* parent)
    : QWidget(parent), program_(program), form_(form) {
  address_ = BuildAddress();
  remarks_ = BuildRemarks();
  auto* const layout = new QHBoxLayout(this);
  layout->setSpacing(16);
  layout->addWidget(address_, 1);
  layout->addWidget(remarks_, 1);
}

QGroupBox* DayAddressPanel::BuildAddress() {
  auto* const group = new QGroupBox(this);
  NameWidget(group, "frame_address");
  auto* const grid = new QGridLayout(group);
  grid->setColumnStretch(1, 1);
  int row = 0;
  for (const DayFieldId id : kAddressFields) {
    auto* const box = new DayFieldBox(program_, form_, id, group);
    QLabel* const caption = NewLabel(group, QStringLiteral("lbl_") + box->objectName());
    caption->setBuddy(box);
    grid->addWidget(caption, row, 0);
    grid->addWidget(box, row++, 1);
    rows_.push_back({caption, box});
  }
  grid->setRowStretch(row, 1);
  return group;
}

QGroupBox* DayAddressPanel::BuildRemarks() {
  auto* const group = new QGroupBox(this);
  NameWidget(group, "frame_remarks");
  pg_14_ = new TextArea(group, QStringLiteral("pg_14"), EntryContextOf(program_),
                        EntryRuleOf(DayFieldId::pg_14));
  pg_14_->setTabChangesFocus(true);
  connect(pg_14_, &TextArea::Edited, this, &DayAddressPanel::TakeRemarks);
  auto* const layout = new QHBoxLayout(group);
  layout->addWidget(pg_14_);
  return group;
}

void DayAddressPanel::Set_Taal() {
  const TextTables& texts = program_.texts;
  address_->setTitle(ToQt(texts[kFrameAddress]));
  remarks_->setTitle(ToQt(texts[kRemarks]));
  pg_14_->setAccessibleName(ToQt(texts[kRemarks]));
  for (const auto& [caption, box] : rows_) {
    caption->setText(ToQt(texts[FieldOfId(box->Id()).caption]));
    box->Set_Taal();
  }
}

void DayAddressPanel::ShowForm() {
  for (const auto& [caption, box] : rows_) box->ShowForm();
  pg_14_->ShowText(form_.pg_14.substr(0, FieldOfId(DayFieldId::pg_14).limit));
}

void DayAddressPanel::TakeForm() {
  for (const auto& [caption, box] : rows_) box->TakeForm();
}

void DayAddressPanel::TakeRemarks() {
  TakeField(program_, form_, DayFieldId::pg_14, pg_14_->Entered());
}

}  // namespace kelvora
