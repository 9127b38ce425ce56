#include "output/export_dialog.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "language/day_settings_texts.h"
#include "language/export_form_texts.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

using namespace export_form_text;

constexpr int kInitialWidth = 680;
constexpr int kInitialHeight = 500;
constexpr int kSpacing = 12;

constexpr std::array kFormatTexts = {kFormatHtml, kFormatDta, kFormatXml};  // as ReportFormat
constexpr std::array kShownOrder = {std::size_t{0}, std::size_t{2}, std::size_t{1}};
constexpr std::array kSelectionTexts = {day_settings_text::kExportAllDays,
                                        day_settings_text::kExportOwnSelection};
constexpr std::array kFrameTexts = {kFrameSelection, kFrameDays, kFrameOptions, kFrameFormat};
// Places in them, where Frame_1 is the first.
enum : std::size_t { kSelectionFrame, kDaysFrame, kOptionsFrame, kFormatFrame };

// Of options Tab reaches the chosen one and no other. The toolkit sees to that only once one of
// them has the focus; before, Tab may lead to one from which the arrows choose nothing.
void LetTabReachChosen(QRadioButton* option, bool chosen) {
  const Qt::FocusPolicy policy = option->focusPolicy();
  option->setFocusPolicy(
      static_cast<Qt::FocusPolicy>(chosen ? policy | Qt::TabFocus : policy & ~Qt::TabFocus));
}

QRadioButton* NewOption(QGroupBox* frame, const QString& name) {
  auto* const option = new QRadioButton(frame);
  option->setObjectName(name);
  LetTabReachChosen(option, false);
  QObject::connect(option, &QRadioButton::toggled, option,
                   [option](bool chosen) { LetTabReachChosen(option, chosen); });
  frame->layout()->addWidget(option);
  return option;
}

void SetCaption(QAbstractButton* button, const TextTables& texts, TextId text) {
  button->setText(CaptionFrom(texts[text]));
  button->setAccessibleName(ToQt(texts[text]));
}

}  // namespace

ExportDaysDialog::ExportDaysDialog(Program& program, QWidget* parent)
    : QDialog(parent),
      program_(program),
      open_flag_(program.windows, program.windows.export_html, this),
      shown_by_(ShownNow()) {
  NameWidget(this, "KV_export_html");
  lbl_info_ = NewLabel(this, "lbl_info");
  lbl_info_->setWordWrap(true);
  for (std::size_t i = 0; i < frames_.size(); ++i) {
    frames_[i] = new QGroupBox(this);
    frames_[i]->setObjectName(QStringLiteral("Frame_%1").arg(i + 1));
    new QVBoxLayout(frames_[i]);
  }
  auto* const choices = new QVBoxLayout;
  choices->setSpacing(kSpacing);
  choices->addWidget(BuildFormats());
  choices->addWidget(BuildSelection());
  choices->addWidget(BuildOptions());
  choices->addStretch();
  auto* const middle = new QHBoxLayout;
  middle->setSpacing(kSpacing);
  middle->addLayout(choices);
  middle->addWidget(BuildDays(), 1);

  cmd_export_ = new QPushButton(this);
  NameWidget(cmd_export_, "cmd_export");
  cmd_export_->setDefault(true);
  cmd_annuleer_ = new QPushButton(this);
  NameWidget(cmd_annuleer_, "cmd_annuleer");
  cmd_annuleer_->setAutoDefault(false);
  auto* const buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(cmd_export_);
  buttons->addWidget(cmd_annuleer_);

  auto* const layout = new QVBoxLayout(this);
  layout->setSpacing(kSpacing);
  layout->addWidget(lbl_info_);
  layout->addLayout(middle, 1);
  layout->addLayout(buttons);
  resize(kInitialWidth, kInitialHeight);

  connect(cmd_export_, &QPushButton::clicked, this, &ExportDaysDialog::Export);
  connect(cmd_annuleer_, &QPushButton::clicked, this, &ExportDaysDialog::CloseWindow);
  SetCaptions();
  chk_close_->setChecked(ClosesAfterExport(program_));
}

QGroupBox* ExportDaysDialog::BuildFormats() {
  QGroupBox* const frame = frames_[kFormatFrame];
  for (const std::size_t format : kShownOrder) {
    opt_soort_[format] = NewOption(frame, QStringLiteral("opt_soort_%1").arg(format));
    connect(opt_soort_[format], &QRadioButton::clicked, this,
            [this] { LV_user_files_->setFocus(); });
  }
  opt_soort_.front()->setChecked(true);
  return frame;
}

QGroupBox* ExportDaysDialog::BuildSelection() {
  QGroupBox* const frame = frames_[kSelectionFrame];
  for (std::size_t i = 0; i < opt_seletie_.size(); ++i) {
    opt_seletie_[i] = NewOption(frame, QStringLiteral("opt_seletie_%1").arg(i));
    connect(opt_seletie_[i], &QRadioButton::clicked, this, [this, i] { SelectDays(i == 0); });
  }
  opt_seletie_.back()->setChecked(true);
  return frame;
}

QGroupBox* ExportDaysDialog::BuildOptions() {
  QGroupBox* const frame = frames_[kOptionsFrame];
  const auto add = [frame](const char* name) {
    auto* const box = new QCheckBox(frame);
    NameWidget(box, name);
    box->setChecked(true);
    frame->layout()->addWidget(box);
    return box;
  };
  chk_grafieken_ = add("chk_grafieken");
  chk_notities_ = add("chk_notities");
  chk_close_ = add("chk_close");
  for (QCheckBox* const box : {chk_grafieken_, chk_notities_}) {
    connect(box, &QCheckBox::clicked, this, [this] { LV_user_files_->setFocus(); });
  }
  connect(chk_close_, &QCheckBox::clicked, this,
          [this](bool on) { SetClosesAfterExport(program_, on); });
  return frame;
}

QGroupBox* ExportDaysDialog::BuildDays() {
  QGroupBox* const frame = frames_[kDaysFrame];
  LV_user_files_ = new ExportTable(program_, frame);
  frame->layout()->addWidget(LV_user_files_);
  // The rows stay selected until the click itself changes them.
  connect(LV_user_files_, &ExportTable::OwnSelectionMade, this,
          [this] { opt_seletie_.back()->setChecked(true); });
  return frame;
}

void ExportDaysDialog::Open() {
  show();
  Refresh_Export_List();
}

void ExportDaysDialog::CloseWindow() {
  done(QDialog::Rejected);
}

void ExportDaysDialog::done(int result) {
  open_flag_.Clear();
  ++readings_;
  QDialog::done(result);
}

void ExportDaysDialog::Set_Taal() {
  SetCaptions();
  Refresh_Export_List();
}

void ExportDaysDialog::FollowSettings() {
  chk_close_->setChecked(ClosesAfterExport(program_));
  if (ShownNow() != shown_by_) Refresh_Export_List();
}

ExportDaysDialog::ShownBy ExportDaysDialog::ShownNow() const {
  return {program_.settings[Setting::opt_system], program_.paths.FilesPath};
}

void ExportDaysDialog::SetCaptions() {
  const TextTables& texts = program_.texts;
  setWindowTitle(ToQt(texts[kTitle]));
  lbl_info_->setText(ToQt(texts[kInfo]));
  for (std::size_t i = 0; i < frames_.size(); ++i) {
    frames_[i]->setTitle(CaptionFrom(texts[kFrameTexts[i]]));
    frames_[i]->setAccessibleName(ToQt(texts[kFrameTexts[i]]));
  }
  for (std::size_t i = 0; i < opt_soort_.size(); ++i) {
    SetCaption(opt_soort_[i], texts, kFormatTexts[i]);
  }
  for (std::size_t i = 0; i < opt_seletie_.size(); ++i) {
    SetCaption(opt_seletie_[i], texts, kSelectionTexts[i]);
  }
  SetCaption(chk_grafieken_, texts, kGraphs);
  SetCaption(chk_notities_, texts, kDiary);
  SetCaption(chk_close_, texts, day_settings_text::kExportClose);
  SetCaption(cmd_export_, texts, kExport);
  SetCaption(cmd_annuleer_, texts, kCancel);
  LV_user_files_->Set_Taal();
}

void ExportDaysDialog::Refresh_Export_List() {
  LV_user_files_->ShowDays({});
  // Days that are still being read are not no days.
  cmd_export_->setEnabled(false);
  shown_by_ = ShownNow();
  const int reading = ++readings_;
  ExportList list = ReadExportList(program_, [this, reading] { return reading != readings_; });
  if (reading != readings_) return;
  LV_user_files_->ShowDays(std::move(list.rows));
  cmd_export_->setEnabled(true);
  SelectDays(true);
  TellOfUnreadExports(program_, list);
}

void ExportDaysDialog::SelectDays(bool all) {
  program_.Guard("#F5-3", [&] {
    if (all) {
      LV_user_files_->selectAll();
    } else {
      LV_user_files_->clearSelection();
    }
    LV_user_files_->setFocus();
  });
}

void ExportDaysDialog::Export() {
  ExportChoice choice;
  for (std::size_t i = 0; i < opt_soort_.size(); ++i) {
    if (opt_soort_[i]->isChecked()) choice.options.format = static_cast<ReportFormat>(i);
  }
  choice.options.graphs = chk_grafieken_->isChecked();
  choice.options.diary = chk_notities_->isChecked() ? DiaryChoice::include : DiaryChoice::leave_out;
  choice.rows = LV_user_files_->SelectedRows();
  choice.close = chk_close_->isChecked();
  // Whatever happens to the list while a box stands over it.
  const std::vector<ExportRow> rows = LV_user_files_->Rows();
  ExportDays(program_, rows, choice);
}

void ShowExportDialog(Program& program, QWidget* parent) {
  ExportDaysDialog dialog(program, parent);
  dialog.setModal(true);
  dialog.Open();
  // It may have been closed while the days were read.
  if (dialog.isVisible()) dialog.exec();
}

}  // namespace kelvora
