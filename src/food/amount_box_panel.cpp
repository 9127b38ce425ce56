#include "food/amount_box_panel.h"

#include <QKeyEvent>

#include "platform/qt/entry_hint.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

constexpr std::size_t kLongest = 16;  // characters; "1234.5 gram" has eleven
constexpr int kWidthInLetters = 8;

}  // namespace

AmountBox::AmountBox(QWidget* parent, const EntryContext& entry)
    : TextBox(parent, QStringLiteral("txt_amount"), entry, {.limit = kLongest}), entry_(entry) {
  setAlignment(Qt::AlignRight);
  setFixedWidth(fontMetrics().horizontalAdvance(QLatin1Char('0')) * (kWidthInLetters + 1));
}

void AmountBox::Set_Taal() {
  setAccessibleName(ToQt(OwnTextOf(entry_.texts, OwnText::amount)));
  setToolTip(ToQt(OwnTextOf(entry_.texts, OwnText::amount_tip)));
}

std::optional<Amount> AmountBox::Read() {
  const auto read = ReadAmount(Entered());
  if (const auto* const amount = std::get_if<Amount>(&read)) return *amount;
  Refuse(std::get<AmountFault>(read));
  return std::nullopt;
}

void AmountBox::Refuse(AmountFault fault) {
  GoToBox(this);
  EntryHint::Say(*this, ToQt(OwnTextOf(entry_.texts, TextOf(fault))));
}

void AmountBox::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && on_escape) return text().isEmpty() ? on_escape() : clear();
  TextBox::keyPressEvent(event);
}

}  // namespace kelvora
