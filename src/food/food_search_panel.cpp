#include "food/food_search_panel.h"

#include <QFocusEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QTimer>
#include <QVBoxLayout>

#include "language/lists_texts.h"
#include "language/own_texts.h"
#include "platform/qt/choice_list.h"
#include "platform/qt/key_sequence.h"
#include "platform/qt/long_label.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

using namespace lists_text;

// The box of the term while a search runs: light grey on any desktop, with letters to be read on
// it.
constexpr QColor kSearchingGround(0xE0, 0xE0, 0xE0);
constexpr QColor kSearchingLetters(0x40, 0x40, 0x40);

QVBoxLayout* NewPanelLayout(QWidget* panel) {
  auto* const layout = new QVBoxLayout(panel);
  layout->setContentsMargins(8, 6, 8, 6);
  layout->setSpacing(3);
  return layout;
}

// A caption above a box, and the name of the box for assistive tools.
void SetCaption(QLabel* caption, QWidget* box, const Text& text) {
  caption->setText(ToQt(text));
  box->setAccessibleName(ToQt(text));
}

}  // namespace

void SearchBox::focusInEvent(QFocusEvent* event) {
  TextBox::focusInEvent(event);
  switch (event->reason()) {
    // A window or a menu that is left goes back to what was being typed.
    case Qt::ActiveWindowFocusReason:
    case Qt::PopupFocusReason:
    case Qt::MenuBarFocusReason:
      return;
    case Qt::MouseFocusReason:
      // After the click that brings the focus, which puts the cursor somewhere.
      QTimer::singleShot(0, this, &QLineEdit::selectAll);
      return;
    default:
      selectAll();
  }
}

void SearchBox::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Down && go_to_found) {
    go_to_found();
    return;
  }
  if (event->key() == Qt::Key_Escape && empty) return empty();
  TextBox::keyPressEvent(event);
}

bool SearchBox::focusNextPrevChild(bool next) {
  if (next && go_to_found && go_to_found()) return true;
  return TextBox::focusNextPrevChild(next);
}

FoodSearchPanel::FoodSearchPanel(const EntryContext& entry, QWidget* parent) : QWidget(parent) {
  NameWidget(this, "Pic_zoek");
  txt_catuitleg_ = NewLabel(this, "txt_catuitleg");
  combo_cat_ = new DropDownList(this, "combo_cat");
  txt_zoekuitleg_ = new LongLabel(this, "txt_zoekuitleg");
  txt_zoeken_ = new SearchBox(this, QStringLiteral("txt_zoeken"), entry);
  txt_zoeken_->addAction(IconNamed("search"), QLineEdit::LeadingPosition);
  txt_catuitleg_->setBuddy(combo_cat_);
  txt_zoekuitleg_->setBuddy(txt_zoeken_);
  QVBoxLayout* const layout = NewPanelLayout(this);
  layout->addWidget(txt_catuitleg_);
  layout->addWidget(combo_cat_);
  layout->addSpacing(3);
  layout->addWidget(txt_zoekuitleg_);
  cmd_often_ = new QPushButton(this);
  NameWidget(cmd_often_, "cmd_often");
  cmd_often_->setAutoDefault(false);
  cmd_often_->setShortcut(SequenceOf(BoundKey::often));
  auto* const line = new QHBoxLayout;
  line->setSpacing(6);
  line->addWidget(txt_zoeken_, 1);
  line->addWidget(cmd_often_);
  layout->addLayout(line);
  // Tab goes from the search straight to what it found.
  setTabOrder(combo_cat_, cmd_often_);
  setTabOrder(cmd_often_, txt_zoeken_);
}

void FoodSearchPanel::Set_Taal(const TextTables& texts) {
  SetCaption(txt_catuitleg_, combo_cat_, texts[kSelectCategory]);
  SetCaption(txt_zoekuitleg_, txt_zoeken_, texts[kSearchHint]);
  combo_cat_->setToolTip(ToQt(texts[kTipCategory]));
  txt_zoeken_->setToolTip(ToQt(texts[kTipSearch]));
  // A text takes the shortcut of a button with it.
  const QKeySequence keys = cmd_often_->shortcut();
  cmd_often_->setText(ToQt(OwnTextOf(texts, OwnText::often)));
  cmd_often_->setShortcut(keys);
  cmd_often_->setToolTip(ToQt(OwnTextOf(texts, OwnText::often_tip)));
}

InternetSearchPanel::InternetSearchPanel(const EntryContext& entry, QWidget* parent)
    : QWidget(parent) {
  NameWidget(this, "Pic_internet");
  txt_internetzoektext_ = NewLabel(this, "txt_internetzoektext");
  txt_internetzoektext_->setWordWrap(true);
  txt_internet_ = new SearchBox(this, QStringLiteral("txt_internet"), entry);
  txt_internet_->addAction(IconNamed("search"), QLineEdit::LeadingPosition);
  txt_internetzoektext_->setBuddy(txt_internet_);
  txt_server_ = NewLabel(this, "txt_server");
  auto* const line = new QHBoxLayout;
  line->setSpacing(8);
  line->addWidget(txt_internet_, 1);
  line->addWidget(txt_server_);
  QVBoxLayout* const layout = NewPanelLayout(this);
  layout->addWidget(txt_internetzoektext_);
  layout->addLayout(line);
}

void InternetSearchPanel::Set_Taal(const TextTables& texts) {
  SetCaption(txt_internetzoektext_, txt_internet_, texts[kInternetSearchHint]);
}

void InternetSearchPanel::ShowSearching(bool running) {
  QPalette colours;
  if (running) {
    colours.setColor(QPalette::Disabled, QPalette::Base, kSearchingGround);
    colours.setColor(QPalette::Disabled, QPalette::Text, kSearchingLetters);
  }
  txt_internet_->setPalette(colours);
  txt_internet_->setEnabled(!running);
}

void InternetSearchPanel::ShowServer(const QString& name, const QString& tip) {
  txt_server_->setText(name);
  txt_internet_->setToolTip(tip);
}

}  // namespace kelvora
