#include "platform/qt/look.h"

#include <QFont>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QWidget>

#include "platform/qt/cell_tips.h"
#include "platform/qt/text.h"

// Outside of any namespace, as the macro wants. A static library's resources register only when
// they are asked for.
static bool RegisterIcons() {
  Q_INIT_RESOURCE(kelvora);
  return true;
}

namespace kelvora {

QIcon IconNamed(std::string_view name) {
  [[maybe_unused]] static const bool registered = RegisterIcons();
  return QIcon(QStringLiteral(":/icons/%1.svg").arg(QLatin1String(name.data(), name.size())));
}

void NameWidget(QWidget* widget, const char* object_name) {
  widget->setObjectName(QLatin1String(object_name));
}

QLabel* NewLabel(QWidget* parent, const QString& object_name) {
  auto* const label = new QLabel(parent);
  label->setObjectName(object_name);
  label->setTextFormat(Qt::PlainText);
  return label;
}

int RowHeight(const QWidget& widget) {
  return widget.fontMetrics().height() + 6;
}

void MakeRowList(QTableView* table) {
  table->setSelectionBehavior(QAbstractItemView::SelectRows);
  table->setSelectionMode(QAbstractItemView::ExtendedSelection);
  table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table->setAlternatingRowColors(true);
  table->setShowGrid(false);
  table->setWordWrap(false);
  table->setCornerButtonEnabled(false);
  table->setTabKeyNavigation(false);
  table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  table->setItemDelegate(new CellTips(table));  // the table owns it
  table->verticalHeader()->hide();
  table->verticalHeader()->setDefaultSectionSize(RowHeight(*table));
  table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  table->horizontalHeader()->setHighlightSections(false);
}

void UseSmallLetters(QWidget* widget) {
  constexpr double kShare = 0.9;
  QFont font = widget->font();
  if (font.pointSizeF() > 0) {
    font.setPointSizeF(font.pointSizeF() * kShare);
  } else {  // a desktop font whose size is given in pixels
    font.setPixelSize(qRound(font.pixelSize() * kShare));
  }
  widget->setFont(font);
}

QString CaptionFrom(std::string_view text) {
  return ToQt(text).replace('&', QStringLiteral("&&"));
}

void SetLocked(QLineEdit* box, bool locked) {
  box->setReadOnly(locked);
  QPalette palette;
  if (locked) palette.setColor(QPalette::Base, palette.color(QPalette::Window));
  box->setPalette(palette);
}

void SetActionTexts(QAction* action, std::string_view caption, std::string_view tip) {
  action->setText(CaptionFrom(caption));
  action->setToolTip(ToQt(tip.empty() ? caption : tip));
}

}  // namespace kelvora
