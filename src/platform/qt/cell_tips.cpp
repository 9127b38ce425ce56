#include "platform/qt/cell_tips.h"

#include <algorithm>

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QTextLayout>
#include <QToolTip>

#include "platform/qt/contrast.h"

namespace kelvora {
namespace {

constexpr int kMostLines = 10;
constexpr int kLetters = 60;  // in a line, of the usual width

const QStyle& StyleOf(const QStyleOptionViewItem& cell) {
  return cell.widget != nullptr ? *cell.widget->style() : *QApplication::style();
}

}  // namespace

void CellTips::paint(QPainter* painter, const QStyleOptionViewItem& option,
                     const QModelIndex& index) const {
  const QString second = index.data(kSecondLineRole).toString();
  if (second.isEmpty()) return QStyledItemDelegate::paint(painter, option, index);
  QStyleOptionViewItem cell = option;
  initStyleOption(&cell, index);
  const QStyle& style = StyleOf(cell);
  const QRect words = style.subElementRect(QStyle::SE_ItemViewItemText, &cell, cell.widget);
  const QString first = cell.text;
  cell.text.clear();
  style.drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);

  const bool chosen = cell.state.testFlag(QStyle::State_Selected);
  const auto group =
      !cell.state.testFlag(QStyle::State_Active) ? QPalette::Inactive : QPalette::Active;
  const auto colour = [&](QPalette::ColorRole role) { return cell.palette.color(group, role); };
  const QColor letters = colour(chosen ? QPalette::HighlightedText : QPalette::Text);
  const bool striped = cell.features.testFlag(QStyleOptionViewItem::Alternate);
  const QColor ground = colour(chosen    ? QPalette::Highlight
                               : striped ? QPalette::AlternateBase
                                         : QPalette::Base);
  const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, &cell, cell.widget) + 1;
  const int line = cell.fontMetrics.height();
  QRect place(words.left() + margin, option.rect.center().y() + 1 - line,
              words.width() - 2 * margin, line);
  painter->save();
  painter->setFont(cell.font);
  const auto draw = [&](const QString& text, const QColor& pen) {
    painter->setPen(pen);
    painter->drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                      cell.fontMetrics.elidedText(text, Qt::ElideRight, place.width()));
    place.translate(0, line);
  };
  draw(first, letters);
  draw(second, HintColour(letters, ground));
  painter->restore();
}

bool CellTips::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                         const QStyleOptionViewItem& option, const QModelIndex& index) {
  if (event->type() != QEvent::ToolTip || !index.isValid() || !IsCut(option, index)) return false;
  QString text = index.data(Qt::DisplayRole).toString();
  const QString second = index.data(kSecondLineRole).toString();
  if (!second.isEmpty()) text += QLatin1Char('\n') + second;
  QToolTip::showText(event->globalPos(), PlainTip(text), view->viewport(), option.rect);
  return true;
}

bool CellTips::IsCut(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  QStyleOptionViewItem cell = option;
  initStyleOption(&cell, index);
  const auto needed = [&](const QString& text) {
    cell.text = text;
    return StyleOf(cell).sizeFromContents(QStyle::CT_ItemViewItem, &cell, {}, cell.widget).width();
  };
  return std::max(needed(cell.text), needed(index.data(kSecondLineRole).toString())) >
         option.rect.width();
}

QString PlainTip(const QString& text) {
  const QFont font = QToolTip::font();
  // The layout takes no "\n" for the end of a line.
  QTextLayout layout(QString(text).replace('\n', QChar::LineSeparator), font);
  QTextOption wrapping;
  wrapping.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout.setTextOption(wrapping);
  QStringList lines;
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    if (lines.size() == kMostLines) {
      lines.back() = lines.back().chopped(1) + QChar(0x2026);
      break;
    }
    line.setLineWidth(kLetters * QFontMetrics(font).averageCharWidth());
    lines << text.mid(line.textStart(), line.textLength()).remove('\n');
  }
  layout.endLayout();
  // A tip that looks like markup would be taken for it; so all of them are markup.
  return QStringLiteral("<p style='white-space:pre'>%1</p>")
      .arg(lines.join(QLatin1Char('\n')).toHtmlEscaped());
}

}  // namespace kelvora
