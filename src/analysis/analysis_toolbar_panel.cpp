#include "analysis/analysis_toolbar_panel.h"

#include <algorithm>

#include <QActionGroup>
#include <QLayout>
#include <QMenu>

#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

constexpr int kIconSize = 16;
constexpr int kBarHeight = 26;

constexpr auto kWithCaptions = Qt::ToolButtonTextBesideIcon;

}  // namespace

AnalysisToolbar::AnalysisToolbar(std::span<const AnalysisButton> rows, QWidget* parent)
    : ToolBar(parent, "Toolbar") {
  setToolButtonStyle(kWithCaptions);
  setIconSize({kIconSize, kIconSize});
  setFixedHeight(kBarHeight);
  layout()->setContentsMargins(4, 0, 4, 0);
  UseSmallLetters(this);  // all buttons fit the narrowest window in both languages
  auto* const group = new QActionGroup(this);
  for (const AnalysisButton& row : rows) {
    QAction* const action = addAction(IconNamed(row.icon), QString());
    const QString name = QStringLiteral("Toolbar_%1").arg(buttons_.size() + 1);
    action->setObjectName(name + QStringLiteral("_action"));
    action->setCheckable(true);
    group->addAction(action);
    auto* const button = qobject_cast<QToolButton*>(widgetForAction(action));
    button->setObjectName(name);
    connect(action, &QAction::triggered, this, [this, view = row.view] { emit ViewChosen(view); });
    buttons_.push_back({&row, action, row.menu.empty() ? nullptr : AddMenu(button, row)});
  }
}

QMenu* AnalysisToolbar::AddMenu(QToolButton* button, const AnalysisButton& row) {
  auto* const menu = new QMenu(this);
  menu->setObjectName(button->objectName() + QStringLiteral("_menu"));
  button->setMenu(menu);
  button->setPopupMode(QToolButton::MenuButtonPopup);
  int position = 0;
  for (const auto& text : row.menu) {
    ++position;
    if (!text) {
      menu->addSeparator();
      continue;
    }
    QAction* const entry = menu->addAction(QString());
    entry->setObjectName(QStringLiteral("%1_%2").arg(menu->objectName()).arg(position));
    entry->setCheckable(true);
    connect(entry, &QAction::triggered, this, [this, position] { emit EntryChosen(position); });
  }
  return menu;
}

void AnalysisToolbar::Set_Taal(const TextTables& texts) {
  for (const Button& button : buttons_) {
    // The captions carry blanks at their end, which would push them off the middle of a button.
    button.action->setText(ToQt(texts[button.row->caption]).trimmed());
    button.action->setToolTip(ToQt(texts[button.row->tip]));
    if (button.menu == nullptr) continue;
    button.menu->setAccessibleName(ToQt(texts[button.row->tip]));
    const auto entries = button.menu->actions();
    for (std::size_t i = 0; i < button.row->menu.size(); ++i) {
      const auto& text = button.row->menu[i];
      if (text) SetActionTexts(entries[static_cast<qsizetype>(i)], texts[*text], {});
    }
  }
  if (isVisible()) FitCaptions(*this, kWithCaptions);
}

void AnalysisToolbar::resizeEvent(QResizeEvent* event) {
  ToolBar::resizeEvent(event);
  FitCaptions(*this, kWithCaptions);
}

void AnalysisToolbar::Press(AnalysisView view) {
  for (const Button& button : buttons_) button.action->setChecked(button.row->view == view);
}

void AnalysisToolbar::EnableMenu(std::optional<AnalysisView> view) {
  for (const Button& button : buttons_) {
    if (button.menu == nullptr) continue;
    for (QAction* const entry : button.menu->actions()) {
      entry->setEnabled(button.row->view == view);
    }
  }
}

void AnalysisToolbar::Mark(AnalysisView view, std::span<const int> positions) {
  for (const Button& button : buttons_) {
    if (button.row->view != view || button.menu == nullptr) continue;
    int position = 0;
    for (QAction* const entry : button.menu->actions()) {
      ++position;
      entry->setChecked(std::ranges::find(positions, position) != positions.end());
    }
  }
}

}  // namespace kelvora
