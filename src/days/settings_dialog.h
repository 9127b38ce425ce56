// KV_properties, the dialog of the program's settings. A picture of a SettingsForm: it draws what
// settings.h gives it and passes every change on. Nothing but the language and the help texts
// changes before "Save".
#pragma once

#include <optional>
#include <vector>

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

#include "core/views.h"
#include "days/settings_controls.h"

class QGroupBox;
class QLabel;
class QVBoxLayout;

namespace kelvora {

class TextBox;

class SettingsDialog : public QDialog, public WindowView {
  Q_OBJECT

 public:
  SettingsDialog(Program& program, QWidget* parent);

  void CloseWindow() override;
  void Set_Taal() override;
  void done(int result) override;

 private:
  // A widget that shows a text of the tables, in the property that holds its words.
  struct Caption {
    QWidget* widget;
    const char* property;
    TextId text;
    std::optional<TextId> tip;
  };
  struct Tick {
    QCheckBox* box;
    bool SettingsForm::*value;
  };
  struct Option {
    QRadioButton* button;
    Text SettingsForm::*value;
    Text number;
  };

  void BuildTabs();
  void BuildStartup(QVBoxLayout* page);
  void BuildLanguageAndPrinter(QVBoxLayout* page);
  void BuildFolder(QVBoxLayout* page);
  void BuildDisplay(QVBoxLayout* page);
  void BuildInternet(QVBoxLayout* page);
  void BuildButtons(QVBoxLayout* layout);
  // A group with its ticks and options.
  QGroupBox* AddGroup(QVBoxLayout* page, SettingsGroup id);
  void AddTick(QGroupBox* group, const SettingControl& control);
  void AddOption(QGroupBox* group, const SettingControl& control);
  void AddNote(QGroupBox* group, const char* name, TextId text);
  QLabel* MakeCaption(QWidget* parent, const char* name, TextId text);
  QPushButton* MakeButton(QWidget* parent, const char* name, TextId text,
                          std::optional<TextId> tip);

  void TakeTick(const Tick& tick, bool on);
  void ResetLanguages();
  void FillLists();
  void ShowWhetherThereArePrinters();
  void ShowForm();
  void Save();

  Program& program_;
  OpenFlag<WindowView> open_flag_;
  SettingsForm form_;
  std::vector<Caption> captions_;
  std::vector<Tick> ticks_;
  std::vector<Option> options_;
  QTabWidget* TabStrip1_;
  QComboBox* Combo_taal_;
  QComboBox* combo_printer_;
  TextBox* txt_map_;
  QPushButton* cmd_browse_;
};

}  // namespace kelvora
