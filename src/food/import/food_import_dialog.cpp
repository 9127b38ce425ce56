#include "food/import/food_import_dialog.h"

#include <QFileDialog>
#include <QGridLayout>
#include <QSet>
#include <QStandardPaths>
#include <QVBoxLayout>

#include "language/own_texts.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

constexpr int kInitialWidth = 840;
constexpr int kInitialHeight = 600;
constexpr int kSpacing = 10;
constexpr int kThousandths = 1000;
constexpr int kPercentStep = 10;
constexpr int kGroupRole = Qt::UserRole;  // the name of a group, as the table has it

QPushButton* NewButton(QWidget* parent, const char* name) {
  auto* const button = new QPushButton(parent);
  NameWidget(button, name);
  button->setAutoDefault(false);
  return button;
}

QString Downloads() {
  return QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
}

QString JoinedLines(const std::vector<Text>& lines) {
  QString joined;
  for (const Text& line : lines) {
    if (!joined.isEmpty()) joined += QLatin1Char('\n');
    joined += ToQt(line);
  }
  return joined;
}

}  // namespace

FoodImportDialog::FoodImportDialog(Program& program, QWidget* parent)
    : QDialog(parent),
      program_(program),
      open_flag_(program.windows, program.windows.food_import, this),
      form_(program) {
  NameWidget(this, "KV_import_foods");
  cmd_file_ = NewButton(this, "cmd_file");
  cmd_folder_ = NewButton(this, "cmd_folder");
  lbl_path_ = new LongLabel(this, QStringLiteral("lbl_path"));
  lbl_taken_ = NewLabel(this, QStringLiteral("lbl_taken"));
  lbl_licence_ = NewLabel(this, QStringLiteral("lbl_licence"));
  for (QLabel* const label : {lbl_taken_, lbl_licence_}) label->setWordWrap(true);
  pages_ = new QTabWidget(this);
  NameWidget(pages_, "pages");
  columns_ = new ColumnsPanel(program_, this);
  pages_->addTab(BuildFoods(), QString());
  pages_->addTab(columns_, QString());
  pages_->addTab(BuildSets(), QString());
  progress_ = new QProgressBar(this);
  NameWidget(progress_, "progress");
  progress_->setRange(0, kThousandths);
  cmd_count_ = NewButton(this, "cmd_count");
  cmd_import_ = NewButton(this, "cmd_import");
  cmd_stop_ = NewButton(this, "cmd_stop");
  cmd_close_ = NewButton(this, "cmd_close");

  auto* const chosen = new QHBoxLayout;
  chosen->addWidget(cmd_file_);
  chosen->addWidget(cmd_folder_);
  chosen->addWidget(lbl_path_, 1);
  chosen->addStretch();
  auto* const buttons = new QHBoxLayout;
  buttons->addWidget(progress_, 1);
  for (QPushButton* const button : {cmd_count_, cmd_import_, cmd_stop_, cmd_close_}) {
    buttons->addWidget(button);
  }
  auto* const layout = new QVBoxLayout(this);
  layout->setSpacing(kSpacing);
  layout->addLayout(chosen);
  layout->addWidget(lbl_taken_);
  layout->addWidget(lbl_licence_);
  layout->addWidget(pages_, 1);
  layout->addLayout(buttons);
  resize(kInitialWidth, kInitialHeight);

  connect(cmd_file_, &QPushButton::clicked, this, &FoodImportDialog::ChooseFile);
  connect(cmd_folder_, &QPushButton::clicked, this, &FoodImportDialog::ChooseFolder);
  connect(cmd_count_, &QPushButton::clicked, this, &FoodImportDialog::Count);
  connect(cmd_import_, &QPushButton::clicked, this, &FoodImportDialog::Import);
  connect(cmd_stop_, &QPushButton::clicked, this, [this] { form_.GiveUp(); });
  connect(cmd_close_, &QPushButton::clicked, this, &FoodImportDialog::CloseWindow);
  connect(columns_, &ColumnsPanel::Changed, this, [this] {
    form_.SetMapping(columns_->Chosen());
    ShowGroups();
    UpdateButtons();
  });
  form_.on_progress = [this](int thousandths) { progress_->setValue(thousandths); };
  SetCaptions();
  ShowTable();
  ShowSets();
}

QWidget* FoodImportDialog::BuildFoods() {
  auto* const page = new QWidget(this);
  lbl_groups_ = NewLabel(page, QStringLiteral("lbl_groups"));
  list_groups_ = new QListWidget(page);
  NameWidget(list_groups_, "list_groups");
  list_groups_->setUniformItemSizes(true);
  lbl_groups_->setBuddy(list_groups_);
  lbl_portions_ = NewLabel(page, QStringLiteral("lbl_portions"));
  combo_portions_ = new ChoiceList(page, "combo_portions");
  combo_portions_->addItems({QString(), QString()});
  lbl_portions_->setBuddy(combo_portions_);
  lbl_country_ = NewLabel(page, QStringLiteral("lbl_country"));
  txt_country_ = new TextBox(page, QStringLiteral("txt_country"), EntryContextOf(program_));
  lbl_country_->setBuddy(txt_country_);
  lbl_complete_ = NewLabel(page, QStringLiteral("lbl_completeness"));
  combo_complete_ = new ChoiceList(page, "combo_completeness");
  for (int percent = 0; percent <= 100; percent += kPercentStep) {
    combo_complete_->addItem(QString::number(percent));
  }
  lbl_complete_->setBuddy(combo_complete_);
  lbl_summary_ = NewLabel(page, QStringLiteral("lbl_summary"));
  lbl_summary_->setWordWrap(true);
  lbl_summary_->setAlignment(Qt::AlignTop | Qt::AlignLeft);

  auto* const grid = new QGridLayout(page);
  grid->addWidget(lbl_groups_, 0, 0);
  grid->addWidget(list_groups_, 1, 0, 7, 1);
  int row = 0;
  for (QWidget* const widget :
       std::initializer_list<QWidget*>{lbl_portions_, combo_portions_, lbl_country_, txt_country_,
                                       lbl_complete_, combo_complete_, lbl_summary_}) {
    grid->addWidget(widget, row++, 1);
  }
  grid->setRowStretch(6, 1);
  grid->setColumnStretch(0, 1);
  grid->setColumnStretch(1, 1);
  return page;
}

QWidget* FoodImportDialog::BuildSets() {
  auto* const page = new QWidget(this);
  lbl_sets_ = NewLabel(page, QStringLiteral("lbl_sets"));
  list_sets_ = new QListWidget(page);
  NameWidget(list_sets_, "list_sets");
  lbl_sets_->setBuddy(list_sets_);
  cmd_remove_ = NewButton(page, "cmd_remove");
  auto* const layout = new QVBoxLayout(page);
  layout->addWidget(lbl_sets_);
  layout->addWidget(list_sets_, 1);
  layout->addWidget(cmd_remove_, 0, Qt::AlignRight);
  connect(cmd_remove_, &QPushButton::clicked, this, &FoodImportDialog::RemoveSet);
  connect(list_sets_, &QListWidget::currentRowChanged, this, [this] { UpdateButtons(); });
  return page;
}

void FoodImportDialog::SetCaptions() {
  const auto words = [this](OwnText text) { return OwnTextOf(program_.texts, text); };
  const auto set_button = [&](QAbstractButton* button, OwnText text) {
    button->setText(CaptionFrom(words(text)));
    button->setAccessibleName(ToQt(words(text)));
  };
  const auto set_label = [&](QLabel* label, OwnText text) {
    label->setText(ToQt(words(text)));
    if (label->buddy() != nullptr) label->buddy()->setAccessibleName(label->text());
  };
  setWindowTitle(ToQt(words(OwnText::import_title)));
  set_button(cmd_file_, OwnText::import_choose_file);
  set_button(cmd_folder_, OwnText::import_choose_folder);
  set_button(cmd_count_, OwnText::import_count);
  set_button(cmd_import_, OwnText::import_import);
  set_button(cmd_stop_, OwnText::import_stop);
  set_button(cmd_close_, OwnText::import_close);
  set_button(cmd_remove_, OwnText::import_remove);
  set_label(lbl_groups_, OwnText::import_groups);
  set_label(lbl_portions_, OwnText::import_portions);
  set_label(lbl_country_, OwnText::import_country);
  set_label(lbl_complete_, OwnText::import_completeness);
  set_label(lbl_sets_, OwnText::import_sets);
  combo_portions_->setItemText(0, ToQt(words(OwnText::import_portion_serving)));
  combo_portions_->setItemText(1, ToQt(words(OwnText::import_portion_hundred)));
  progress_->setAccessibleName(ToQt(words(OwnText::import_progress)));
  pages_->setAccessibleName(windowTitle());
  pages_->setTabText(0, ToQt(words(OwnText::import_page_foods)));
  pages_->setTabText(1, ToQt(words(OwnText::import_page_columns)));
  pages_->setTabText(2, ToQt(words(OwnText::import_page_sets)));
  columns_->SetCaptions();
}

void FoodImportDialog::ChooseFile() {
  const QString path = QFileDialog::getOpenFileName(
      this, ToQt(OwnTextOf(program_.texts, OwnText::import_title)), Downloads());
  if (!path.isEmpty()) Choose(path.toStdString());
}

void FoodImportDialog::ChooseFolder() {
  const QString path = QFileDialog::getExistingDirectory(
      this, ToQt(OwnTextOf(program_.texts, OwnText::import_title)), Downloads());
  if (!path.isEmpty()) Choose(path.toStdString());
}

void FoodImportDialog::Choose(const std::string& path) {
  if (running_ || !form_.Choose(path)) return;
  list_groups_->clear();
  combo_portions_->setCurrentIndex(0);
  txt_country_->ShowText({});
  combo_complete_->setCurrentIndex(0);
  ShowTable();
  pages_->setCurrentIndex(form_.IsReady() ? 0 : 1);
  if (form_.IsReady()) Count();
}

void FoodImportDialog::ShowTable() {
  lbl_taken_->setText(ToQt(form_.TakenFor()));
  lbl_licence_->setText(ToQt(form_.LicenceText()));
  lbl_licence_->setVisible(!form_.LicenceText().empty());
  const bool tells_more = form_.table && form_.table->known == KnownTable::open_food_facts;
  for (QWidget* const widget : std::initializer_list<QWidget*>{lbl_country_, txt_country_,
                                                               lbl_complete_, combo_complete_}) {
    widget->setVisible(tells_more);
  }
  lbl_path_->setVisible(form_.table.has_value());
  if (form_.table) {
    lbl_path_->setText(QString::fromStdString(form_.table->path));
    columns_->Show(*form_.table);
  }
  columns_->setEnabled(form_.table.has_value());
  ShowGroups();
  UpdateButtons();
}

// What was not ticked stays so: a table is counted again for another choice of rows.
void FoodImportDialog::ShowGroups() {
  QSet<QString> unticked;
  for (int i = 0; i < list_groups_->count(); ++i) {
    const QListWidgetItem& item = *list_groups_->item(i);
    if (item.checkState() != Qt::Checked) unticked.insert(item.data(kGroupRole).toString());
  }
  list_groups_->clear();
  lbl_summary_->setText(JoinedLines(form_.Summary()));
  lbl_summary_->setVisible(form_.counts.has_value());
  if (!form_.counts) return;
  for (const GroupCount& group : form_.counts->groups) {
    const Text name =
        group.name.empty() ? OwnTextOf(program_.texts, OwnText::import_no_group) : group.name;
    auto* const item =
        new QListWidgetItem(ToQt(name + " (" + std::to_string(group.foods) + ")"), list_groups_);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setData(kGroupRole, ToQt(group.name));
    item->setCheckState(unticked.contains(ToQt(group.name)) ? Qt::Unchecked : Qt::Checked);
  }
}

void FoodImportDialog::ShowSets() {
  list_sets_->clear();
  for (const FoodSet& set : form_.sets) {
    list_sets_->addItem(
        ToQt(set.name + ", " + TextFromUtf8(set.date) + ". " +
             OwnTextWith(program_.texts, OwnText::import_foods_found, std::to_string(set.foods))));
  }
  UpdateButtons();
}

void FoodImportDialog::UpdateButtons() {
  for (QWidget* const widget :
       std::initializer_list<QWidget*>{cmd_file_, cmd_folder_, pages_, cmd_close_}) {
    widget->setEnabled(!running_);
  }
  cmd_count_->setEnabled(!running_ && form_.IsReady());
  cmd_import_->setEnabled(!running_ && form_.IsReady());
  cmd_stop_->setEnabled(running_);
  cmd_remove_->setEnabled(!running_ && list_sets_->currentRow() >= 0);
}

// All groups is a choice of none in particular, so that groups beyond those shown come along.
void FoodImportDialog::TakeChoice() {
  form_.choice = {};
  if (combo_portions_->currentIndex() == 1) form_.choice.portion = PortionChoice::hundred_grams;
  form_.choice.country = LowerCase(Trimmed(txt_country_->Entered()));
  form_.choice.completeness = combo_complete_->currentIndex() * kPercentStep / 100.0;
  std::vector<Text> groups;
  for (int i = 0; i < list_groups_->count(); ++i) {
    if (list_groups_->item(i)->checkState() != Qt::Checked) continue;
    groups.push_back(LowerCase(form_.counts->groups[static_cast<std::size_t>(i)].name));
  }
  if (static_cast<int>(groups.size()) < list_groups_->count()) form_.choice.groups = groups;
}

template <class Work>
void FoodImportDialog::Run(Work work) {
  if (running_) return;
  running_ = true;
  UpdateButtons();
  cmd_stop_->setFocus();
  work();
  running_ = false;
  progress_->setValue(0);
  UpdateButtons();
  cmd_import_->setFocus();
  if (close_wanted_) done(QDialog::Rejected);
}

void FoodImportDialog::Count() {
  TakeChoice();
  Run([this] {
    form_.Count();
    ShowGroups();
  });
}

void FoodImportDialog::Import() {
  const bool none = list_groups_->count() > 0 && [this] {
    for (int i = 0; i < list_groups_->count(); ++i) {
      if (list_groups_->item(i)->checkState() == Qt::Checked) return false;
    }
    return true;
  }();
  if (none) {
    list_groups_->setFocus();
    return;
  }
  TakeChoice();
  Run([this] {
    form_.Import();
    ShowSets();
  });
}

void FoodImportDialog::RemoveSet() {
  const int row = list_sets_->currentRow();
  if (row >= 0) form_.RemoveSet(static_cast<std::size_t>(row));
  ShowSets();
}

void FoodImportDialog::CloseWindow() {
  done(QDialog::Rejected);
}

void FoodImportDialog::Set_Taal() {
  SetCaptions();
  ShowTable();
  ShowSets();
}

void FoodImportDialog::FollowSettings() {
  Set_Taal();
}

void FoodImportDialog::done(int result) {
  if (running_) {
    close_wanted_ = true;
    form_.GiveUp();
    return;
  }
  open_flag_.Clear();
  QDialog::done(result);
}

void ShowFoodImportDialog(Program& program, QWidget* parent) {
  FoodImportDialog dialog(program, parent);
  dialog.exec();
}

}  // namespace kelvora
