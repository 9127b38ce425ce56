// What can be read on a window, its tips and the names that are read aloud included.
#pragma once

#include <vector>

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMenu>
#include <QStatusBar>
#include <QTabBar>
#include <QTableView>

namespace kelvora {

struct Shown {
  QString where;
  QString text;
};

// Everything that can be read on a widget, its tips and the names that are read aloud included.
inline void CollectTexts(const QWidget& widget, std::vector<Shown>& shown) {
  const auto add = [&](const QString& text) {
    if (!text.isEmpty()) shown.push_back({widget.objectName(), text});
  };
  // The menu of a child window's frame and the arrows of a tab strip that is too long are Qt's own,
  // in English or Dutch.
  if (qobject_cast<const QTabBar*>(widget.parentWidget()) != nullptr) return;
  if (qobject_cast<const QMenu*>(&widget) != nullptr &&
      qobject_cast<const QMdiSubWindow*>(widget.parentWidget()) != nullptr) {
    return;
  }
  add(widget.windowTitle());
  add(widget.toolTip());
  add(widget.statusTip());
  add(widget.accessibleName());
  add(widget.accessibleDescription());
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) add(label->text());
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) add(button->text());
  if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) add(group->title());
  if (const auto* menu = qobject_cast<const QMenu*>(&widget)) add(menu->title());
  if (const auto* bar = qobject_cast<const QStatusBar*>(&widget)) add(bar->currentMessage());
  if (const auto* edit = qobject_cast<const QLineEdit*>(&widget)) add(edit->placeholderText());
  if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) {
    for (int i = 0; i < tabs->count(); ++i) {
      add(tabs->tabText(i));
      add(tabs->tabToolTip(i));
    }
  }
  if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
    add(combo->placeholderText());
    // The names of files and printers are data.
    if (combo->objectName() == QStringLiteral("Combo_taal")) return;
    for (int i = 0; i < combo->count(); ++i) add(combo->itemText(i));
  }
  if (const auto* table = qobject_cast<const QTableView*>(&widget); table && table->model()) {
    for (int i = 0; i < table->model()->columnCount(); ++i) {
      add(table->model()->headerData(i, Qt::Horizontal).toString());
    }
  }
  if (qobject_cast<const QMdiSubWindow*>(&widget) != nullptr) return;
  for (const QAction* action : widget.actions()) {
    add(action->text());
    add(action->toolTip());
  }
}

inline std::vector<Shown> AllTexts(const QWidget& root) {
  std::vector<Shown> shown;
  CollectTexts(root, shown);
  for (const QWidget* widget : root.findChildren<QWidget*>()) CollectTexts(*widget, shown);
  return shown;
}

}  // namespace kelvora
