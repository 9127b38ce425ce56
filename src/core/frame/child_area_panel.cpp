#include "core/frame/child_area_panel.h"

#include <algorithm>
#include <array>

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QLayout>
#include <QMenu>
#include <QPainter>

#include "platform/qt/look.h"

namespace kelvora {
namespace {

constexpr int kMarkSize = 220;
constexpr double kMarkOpacity = 0.14;

// A length that was not touched keeps the twips that a pixel can't tell.
void TakePixels(int pixels, int& twips) {
  const bool untouched = PixelsOfTwips(twips) == pixels || PixelsCovering(twips) == pixels;
  if (!untouched) twips = TwipsOfPixels(pixels);
}

}  // namespace

ChildArea::ChildArea(QWidget* parent) : QMdiArea(parent) {
  NameWidget(this, "child_area");
  setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

void ChildArea::paintEvent(QPaintEvent* event) {
  const QRect area = viewport()->rect();
  QPainter painter(viewport());
  const QColor base = palette().color(QPalette::Window);
  QLinearGradient ground(area.topLeft(), area.bottomLeft());
  ground.setColorAt(0, base.darker(104));
  ground.setColorAt(1, base.darker(114));
  painter.fillRect(event->rect(), ground);
  if (mark_.isNull()) {
    mark_ = IconNamed("kelvora-mark").pixmap(QSize(kMarkSize, kMarkSize), devicePixelRatioF());
  }
  painter.setOpacity(kMarkOpacity);
  painter.drawPixmap(area.center() - QPoint(kMarkSize / 2, kMarkSize / 2), mark_);
}

ChildFrame::ChildFrame(QWidget* content, WindowRecord* record, int place)
    : record_(record), place_(place) {
  setWidget(content);
  setAttribute(Qt::WA_DeleteOnClose);
  setObjectName(content->objectName() + QStringLiteral("_frame"));
}

void ChildFrame::MoveToRecord() {
  setGeometry(PixelsOfTwips(record_->left), PixelsOfTwips(record_->top),
              PixelsOfTwips(record_->width), PixelsOfTwips(record_->height));
}

bool ChildFrame::event(QEvent* event) {
  const bool handled = QMdiSubWindow::event(event);
  if (event->type() == QEvent::LayoutRequest) HoldContent();
  return handled;
}

void ChildFrame::resizeEvent(QResizeEvent* event) {
  QMdiSubWindow::resizeEvent(event);
  if (event->size().width() != event->oldSize().width()) HoldContent();
}

// A content that comes to need more, for another language or one more panel, gets it; a frame that
// grows for it stays in the area.
void ChildFrame::HoldContent() {
  if (widget() == nullptr || isMinimized() || isMaximized() || isShaded()) return;
  if (minimumSize() != held_) given_ = minimumSize();
  QSize least = minimumSizeHint();
  if (const QLayout* const inside = widget()->layout(); inside && inside->hasHeightForWidth()) {
    const int around = height() - widget()->height();
    const int lines = inside->minimumHeightForWidth(widget()->width());
    least.setHeight(std::max(least.height(), lines + around));
  }
  const QSize before = size();
  held_ = given_.expandedTo(least).boundedTo(maximumSize());
  setMinimumSize(held_);
  if (size() == before) return;
  const QPoint beyond = geometry().bottomRight() - parentWidget()->rect().bottomRight();
  move(std::min(x(), std::max(0, x() - beyond.x())), std::min(y(), std::max(0, y() - beyond.y())));
}

void ChildFrame::closeEvent(QCloseEvent* event) {
  const QRect place = isMinimized() || isMaximized() ? normalGeometry() : geometry();
  if (record_ != nullptr && place.isValid()) {
    TakePixels(place.width(), record_->width);
    TakePixels(place.height(), record_->height);
    TakePixels(place.x(), record_->left);
    TakePixels(place.y(), record_->top);
  }
  QMdiSubWindow::closeEvent(event);
}

void WordFrameMenu(QMdiSubWindow& frame) {
  // The toolkit's entries in their order, as its translations know them.
  constexpr std::array kEntries = {"&Restore",  "&Move",        "&Size", "Mi&nimize",
                                   "Ma&ximize", "Stay on &Top", "&Close"};
  QList<QAction*> actions = frame.systemMenu()->actions();
  actions.removeIf([](const QAction* action) { return action->isSeparator(); });
  if (actions.size() != static_cast<qsizetype>(kEntries.size())) return;
  for (std::size_t i = 0; i < kEntries.size(); ++i) {
    actions[static_cast<qsizetype>(i)]->setText(
        QCoreApplication::translate("QMdiSubWindow", kEntries[i]));
  }
}

void ChildFrame::TakeFocus() {
  mdiArea()->setActiveSubWindow(this);
  const bool has_favourite = !isMinimized() && widget()->focusProxy() != nullptr;
  (has_favourite ? widget() : this)->setFocus(Qt::ShortcutFocusReason);
}

void ChildFrame::TakeFocusByTab(bool next) {
  mdiArea()->setActiveSubWindow(this);
  std::vector<QWidget*> chain = Chain();
  if (!next) std::ranges::reverse(chain);
  const auto reason = next ? Qt::TabFocusReason : Qt::BacktabFocusReason;
  // With the reason of the Tab key the frame would hand the focus on.
  if (!FocusNextStop(chain, reason)) setFocus(Qt::OtherFocusReason);
}

// By itself the toolkit goes round within the frame for ever.
bool ChildFrame::focusNextPrevChild(bool next) {
  // As it closes there is nowhere to go.
  if (!isVisible() || widget() == nullptr) return QMdiSubWindow::focusNextPrevChild(next);
  std::vector<QWidget*> chain = Chain();
  if (!next) std::ranges::reverse(chain);
  const auto here = std::ranges::find(chain, QApplication::focusWidget());
  // In none of its controls the focus stands before the first.
  const bool at_frame = here == chain.end();
  if (at_frame && !next) chain.clear();
  if (!at_frame) chain.erase(chain.begin(), here + 1);
  if (!FocusNextStop(chain, next ? Qt::TabFocusReason : Qt::BacktabFocusReason)) {
    emit TabbedOut(next);
  }
  return true;
}

std::vector<QWidget*> ChildFrame::Chain() const {
  std::vector<QWidget*> chain;
  QWidget* const content = widget();
  QWidget* one = content;
  do {
    if (content == one || content->isAncestorOf(one)) chain.push_back(one);
    one = one->nextInFocusChain();
  } while (one != content);
  return chain;
}

bool ChildFrame::FocusNextStop(const std::vector<QWidget*>& chain, Qt::FocusReason reason) {
  const auto stop =
      std::ranges::find_if(chain, [this](const QWidget* widget) { return IsStop(*widget); });
  if (stop == chain.end()) return false;
  (*stop)->setFocus(reason);
  return true;
}

// What hands the focus on to another widget is none: that one is.
bool ChildFrame::IsStop(const QWidget& widget) const {
  return (widget.focusPolicy() & Qt::TabFocus) != 0 && widget.focusProxy() == nullptr &&
         widget.isEnabled() && widget.isVisibleTo(this);
}

}  // namespace kelvora
