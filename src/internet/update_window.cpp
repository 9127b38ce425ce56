#include "internet/update_window.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QVBoxLayout>

#include "language/main_texts.h"
#include "language/update_texts.h"
#include "platform/qt/long_label.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

using namespace update_text;

constexpr int kStatusWidth = 330;
constexpr int kMargin = 14;
constexpr int kColumnSpacing = 14;

}  // namespace

UpdateWindow::UpdateWindow(Program& program, UpdateMode mode, QWidget* parent)
    : QWidget(parent),
      program_(program),
      open_flag_(program.windows, program.windows.update, this),
      check_(program, *this, mode),
      Timeout_timer_(this) {
  NameWidget(this, "KV_tb_internet_update");
  Timeout_timer_.setObjectName(QStringLiteral("Timeout_timer"));
  Timeout_timer_.setSingleShot(true);
  connect(&Timeout_timer_, &QTimer::timeout, this, [this] { check_.TakeTimeout(); });
  lbl_1_ = NewLabel(this, QStringLiteral("lbl_1"));
  lbl_versie_ = NewLabel(this, QStringLiteral("lbl_versie"));
  lbl_2_ = NewLabel(this, QStringLiteral("lbl_2"));
  lbl_status_ = new LongLabel(this, QStringLiteral("lbl_status"));
  lbl_status_->setMinimumWidth(kStatusWidth);
  ProgressBar_ = new QProgressBar(this);
  NameWidget(ProgressBar_, "ProgressBar");
  ProgressBar_->setTextVisible(false);
  ProgressBar_->setRange(0, UpdateCheck::kSteps);
  StatusBar_ = new QStatusBar(this);
  NameWidget(StatusBar_, "StatusBar");
  StatusBar_->setSizeGripEnabled(false);
  panel_ = NewLabel(StatusBar_, QStringLiteral("StatusBar_1"));
  StatusBar_->addWidget(panel_, 1);
  LayOut();
  Set_Taal();
  QMetaObject::invokeMethod(
      this, [this] { check_.Connect(); }, Qt::QueuedConnection);
}

void UpdateWindow::LayOut() {
  auto* const lines = new QGridLayout;
  lines->setHorizontalSpacing(kColumnSpacing);
  lines->addWidget(lbl_1_, 0, 0);
  lines->addWidget(lbl_versie_, 0, 1);
  lines->addWidget(lbl_2_, 1, 0);
  lines->addWidget(lbl_status_, 1, 1);
  lines->setColumnStretch(1, 1);
  auto* const body = new QVBoxLayout;
  body->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  body->setSpacing(kMargin);
  body->addLayout(lines);
  body->addWidget(ProgressBar_);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addLayout(body);
  layout->addStretch();
  layout->addWidget(StatusBar_);
}

void UpdateWindow::Set_Taal() {
  const TextTables& texts = program_.texts;
  setWindowTitle(ToQt(texts[kTitle]));
  lbl_1_->setText(ToQt(texts[kVersion]));
  lbl_2_->setText(ToQt(texts[kStatus]));
  lbl_versie_->setToolTip(ToQt(texts[kTipVersion]));
  lbl_status_->setToolTip(ToQt(texts[kTipStatus]));
  ProgressBar_->setAccessibleName(ToQt(texts[kProgress]));
  StatusBar_->setAccessibleName(ToQt(texts[main_text::kStatusBarName]));
  ShowState();
}

void UpdateWindow::ShowState() {
  lbl_versie_->setText(ToQt(check_.lbl_versie()));
  lbl_status_->setText(ToQt(check_.lbl_status()));
  panel_->setText(ToQt(check_.StatusBarText()));
  ProgressBar_->setValue(check_.Step());
}

void UpdateWindow::ShowWindow() {
  check_.Show();
  QWidget* const frame = parentWidget();
  if (frame == nullptr) return;
  frame->show();
  frame->raise();
  frame->setFocus();
}

void UpdateWindow::StartTimer(int milliseconds) {
  Timeout_timer_.start(milliseconds);
}

void UpdateWindow::CloseAfter(int milliseconds) {
  QTimer::singleShot(milliseconds, this, &UpdateWindow::CloseWindow);
}

// With its frame, where it has one.
void UpdateWindow::CloseWindow() {
  QWidget* const frame = parentWidget();
  (frame != nullptr ? frame : this)->close();
}

void UpdateWindow::closeEvent(QCloseEvent* event) {
  open_flag_.Clear();
  Timeout_timer_.stop();
  check_.Stop();
  QWidget::closeEvent(event);
}

}  // namespace kelvora
