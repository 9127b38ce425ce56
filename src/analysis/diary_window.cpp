#include "analysis/diary_window.h"

#include <algorithm>

#include <QCloseEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "analysis/diary.h"
#include "language/diary_texts.h"
#include "language/main_texts.h"
#include "language/own_texts.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"
#include "storage/untaken_diary.h"

namespace kelvora {
namespace {

namespace dt = diary_text;

constexpr int kToolIconSize = 16;
constexpr int kBarHeight = 24;   // so the text begins 360 twips below the window's top
constexpr int kPanelMargin = 2;  // above and below the letters of the status bar
constexpr int kPanelIndent = 5;

// The text box, whose keys can't bring in what no day can hold.
class DiaryBox : public TextArea {
 public:
  using TextArea::TextArea;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (Takes(event->text())) TextArea::keyPressEvent(event);
  }
  void inputMethodEvent(QInputMethodEvent* event) override {
    if (!Takes(event->commitString())) event->setCommitString({});
    TextArea::inputMethodEvent(event);
  }

 private:
  static bool Takes(const QString& typed) {
    return typed.size() != 1 || DiaryTakesKey(typed.front().unicode());
  }
};

}  // namespace

DiaryWindow::DiaryWindow(Program& program, QWidget* parent)
    : QWidget(parent), program_(program), open_flag_(program.windows, program.windows.diary, this) {
  NameWidget(this, "KV_tb_notities");
  BuildToolbar();
  txt_notities_ =
      new DiaryBox(this, QStringLiteral("txt_notities"), EntryContextOf(program_), kDiaryRule);
  txt_notities_->setTabChangesFocus(true);
  setFocusPolicy(Qt::ClickFocus);
  setFocusProxy(txt_notities_);
  BuildStatusBar();
  LayOut();
  connect(save_action_, &QAction::triggered, this, [this] { TakeOver(); });
  connect(txt_notities_, &TextArea::Edited, this, &DiaryWindow::NoteChange);
  connect(txt_notities_, &TextArea::Cut, this, &DiaryWindow::TellOfCut);
  Refresh_Tekst();
  Set_Taal();
}

void DiaryWindow::BuildToolbar() {
  Toolbar_ = new ToolBar(this, "Toolbar");
  Toolbar_->setIconSize({kToolIconSize, kToolIconSize});
  Toolbar_->setFixedHeight(kBarHeight);
  Toolbar_->layout()->setContentsMargins(4, 0, 4, 0);
  save_action_ = Toolbar_->addAction(IconNamed("save"), QString());
  save_action_->setObjectName(QStringLiteral("Toolbar_1_action"));
  Toolbar_->widgetForAction(save_action_)->setObjectName(QStringLiteral("Toolbar_1"));
}

void DiaryWindow::BuildStatusBar() {
  StatusBar_ = new QStatusBar(this);
  NameWidget(StatusBar_, "StatusBar");
  StatusBar_->setSizeGripEnabled(false);
  for (std::size_t i = 0; i < panels_.size(); ++i) {
    panels_[i] = NewLabel(StatusBar_, QStringLiteral("StatusBar_%1").arg(i + 1));
    panels_[i]->setIndent(kPanelIndent);
  }
  panels_[0]->setWordWrap(true);
}

void DiaryWindow::LayOut() {
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(Toolbar_);
  layout->addWidget(txt_notities_, 1);
  layout->addWidget(StatusBar_);
}

void DiaryWindow::CloseWindow() {
  if (QWidget* const frame = parentWidget()) frame->close();
}

void DiaryWindow::Set_Taal() {
  const TextTables& texts = program_.texts;
  setWindowTitle(ToQt(texts[dt::kTitle]));
  txt_notities_->setAccessibleName(ToQt(texts[dt::kTitle]));
  Toolbar_->SetNames(ToQt(texts[dt::kTitle]), ToQt(OwnTextOf(texts, OwnText::more_buttons)));
  StatusBar_->setAccessibleName(ToQt(texts[main_text::kStatusBarName]));
  SetActionTexts(save_action_, texts[dt::kTipSave], {});
  ShowStatus();
}

void DiaryWindow::Refresh_Tekst() {
  const Text& stored = program_.store.txt_notities;
  txt_notities_->setWordWrapMode(HoldsEndlessWord(stored)
                                     ? QTextOption::WrapAnywhere
                                     : QTextOption::WrapAtWordBoundaryOrAnywhere);
  txt_notities_->ShowText(stored);
  save_action_->setEnabled(false);
  ShowStatus();
}

// Text that was changed and put back is no other text.
bool DiaryWindow::HoldsUntakenText() const {
  return save_action_->isEnabled() &&
         txt_notities_->Entered() != DiaryInBox(program_.store.txt_notities);
}

Text DiaryWindow::TextInBox() const {
  return txt_notities_->Entered();
}

void DiaryWindow::TypeText(std::string_view text) {
  txt_notities_->ShowText(text);
  NoteChange();
}

bool DiaryWindow::TakeOver() {
  const bool taken = Bewaar_Notities(program_, txt_notities_->Entered());
  if (taken) {
    save_action_->setEnabled(false);
  } else {
    txt_notities_->setFocus();
  }
  return taken;
}

void DiaryWindow::closeEvent(QCloseEvent* event) {
  if (!MayLeaveDiary(program_)) return event->ignore();
  open_flag_.Clear();
  QWidget::closeEvent(event);
}

void DiaryWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  LayStatusBar();
}

void DiaryWindow::NoteChange() {
  save_action_->setEnabled(true);
  NoteDiaryChange(program_);
  ShowStatus();
}

void DiaryWindow::TellOfCut() {
  panels_[1]->setText(ToQt(OwnTextOf(program_.texts, OwnText::diary_cut)));
  panels_[1]->setToolTip(ToQt(OwnTextOf(program_.texts, OwnText::diary_cut_tip)));
  LayStatusBar();
}

void DiaryWindow::ShowStatus() {
  panels_[0]->setText(ToQt(Toon_Tekens(program_, txt_notities_->Entered())));
  panels_[1]->clear();
  panels_[1]->setToolTip({});
  LayStatusBar();
}

// Words that are too long for the first panel reach into the others while these are empty, and go
// on in a second line.
void DiaryWindow::LayStatusBar() {
  const auto widths = DiaryPanelWidths(TwipsOfPixels(width()));
  QLabel& count = *panels_[0];
  QLabel& cut = *panels_[1];
  const int cut_width =
      cut.text().isEmpty() ? 0 : std::max(cut.sizeHint().width(), PixelsOfTwips(widths[1]));
  const int needed = count.fontMetrics().horizontalAdvance(count.text()) + 2 * kPanelIndent;
  const int first = std::min(std::max(PixelsOfTwips(widths[0]), needed), width() - cut_width);
  StatusBar_->setFixedHeight(count.heightForWidth(first) + 2 * kPanelMargin);
  count.setGeometry(0, 0, first, StatusBar_->height());
  cut.setGeometry(first, 0, cut_width, StatusBar_->height());
  panels_[2]->setGeometry(first + cut_width, 0, std::max(width() - first - cut_width, 0),
                          StatusBar_->height());
}

}  // namespace kelvora
