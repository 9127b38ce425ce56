#include "platform/qt/look.h"

#include <algorithm>
#include <vector>

#include <QFont>
#include <QHeaderView>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QToolBar>
#include <QToolButton>
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
  table->horizontalHeader()->setTextElideMode(Qt::ElideRight);
}

namespace {

int WidthOfHeading(const QHeaderView& header, int column) {
  const QStyle& style = *header.style();
  const QString words = header.model()->headerData(column, Qt::Horizontal).toString();
  const int margin = style.pixelMetric(QStyle::PM_HeaderMargin, nullptr, &header);
  const bool sorted = header.isSortIndicatorShown() && header.sortIndicatorSection() == column;
  const int mark = sorted ? style.pixelMetric(QStyle::PM_HeaderMarkSize, nullptr, &header) : 0;
  return header.fontMetrics().horizontalAdvance(words) + 2 * margin + 1 + mark;
}

}  // namespace

int WidthOfHeadings(const QTableView& table) {
  const QHeaderView& header = *table.horizontalHeader();
  int width = 0;
  for (int column = 0; column < header.count(); ++column) {
    if (!header.isSectionHidden(column)) width += WidthOfHeading(header, column);
  }
  return width;
}

void WidenToHeadings(QTableView& table, int giving, std::optional<int> given_room) {
  const QHeaderView& header = *table.horizontalHeader();
  const int room = std::max(0, given_room.value_or(table.viewport()->width()));
  const int needed = WidthOfHeadings(table);
  std::vector<int> columns;  // from the right
  for (int column = header.count() - 1; column >= 0; --column) {
    if (!header.isSectionHidden(column)) columns.push_back(column);
  }
  if (columns.empty()) return;
  const auto least = [&](int column) {
    const int words = WidthOfHeading(header, column);
    return needed <= room ? words : words * room / needed;
  };
  // A last column that is stretched to the list has nothing of its own to give to another room.
  const int stretched =
      given_room.has_value() && header.stretchLastSection() ? columns.front() : -1;
  std::erase(columns, stretched);
  int width = stretched < 0 ? 0 : least(stretched);
  for (const int column : columns) {
    table.setColumnWidth(column, std::max(table.columnWidth(column), least(column)));
    width += table.columnWidth(column);
  }
  std::stable_partition(columns.begin(), columns.end(),
                        [&](int column) { return column == giving; });
  for (const int column : columns) {
    const int spare = std::max(0, table.columnWidth(column) - least(column));
    const int taken = std::min(std::max(0, width - room), spare);
    table.setColumnWidth(column, table.columnWidth(column) - taken);
    width -= taken;
  }
}

void FitCaptions(QToolBar& bar, Qt::ToolButtonStyle with_captions) {
  // A bar that shows its captions is left alone while they fit: each change lays it out anew.
  if (bar.toolButtonStyle() != with_captions) bar.setToolButtonStyle(with_captions);
  if (bar.sizeHint().width() > bar.width()) bar.setToolButtonStyle(Qt::ToolButtonIconOnly);
}

void MakeOneStop(QTabWidget* tabs) {
  for (QToolButton* const button : tabs->tabBar()->findChildren<QToolButton*>()) {
    button->setFocusPolicy(Qt::NoFocus);
  }
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

void GoToBox(QWidget* box) {
  for (QWidget* page = box; page != nullptr; page = page->parentWidget()) {
    // Between a page and its tabs stands the stack of all pages.
    const QWidget* const stack = page->parentWidget();
    auto* const tabs =
        qobject_cast<QTabWidget*>(stack == nullptr ? nullptr : stack->parentWidget());
    if (tabs != nullptr && tabs->indexOf(page) >= 0) tabs->setCurrentWidget(page);
  }
  box->setFocus();
  if (auto* const line = qobject_cast<QLineEdit*>(box)) line->selectAll();
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

void AddKeysToTip(QAction* action, std::string_view keys) {
  if (keys.empty()) return;
  const QKeySequence sequence(QLatin1String(keys.data(), static_cast<qsizetype>(keys.size())));
  action->setToolTip(QStringLiteral("%1 (%2)").arg(action->toolTip(),
                                                   sequence.toString(QKeySequence::NativeText)));
}

}  // namespace kelvora
