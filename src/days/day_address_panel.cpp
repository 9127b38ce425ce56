#include "days/day_address_panel.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QTextCursor>

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

// What the box holds, blanks of every kind as they are and each line break as "\n".
QString TextIn(const QPlainTextEdit& box) {
  return box.document()
      ->toRawText()
      .replace(QChar::ParagraphSeparator, QLatin1Char('\n'))
      .replace(QChar::LineSeparator, QLatin1Char('\n'));
}

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
  pg_14_ = new QPlainTextEdit(group);
  NameWidget(pg_14_, "pg_14");
  pg_14_->setTabChangesFocus(true);
  connect(pg_14_, &QPlainTextEdit::textChanged, this, &DayAddressPanel::TakeRemarks);
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
  const QSignalBlocker quiet(pg_14_);
  pg_14_->setPlainText(ToQt(form_.pg_14.substr(0, FieldOfId(DayFieldId::pg_14).limit)));
}

void DayAddressPanel::TakeForm() {
  for (const auto& [caption, box] : rows_) box->TakeForm();
}

void DayAddressPanel::TakeRemarks() {
  HoldRemarks();
  TakeField(program_, form_, DayFieldId::pg_14, FromQt(TextIn(*pg_14_)));
}

void DayAddressPanel::HoldRemarks() {
  const QString text = TextIn(*pg_14_);
  const int place = pg_14_->textCursor().position();
  const HeldText held =
      HoldToField(FieldOfId(DayFieldId::pg_14), FromQt(text.left(place)), FromQt(text.mid(place)),
                  program_.platform.locale.DecimalSeparator());
  if (ToQt(held.text) == text) return;
  const QSignalBlocker quiet(pg_14_);
  pg_14_->setPlainText(ToQt(held.text));
  QTextCursor cursor = pg_14_->textCursor();
  cursor.setPosition(static_cast<int>(held.cursor));
  pg_14_->setTextCursor(cursor);
}

}  // namespace kelvora
