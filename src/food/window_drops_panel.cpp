#include "food/window_drops_panel.h"

#include <QDropEvent>
#include <QMimeData>

namespace kelvora {

WindowDrops::WindowDrops(QWidget* window, FoodTable* list) : QObject(window), list_(list) {
  TakeOn(window);
}

void WindowDrops::TakeOn(QWidget* widget) {
  widget->setAcceptDrops(true);
  widget->installEventFilter(this);
}

void WindowDrops::PassOn(QWidget* box) {
  passing_ << box;
  box->installEventFilter(this);
}

bool WindowDrops::eventFilter(QObject* object, QEvent* event) {
  const bool passes = passing_.contains(object);
  switch (event->type()) {
    case QEvent::DragEnter: {
      auto* const enter = static_cast<QDragEnterEvent*>(event);
      const bool taken = list_->Takes(enter->mimeData());
      if (passes) {
        if (!taken) return false;
        event->ignore();
        return true;
      }
      over_ = taken;
      list_->SetDropLight(taken);
      enter->setAccepted(taken);
      if (taken) enter->acceptProposedAction();
      return true;
    }
    case QEvent::DragMove: {
      if (passes) return false;
      auto* const move = static_cast<QDragMoveEvent*>(event);
      move->setAccepted(over_);
      if (over_) move->acceptProposedAction();
      return true;
    }
    case QEvent::DragLeave:
      if (passes) return false;
      over_ = false;
      list_->SetDropLight(false);
      return true;
    case QEvent::Drop: {
      if (passes) return false;
      auto* const drop = static_cast<QDropEvent*>(event);
      over_ = false;
      drop->acceptProposedAction();
      list_->TakeDrop(drop->mimeData());
      return true;
    }
    default:
      return false;
  }
}

}  // namespace kelvora
