#include "platform/qt/cell_tips.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QTextLayout>
#include <QToolTip>

namespace kelvora {
namespace {

constexpr int kMostLines = 10;
constexpr int kLetters = 60;  // in a line, of the usual width

}  // namespace

bool CellTips::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                         const QStyleOptionViewItem& option, const QModelIndex& index) {
  if (event->type() != QEvent::ToolTip || !index.isValid() || !IsCut(option, index)) return false;
  const QString text = index.data(Qt::DisplayRole).toString();
  QToolTip::showText(event->globalPos(), PlainTip(text), view->viewport(), option.rect);
  return true;
}

bool CellTips::IsCut(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  QStyleOptionViewItem cell = option;
  initStyleOption(&cell, index);
  const QStyle* const style = cell.widget != nullptr ? cell.widget->style() : QApplication::style();
  const QSize whole = style->sizeFromContents(QStyle::CT_ItemViewItem, &cell, {}, cell.widget);
  return whole.width() > option.rect.width();
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
