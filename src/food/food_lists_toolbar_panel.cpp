#include "food/food_lists_toolbar_panel.h"

#include <QActionGroup>
#include <QMenu>
#include <QToolButton>

#include "language/lists_texts.h"
#include "language/own_texts.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

using namespace lists_text;

constexpr int kIconSize = 24;

struct ButtonTexts {
  const char* icon;
  TextId caption;
  TextId tip;
};
constexpr std::array kButtons = {
    ButtonTexts{"list-standard", kButtonStandard, kTipStandard},
    ButtonTexts{"list-own", kButtonOwn, kTipOwn},
    ButtonTexts{"list-favourites", kButtonFavourites, kTipFavourites},
    ButtonTexts{"list-internet", kButtonInternet, kTipInternet},
};

constexpr auto kWithCaptions = Qt::ToolButtonTextUnderIcon;

}  // namespace

FoodListsToolbar::FoodListsToolbar(QWidget* parent) : ToolBar(parent, "Toolbar") {
  setToolButtonStyle(kWithCaptions);
  setIconSize({kIconSize, kIconSize});
  UseSmallLetters(this);  // all buttons fit the window's default width in both languages
  auto* const group = new QActionGroup(this);
  for (const FoodView view : kFoodViews) {
    const auto place = static_cast<std::size_t>(view);
    QAction* const action = addAction(IconNamed(kButtons[place].icon), QString());
    const QString name = QStringLiteral("Toolbar_%1").arg(place + 1);
    action->setObjectName(name + QStringLiteral("_action"));
    action->setCheckable(true);
    widgetForAction(action)->setObjectName(name);
    group->addAction(action);
    connect(action, &QAction::triggered, this, [this, view] { emit ViewChosen(view); });
    buttons_[place] = action;
  }
  BuildOwnMenu();
  BuildServerMenu();
}

QMenu* FoodListsToolbar::AddMenu(FoodView view) {
  auto* const button =
      qobject_cast<QToolButton*>(widgetForAction(buttons_[static_cast<std::size_t>(view)]));
  auto* const menu = new QMenu(this);
  menu->setObjectName(button->objectName() + QStringLiteral("_menu"));
  button->setMenu(menu);
  button->setPopupMode(QToolButton::MenuButtonPopup);
  return menu;
}

QAction* FoodListsToolbar::AddEntry(QMenu* menu, const char* key, const char* icon) {
  QAction* const entry = menu->addAction(IconNamed(icon), QString());
  entry->setObjectName(menu->objectName() + '_' + QLatin1String(key));
  return entry;
}

void FoodListsToolbar::BuildOwnMenu() {
  own_menu_ = AddMenu(FoodView::own);
  add_ = AddEntry(own_menu_, "ADD", "item-add");
  own_menu_->addSeparator();
  copy_ = AddEntry(own_menu_, "COPY", "list-standard");
  connect(add_, &QAction::triggered, this, &FoodListsToolbar::NewFoodChosen);
  connect(copy_, &QAction::triggered, this, &FoodListsToolbar::CopyChosen);
}

void FoodListsToolbar::BuildServerMenu() {
  QMenu* const menu = AddMenu(FoodView::internet);
  dutch_ = AddEntry(menu, "NL", "food-server");
  english_ = AddEntry(menu, "UK", "food-server");
  connect(dutch_, &QAction::triggered, this, [this] { emit ServerChosen(false); });
  connect(english_, &QAction::triggered, this, [this] { emit ServerChosen(true); });
}

void FoodListsToolbar::Set_Taal(const TextTables& texts) {
  for (std::size_t i = 0; i < buttons_.size(); ++i) {
    // The captions carry blanks at their end, which would push them off the middle of a button.
    buttons_[i]->setText(ToQt(texts[kButtons[i].caption]).trimmed());
    buttons_[i]->setToolTip(ToQt(texts[kButtons[i].tip]));
    AddKeysToTip(buttons_[i], kFoodViewKeys[i]);
  }
  SetActionTexts(add_, texts[kMenuAdd], {});
  SetActionTexts(copy_, texts[kMenuCopy], {});
  SetActionTexts(dutch_, texts[kMenuUseDutch], {});
  SetActionTexts(english_, texts[kMenuUseEnglish], {});
  SetNames(ToQt(texts[kTitle]), ToQt(OwnTextOf(texts, OwnText::more_buttons)));
  if (isVisible()) FitCaptions(*this, kWithCaptions);
}

void FoodListsToolbar::resizeEvent(QResizeEvent* event) {
  ToolBar::resizeEvent(event);
  FitCaptions(*this, kWithCaptions);
}

void FoodListsToolbar::Press(FoodView view) {
  buttons_[static_cast<std::size_t>(view)]->setChecked(true);
  for (QAction* const entry : own_menu_->actions()) entry->setEnabled(view == FoodView::own);
}

void FoodListsToolbar::ShowInternet(bool shown) {
  buttons_.back()->setVisible(shown);
  if (isVisible()) FitCaptions(*this, kWithCaptions);
}

void FoodListsToolbar::ShowServer(bool english) {
  dutch_->setEnabled(english);
  english_->setEnabled(!english);
}

}  // namespace kelvora
