#include "days/day_settings_dialog.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "core/arrangement.h"
#include "days/day_dialogs.h"
#include "language/day_settings_texts.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

using namespace day_settings_text;

constexpr int kUsersWidth = 200;
constexpr int kInfoWidth = 680;
// Boxes for more characters than this grow with the dialog.
constexpr std::size_t kShortLimit = 9;

constexpr int kCaptionColumn = 0;
constexpr int kFieldColumn = 1;
constexpr int kHintColumn = 2;

const DayField& RowOf(DayFieldId id) {
  return DayFields()[static_cast<std::size_t>(id)];
}

QToolButton* NewToolButton(QWidget* bar, const char* name, std::string_view icon) {
  auto* const button = new QToolButton(bar);
  NameWidget(button, name);
  button->setIcon(IconNamed(icon));
  button->setAutoRaise(true);
  bar->layout()->addWidget(button);
  return button;
}

// The same words for the eye, the pointer and assistive tools.
void SetTip(QToolButton* button, std::string_view text) {
  button->setToolTip(ToQt(text));
  button->setAccessibleName(ToQt(text));
}

}  // namespace

DaySettingsDialog::DaySettingsDialog(Program& program, QWidget* parent)
    : QDialog(parent),
      program_(program),
      open_flag_(program.windows, program.windows.day_settings, this),
      form_(NewUserForm(program)) {
  NameWidget(this, "KV_bestand");
  if (WindowView* const wizard = program_.windows.Find(WindowId::wizard)) wizard->CloseWindow();

  lbl_info_ = NewLabel(this, "lbl_info");
  lbl_info_->setWordWrap(true);
  lbl_info_->setMinimumWidth(kInfoWidth);
  BuildTabs();
  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(lbl_info_);
  layout->addWidget(TabStrip1_, 1);
  layout->addLayout(BuildButtons());

  Set_Taal();
  ShowForm();
  ShowUsers();
}

DaySettingsDialog::~DaySettingsDialog() {
  // A box that loses the focus in its own destruction still tells of it, and by then only the bare
  // dialog is left to hear.
  for (QLineEdit* const field : fields_) field->disconnect(this);
}

void DaySettingsDialog::BuildTabs() {
  TabStrip1_ = new QTabWidget(this);
  NameWidget(TabStrip1_, "TabStrip1");
  for (int i = 0; i < 3; ++i) {
    auto* const frame = new QWidget(TabStrip1_);
    frame->setObjectName(QStringLiteral("ChoiceFrame_%1").arg(i + 1));
    TabStrip1_->addTab(frame, QString());
    // The panels of the other tabs have no fields yet.
    TabStrip1_->setTabEnabled(i, i == 0);
  }
  auto* const layout = new QHBoxLayout(TabStrip1_->widget(0));
  layout->setSpacing(16);
  layout->addWidget(BuildUsers());
  layout->addWidget(BuildFields(), 1);
}

QWidget* DaySettingsDialog::BuildUsers() {
  auto* const side = new QWidget(this);
  lbl_users_ = NewLabel(side, "lbl_users");
  lst_users_ = new QListWidget(side);
  NameWidget(lst_users_, "lst_users");
  lst_users_->setFixedWidth(kUsersWidth);
  lbl_users_->setBuddy(lst_users_);
  connect(lst_users_, &QListWidget::itemSelectionChanged, this,
          &DaySettingsDialog::ChooseSelectedUser);

  auto* const bar = new QWidget(side);
  NameWidget(bar, "Toolbar_control");
  auto* const bar_layout = new QHBoxLayout(bar);
  bar_layout->setContentsMargins(0, 0, 0, 0);
  new_user_button_ = NewToolButton(bar, "Toolbar_control_2", "user-new");
  delete_user_button_ = NewToolButton(bar, "Toolbar_control_3", "user-delete");
  delete_user_button_->setEnabled(false);  // users can't be deleted yet
  bar_layout->addStretch();
  connect(new_user_button_, &QToolButton::clicked, this, &DaySettingsDialog::BeginNewUser);

  auto* const layout = new QVBoxLayout(side);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(lbl_users_);
  layout->addWidget(lst_users_, 1);
  layout->addWidget(bar);
  return side;
}

QWidget* DaySettingsDialog::BuildFields() {
  auto* const side = new QWidget(this);
  auto* const grid = new QGridLayout(side);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setColumnStretch(kHintColumn, 1);
  // Made in the order of the Tab key.
  int row = 0;
  AddFieldRow(grid, row++, DayFieldId::pg_0, std::nullopt);
  pg_7_ = new QComboBox(side);
  NameWidget(pg_7_, "pg_7");
  AddCaption(grid, row, "lbl_pg_7", kGender)->setBuddy(pg_7_);
  grid->addWidget(pg_7_, row++, kFieldColumn);
  connect(pg_7_, &QComboBox::currentTextChanged, this,
          [this](const QString& text) { form_.pg_7 = FromQt(text); });
  AddFieldRow(grid, row++, DayFieldId::pg_8, std::nullopt);
  lbl_lengteinfo_ = AddHint(grid, row, "lbl_lengteinfo");
  AddFieldRow(grid, row++, DayFieldId::txt_lengte_m, kMeter);
  lbl_streefgewichtinfo_ = AddHint(grid, row, "lbl_streefgewichtinfo");
  AddFieldRow(grid, row++, DayFieldId::txt_streefgewicht, kKilogram);
  AddDateRow(grid, row++);
  AddFieldRow(grid, row++, DayFieldId::pg_11, std::nullopt);
  lbl_gewichtinfo_ = AddHint(grid, row, "lbl_gewichtinfo");
  AddFieldRow(grid, row++, DayFieldId::txt_gewicht, kKilogram);
  grid->setRowStretch(row, 1);
  return side;
}

QHBoxLayout* DaySettingsDialog::BuildButtons() {
  cmd_opslaan_ = new QPushButton(this);
  NameWidget(cmd_opslaan_, "cmd_opslaan");
  cmd_opslaan_->setDefault(true);
  cmd_annuleer_ = new QPushButton(this);
  NameWidget(cmd_annuleer_, "cmd_annuleer");
  cmd_annuleer_->setAutoDefault(false);
  connect(cmd_opslaan_, &QPushButton::clicked, this, &DaySettingsDialog::Start);
  connect(cmd_annuleer_, &QPushButton::clicked, this, &DaySettingsDialog::CloseWindow);
  auto* const buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(cmd_opslaan_);
  buttons->addWidget(cmd_annuleer_);
  return buttons;
}

QLabel* DaySettingsDialog::AddCaption(QGridLayout* grid, int row, const char* name, TextId text) {
  QLabel* const label = NewLabel(grid->parentWidget(), QLatin1String(name));
  captions_.push_back({label, text});
  grid->addWidget(label, row, kCaptionColumn);
  return label;
}

QLabel* DaySettingsDialog::AddHint(QGridLayout* grid, int row, const char* name) {
  QLabel* const label = NewLabel(grid->parentWidget(), QLatin1String(name));
  label->setForegroundRole(QPalette::PlaceholderText);
  grid->addWidget(label, row, kHintColumn);
  return label;
}

void DaySettingsDialog::AddFieldRow(QGridLayout* grid, int row, DayFieldId id,
                                    std::optional<TextId> unit) {
  QLineEdit* const field = MakeField(id);
  const QByteArray name = "lbl_" + field->objectName().toLatin1();
  AddCaption(grid, row, name.constData(), RowOf(id).caption)->setBuddy(field);
  if (!unit) {
    const bool wide = RowOf(id).limit > kShortLimit;
    grid->addWidget(field, row, kFieldColumn, 1, wide ? 2 : 1);
    return;
  }
  QLabel* const label = NewLabel(this, field->objectName() + QStringLiteral("_unit"));
  captions_.push_back({label, *unit});
  auto* const with_unit = new QHBoxLayout;
  with_unit->addWidget(field);
  with_unit->addWidget(label, 1);
  grid->addLayout(with_unit, row, kFieldColumn);
}

void DaySettingsDialog::AddDateRow(QGridLayout* grid, int row) {
  AddCaption(grid, row, "lbl_pg_9", kDate);
  auto* const boxes = new QGridLayout;
  boxes->setHorizontalSpacing(6);
  boxes->setVerticalSpacing(1);
  int column = 0;
  for (const DayFieldId id : {DayFieldId::pg_9_a, DayFieldId::pg_9_b, DayFieldId::pg_9_c}) {
    QLineEdit* const field = MakeField(id);
    QLabel* const label = NewLabel(this, QStringLiteral("lbl_") + field->objectName());
    label->setBuddy(field);
    captions_.push_back({label, RowOf(id).caption});
    boxes->addWidget(label, 0, column);
    boxes->addWidget(field, 1, column++);
  }
  grid->addLayout(boxes, row, kFieldColumn, Qt::AlignLeft);
  lbl_datuminfo_ = AddHint(grid, row, "lbl_datuminfo");
}

QLineEdit* DaySettingsDialog::MakeField(DayFieldId id) {
  const DayField& row = RowOf(id);
  auto* const field = new QLineEdit(this);
  field->setObjectName(ToQt(row.name));
  field->setMaxLength(static_cast<int>(row.limit));
  if (row.limit <= kShortLimit) {
    // Room for the widest letters, the frame and the cursor.
    const int letters = static_cast<int>(row.limit) + 2;
    field->setFixedWidth(letters * fontMetrics().horizontalAdvance(QLatin1Char('0')) + 12);
  }
  connect(field, &QLineEdit::textEdited, this, [this, id] { FilterTyping(id); });
  connect(field, &QLineEdit::editingFinished, this, [this, id] { TakeTyped(id); });
  fields_[static_cast<std::size_t>(id)] = field;
  return field;
}

void DaySettingsDialog::CloseWindow() {
  done(QDialog::Rejected);
}

void DaySettingsDialog::done(int result) {
  open_flag_.Clear();
  QDialog::done(result);
}

void DaySettingsDialog::Set_Taal() {
  const TextTables& texts = program_.texts;
  setWindowTitle(ToQt(texts[kTitleNewDay]));
  TabStrip1_->setTabText(0, ToQt(texts[kTabUserAndDay]));
  TabStrip1_->setTabText(1, ToQt(texts[kTabAdditional]));
  TabStrip1_->setTabText(2, ToQt(texts[kTabNutritions]));
  lbl_users_->setText(ToQt(texts[kUsers]));
  lst_users_->setAccessibleName(ToQt(texts[kUsers]));
  SetTip(new_user_button_, texts[kTipNewUser]);
  SetTip(delete_user_button_, texts[kTipDeleteUser]);
  for (const auto& [label, text] : captions_) label->setText(ToQt(texts[text]));
  for (std::size_t i = 0; i < fields_.size(); ++i) {
    fields_[i]->setAccessibleName(ToQt(texts[DayFields()[i].caption]));
  }
  pg_7_->setAccessibleName(ToQt(texts[kGender]));
  cmd_opslaan_->setText(ToQt(texts[kStart]));
  cmd_annuleer_->setText(ToQt(texts[kCancel]));
  ShowGender();
}

void DaySettingsDialog::ShowUsers() {
  const TextList names = UsersForNewDay(program_);
  lbl_info_->setText(ToQt(program_.texts[InstructionFor(names.Count())]));
  const QSignalBlocker quiet(lst_users_);
  lst_users_->clear();
  for (const std::string_view name : names) lst_users_->addItem(ToQt(name));
  const auto current = lst_users_->findItems(ToQt(program_.paths.UserName),
                                             Qt::MatchFixedString | Qt::MatchCaseSensitive);
  if (names.Empty()) {
    Field(DayFieldId::pg_0)->setFocus();
  } else if (!current.isEmpty()) {
    lst_users_->setCurrentItem(current.front());
    ChooseSelectedUser();
  }
}

void DaySettingsDialog::ChooseSelectedUser() {
  const QList<QListWidgetItem*> selected = lst_users_->selectedItems();
  if (selected.isEmpty()) return;
  form_ = ChooseUserForDay(program_, FromQt(selected.front()->text()));
  Field(DayFieldId::pg_0)->setEnabled(false);
  ShowForm();
}

void DaySettingsDialog::BeginNewUser() {
  const QSignalBlocker quiet(lst_users_);
  lst_users_->setCurrentItem(nullptr);
  form_ = NewUserForm(program_);
  Field(DayFieldId::pg_0)->setEnabled(true);
  ShowForm();
  Field(DayFieldId::pg_0)->setFocus();
}

void DaySettingsDialog::ShowForm() {
  for (std::size_t i = 0; i < fields_.size(); ++i) {
    fields_[i]->setText(ToQt(form_.*DayFields()[i].part));
  }
  ShowGender();
  ShowHints();
}

// The list of the language, and the stored word too if it is of another language.
void DaySettingsDialog::ShowGender() {
  const QSignalBlocker quiet(pg_7_);
  pg_7_->clear();
  pg_7_->addItem(ToQt(program_.texts[kMale]));
  pg_7_->addItem(ToQt(program_.texts[kFemale]));
  const QString gender = ToQt(form_.pg_7);
  if (!gender.isEmpty() && pg_7_->findText(gender) < 0) pg_7_->addItem(gender);
  pg_7_->setCurrentIndex(pg_7_->findText(gender));
}

void DaySettingsDialog::ShowHints() {
  const DayHints hints = DrawCoversionsText(program_, form_);
  lbl_lengteinfo_->setText(ToQt(hints.lbl_lengteinfo));
  lbl_gewichtinfo_->setText(ToQt(hints.lbl_gewichtinfo));
  lbl_streefgewichtinfo_->setText(ToQt(hints.lbl_streefgewichtinfo));
  lbl_datuminfo_->setText(ToQt(hints.lbl_datuminfo));
}

void DaySettingsDialog::FilterTyping(DayFieldId id) {
  QLineEdit* const field = Field(id);
  const DayField& row = RowOf(id);
  const Text separator = program_.platform.locale.DecimalSeparator();
  const auto filtered = [&](const QString& text) {
    return ToQt(ApplyKeyFilter(row.filter, FromQt(text), separator));
  };
  const QString kept = filtered(field->text());
  if (kept != field->text()) {
    const QString before_cursor = filtered(field->text().left(field->cursorPosition()));
    field->setText(kept);
    field->setCursorPosition(static_cast<int>(before_cursor.size()));
  }
  if (row.filter != KeyFilter::whole_number) return;
  TakeField(form_, row, FromQt(kept));
  lbl_datuminfo_->setText(ToQt(DateHint(program_, form_)));
}

void DaySettingsDialog::TakeTyped(DayFieldId id) {
  const DayForm before = form_;
  TakeField(form_, RowOf(id), FromQt(Field(id)->text()));
  if (form_ != before) ShowHints();
}

void DaySettingsDialog::TakeForm() {
  for (std::size_t i = 0; i < fields_.size(); ++i) {
    TakeField(form_, DayFields()[i], FromQt(fields_[i]->text()));
  }
}

void DaySettingsDialog::Start() {
  TakeForm();
  if (!StartDay(program_, form_)) return;
  // Out of sight first: the arrangement opens the windows of the day, and closes this one.
  hide();
  ApplyChosenArrangement(program_);
  CloseWindow();
}

void ShowDaySettingsDialog(Program& program, QWidget* parent) {
  DaySettingsDialog(program, parent).exec();
}

}  // namespace kelvora
