// `KV_tb_notities`: the diary of the open day in one text box. Typing stays in the box until it is
// saved into the day by the button; leaving it behind asks first (storage/untaken_diary.h).
#pragma once

#include <array>

#include <QAction>
#include <QLabel>
#include <QStatusBar>
#include <QWidget>

#include "core/program.h"
#include "platform/qt/text_area.h"
#include "platform/qt/tool_bar.h"

namespace kelvora {

class DiaryWindow : public QWidget, public DiaryView {
  Q_OBJECT

 public:
  DiaryWindow(Program& program, QWidget* parent);

  void CloseWindow() override;
  void Set_Taal() override;
  void Refresh_Tekst() override;
  [[nodiscard]] bool HoldsUntakenText() const override;
  [[nodiscard]] Text TextInBox() const override;
  void TypeText(std::string_view text) override;
  bool TakeOver() override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void BuildToolbar();
  void BuildStatusBar();
  void LayOut();
  void NoteChange();
  void TellOfCut();
  void ShowStatus();
  void LayStatusBar();

  Program& program_;
  OpenFlag<DiaryView> open_flag_;
  ToolBar* Toolbar_;
  QAction* save_action_;
  TextArea* txt_notities_;
  QStatusBar* StatusBar_;
  std::array<QLabel*, 3> panels_;
};

}  // namespace kelvora
