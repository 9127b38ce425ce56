#include "days/settings_dialog.h"

#include <array>

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "days/day_dialogs.h"
#include "days/settings_controls.h"
#include "language/choose_language.h"
#include "language/own_texts.h"
#include "language/properties_texts.h"
#include "platform/qt/choice_list.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"
#include "platform/qt/text_box.h"

namespace kelvora {
namespace {

using namespace properties_text;

constexpr int kInfoWidth = 620;
constexpr int kGroupSpacing = 12;
// Room beside the words of a button, more than the style gives.
constexpr int kButtonRoom = 16;

struct TabRow {
  TextId text;
  TextId tip;
};
constexpr std::array kTabs = {TabRow{kTabGeneral, kTipTabGeneral},
                              TabRow{kTabDisplay, kTipTabDisplay},
                              TabRow{kTabInternet, kTipTabInternet}};

// Shows the entries with the chosen one selected, or none.
void Fill(QComboBox* list, const std::vector<Text>& entries, const Text& chosen) {
  const QSignalBlocker quiet(list);
  list->clear();
  for (const Text& entry : entries) list->addItem(ToQt(entry));
  list->setCurrentIndex(
      list->findText(ToQt(chosen), Qt::MatchFixedString | Qt::MatchCaseSensitive));
}

std::vector<Text> EntriesOf(const TextList& list) {
  return {list.begin(), list.end()};
}

}  // namespace

SettingsDialog::SettingsDialog(Program& program, QWidget* parent)
    : QDialog(parent),
      program_(program),
      open_flag_(program.windows, program.windows.properties, this),
      form_(FormOfSettings(program)) {
  NameWidget(this, "KV_properties");
  QLabel* const lbl_info = MakeCaption(this, "lbl_info", kInfo);
  lbl_info->setWordWrap(true);
  lbl_info->setMinimumWidth(kInfoWidth);
  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(lbl_info);
  BuildTabs();
  layout->addWidget(TabStrip1_, 1);
  BuildButtons(layout);
  Set_Taal();
  FillLists();
  ShowForm();
  ticks_.front().box->setFocus();
}

void SettingsDialog::BuildTabs() {
  TabStrip1_ = new QTabWidget(this);
  NameWidget(TabStrip1_, "TabStrip1");
  MakeOneStop(TabStrip1_);
  std::array<QVBoxLayout*, kTabs.size()> pages{};
  for (std::size_t i = 0; i < pages.size(); ++i) {
    auto* const frame = new QWidget(TabStrip1_);
    frame->setObjectName(QStringLiteral("ChoiceFrame_%1").arg(i + 1));
    pages[i] = new QVBoxLayout(frame);
    pages[i]->setSpacing(kGroupSpacing);
    TabStrip1_->addTab(frame, QString());
  }
  BuildStartup(pages[0]);
  BuildLanguageAndPrinter(pages[0]);
  BuildFolder(pages[0]);
  BuildDisplay(pages[1]);
  BuildInternet(pages[2]);
  for (QVBoxLayout* const page : pages) page->addStretch();
}

void SettingsDialog::BuildStartup(QVBoxLayout* page) {
  AddGroup(page, SettingsGroup::startup);
}

void SettingsDialog::BuildLanguageAndPrinter(QVBoxLayout* page) {
  QGroupBox* const group = AddGroup(page, SettingsGroup::language_and_printer);
  Combo_taal_ = new ChoiceList(group, "Combo_taal");
  QPushButton* const cmd_reset =
      MakeButton(group, "cmd_reset", kResetLanguageFiles, kTipResetLanguageFiles);
  combo_printer_ = new ChoiceList(group, "combo_printer");
  for (QComboBox* const list : {Combo_taal_, combo_printer_}) {
    list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  }
  auto* const grid = new QGridLayout;
  grid->setColumnStretch(1, 1);
  struct Row {
    QComboBox* list;
    const char* label;
    TextId text;
    TextId tip;
    int columns;
  };
  int line = 0;
  // The words that there is no printer need all of the width.
  for (const Row& row :
       {Row{Combo_taal_, "lbl_Combo_taal", kSelectLanguage, kTipSelectLanguage, 1},
        Row{combo_printer_, "lbl_combo_printer", kSelectPrinter, kTipSelectPrinter, 2}}) {
    QLabel* const label = MakeCaption(group, row.label, row.text);
    label->setBuddy(row.list);
    captions_.push_back({row.list, "accessibleName", row.text, row.tip});
    grid->addWidget(label, line, 0);
    grid->addWidget(row.list, line++, 1, 1, row.columns);
  }
  grid->addWidget(cmd_reset, 0, 2);
  qobject_cast<QVBoxLayout*>(group->layout())->addLayout(grid);
  connect(Combo_taal_, &QComboBox::textActivated, this,
          [this](const QString& name) { TakeLanguage(program_, form_, FromQt(name)); });
  connect(combo_printer_, &QComboBox::textActivated, this,
          [this](const QString& name) { form_.combo_printer = FromQt(name); });
  connect(cmd_reset, &QPushButton::clicked, this, &SettingsDialog::ResetLanguages);
}

void SettingsDialog::BuildFolder(QVBoxLayout* page) {
  QGroupBox* const group = AddGroup(page, SettingsGroup::folder);
  group->layout()->addWidget(MakeCaption(group, "lbl_folder", kFolder));
  txt_map_ = new TextBox(group, QStringLiteral("txt_map"), EntryContextOf(program_));
  txt_map_->setReadOnly(true);
  captions_.push_back({txt_map_, "accessibleName", kFolder, kFolder});
  cmd_browse_ = MakeButton(group, "cmd_browse", kBrowse, kFolder);
  QLabel* const label = MakeCaption(group, "lbl_txt_map", kFolderLabel);
  label->setBuddy(txt_map_);
  auto* const row = new QHBoxLayout;
  row->addWidget(label);
  row->addWidget(txt_map_, 1);
  row->addWidget(cmd_browse_);
  qobject_cast<QVBoxLayout*>(group->layout())->addLayout(row);
  AddNote(group, "lbl_folder_note", kFolderNote);
  connect(cmd_browse_, &QPushButton::clicked, this, [this] {
    BrowseForFolder(program_, form_);
    ShowForm();
  });
}

void SettingsDialog::BuildDisplay(QVBoxLayout* page) {
  AddGroup(page, SettingsGroup::display);
  AddNote(AddGroup(page, SettingsGroup::system), "lbl_system_note", kSystemNote);
  AddGroup(page, SettingsGroup::food_weight);
}

void SettingsDialog::BuildInternet(QVBoxLayout* page) {
  QGroupBox* const group = AddGroup(page, SettingsGroup::internet);
  AddNote(group, "lbl_addinternet_note", kAddToInternetNote);
  AddNote(group, "lbl_internet_note", kInternetNote);
  AddGroup(page, SettingsGroup::server);
}

void SettingsDialog::BuildButtons(QVBoxLayout* layout) {
  QPushButton* const cmd_opslaan = MakeButton(this, "cmd_opslaan", kSave, kTipSave);
  cmd_opslaan->setDefault(true);
  QPushButton* const cmd_annuleer = MakeButton(this, "cmd_annuleer", kCancel, kTipCancel);
  connect(cmd_opslaan, &QPushButton::clicked, this, &SettingsDialog::Save);
  connect(cmd_annuleer, &QPushButton::clicked, this, &SettingsDialog::CloseWindow);
  auto* const buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(cmd_opslaan);
  buttons->addWidget(cmd_annuleer);
  layout->addLayout(buttons);
}

QGroupBox* SettingsDialog::AddGroup(QVBoxLayout* page, SettingsGroup id) {
  auto* const group = new QGroupBox(page->parentWidget());
  new QVBoxLayout(group);
  const TextId title = SettingsGroups()[static_cast<std::size_t>(id)].title;
  captions_.push_back({group, "title", title, std::nullopt});
  page->addWidget(group);
  for (const SettingControl& control : SettingControls()) {
    if (control.group != id) continue;
    if (control.tick != nullptr) AddTick(group, control);
    if (control.option) AddOption(group, control);
  }
  return group;
}

void SettingsDialog::AddTick(QGroupBox* group, const SettingControl& control) {
  auto* const box = new QCheckBox(group);
  NameWidget(box, control.name);
  group->layout()->addWidget(box);
  captions_.push_back({box, "text", control.text, control.tip});
  const Tick tick = ticks_.emplace_back(Tick{box, control.tick});
  connect(box, &QCheckBox::toggled, this, [this, tick](bool on) { TakeTick(tick, on); });
}

void SettingsDialog::AddOption(QGroupBox* group, const SettingControl& control) {
  auto* const button = new QRadioButton(group);
  button->setObjectName(
      QStringLiteral("%1_%2").arg(QLatin1String(control.name)).arg(*control.option));
  group->layout()->addWidget(button);
  captions_.push_back({button, "text", control.text, control.tip});
  const Option option =
      options_.emplace_back(Option{button, control.value, std::to_string(*control.option)});
  connect(button, &QRadioButton::toggled, this, [this, option](bool on) {
    if (on) form_.*option.value = option.number;
  });
}

void SettingsDialog::AddNote(QGroupBox* group, const char* name, TextId text) {
  QLabel* const note = MakeCaption(group, name, text);
  note->setForegroundRole(QPalette::PlaceholderText);
  group->layout()->addWidget(note);
}

QLabel* SettingsDialog::MakeCaption(QWidget* parent, const char* name, TextId text) {
  QLabel* const label = NewLabel(parent, QLatin1String(name));
  captions_.push_back({label, "text", text, std::nullopt});
  return label;
}

QPushButton* SettingsDialog::MakeButton(QWidget* parent, const char* name, TextId text,
                                        std::optional<TextId> tip) {
  auto* const button = new QPushButton(parent);
  NameWidget(button, name);
  // Enter saves, whichever control it is pressed in.
  button->setAutoDefault(false);
  captions_.push_back({button, "text", text, tip});
  return button;
}

void SettingsDialog::CloseWindow() {
  done(QDialog::Rejected);
}

void SettingsDialog::done(int result) {
  open_flag_.Clear();
  QDialog::done(result);
}

void SettingsDialog::Set_Taal() {
  const TextTables& texts = program_.texts;
  setWindowTitle(ToQt(texts[kTitle]));
  TabStrip1_->setAccessibleName(ToQt(texts[kPages]));
  for (std::size_t i = 0; i < kTabs.size(); ++i) {
    TabStrip1_->setTabText(static_cast<int>(i), ToQt(texts[kTabs[i].text]));
    TabStrip1_->setTabToolTip(static_cast<int>(i), ToQt(texts[kTabs[i].tip]));
  }
  for (const Caption& caption : captions_) {
    const QString text = ToQt(texts[caption.text]);
    QString shown = text;
    if (qobject_cast<QAbstractButton*>(caption.widget) != nullptr ||
        qobject_cast<QGroupBox*>(caption.widget) != nullptr) {
      shown = CaptionFrom(texts[caption.text]);
      caption.widget->setAccessibleName(text);
    }
    caption.widget->setProperty(caption.property, shown);
    if (auto* const button = qobject_cast<QPushButton*>(caption.widget)) {
      button->setMinimumWidth(button->sizeHint().width() + kButtonRoom);
    }
    if (caption.tip) caption.widget->setToolTip(ToQt(texts[*caption.tip]));
  }
  ShowWhetherThereArePrinters();
}

void SettingsDialog::ShowWhetherThereArePrinters() {
  const TextTables& texts = program_.texts;
  combo_printer_->setPlaceholderText(ToQt(combo_printer_->count() == 0
                                              ? texts[kNoPrinter]
                                              : OwnTextOf(texts, OwnText::no_printer_chosen)));
}

void SettingsDialog::TakeTick(const Tick& tick, bool on) {
  form_.*tick.value = on;
  if (tick.value == &SettingsForm::chk_internet) FollowInternet(form_);
  if (tick.value == &SettingsForm::chk_wiz) FollowInWizard(program_, form_);
  if (tick.value == &SettingsForm::chk_help) ShowHelp(program_, on);
  ShowForm();
}

void SettingsDialog::ResetLanguages() {
  RepairLanguageFiles(program_);
  FillLists();
}

void SettingsDialog::FillLists() {
  Fill(Combo_taal_, WithChosen(EntriesOf(LanguageFileNames(program_.paths)), form_.Combo_taal),
       form_.Combo_taal);
  Fill(combo_printer_, WithChosen(PrinterNames(program_), form_.combo_printer),
       form_.combo_printer);
  ShowWhetherThereArePrinters();
}

void SettingsDialog::ShowForm() {
  for (const auto& [box, value] : ticks_) {
    const QSignalBlocker quiet(box);
    box->setChecked(form_.*value);
  }
  for (const auto& [button, value, number] : options_) {
    const QSignalBlocker quiet(button);
    if (form_.*value == number) button->setChecked(true);
  }
  txt_map_->ShowText(form_.txt_map);
  const EnabledControls enabled = EnabledIn(form_);
  cmd_browse_->setEnabled(enabled.cmd_browse);
  for (const auto& [box, value] : ticks_) {
    if (value == &SettingsForm::chk_addinternet) box->setEnabled(enabled.chk_addinternet);
  }
  for (const auto& [button, value, number] : options_) {
    if (value == &SettingsForm::opt_server) button->setEnabled(enabled.opt_server);
  }
}

void SettingsDialog::Save() {
  if (Save_From_Form(program_, form_)) return CloseWindow();
  const auto missing = MissingIn(form_);
  if (missing == MissingSetting::language) GoToBox(Combo_taal_);
  if (missing == MissingSetting::folder) GoToBox(txt_map_);
}

void ShowSettingsDialog(Program& program, QWidget* parent) {
  SettingsDialog(program, parent).exec();
}

}  // namespace kelvora
