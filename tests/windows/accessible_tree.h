// What a screen reader sees of a window.
#pragma once

#include <functional>

#include <QAccessible>
#include <QApplication>
#include <QWidget>

namespace kelvora {

// Each object that can be seen, those of a window's own before what they hold. An object that is no
// longer valid comes as null.
inline void VisitAccessible(QAccessibleInterface* node, int depth,
                            const std::function<void(QAccessibleInterface*, int)>& visit) {
  if (node == nullptr || !node->isValid()) return visit(nullptr, depth);
  if (node->state().invisible) return;
  visit(node, depth);
  for (int i = 0; i < node->childCount(); ++i) VisitAccessible(node->child(i), depth + 1, visit);
}

inline void VisitAccessible(QWidget& window,
                            const std::function<void(QAccessibleInterface*, int)>& visit) {
  QApplication::processEvents();
  VisitAccessible(QAccessible::queryAccessibleInterface(&window), 0, visit);
}

// A line for each object: its role, its name and its value, as deep as it stands.
inline QStringList AccessibleTree(QWidget& window) {
  QStringList lines;
  VisitAccessible(window, [&lines](QAccessibleInterface* node, int depth) {
    const QString place(2 * depth, ' ');
    if (node == nullptr) {
      lines << place + QStringLiteral("dead");
      return;
    }
    lines << QStringLiteral("%1%2 | %3 | %4")
                 .arg(place, QString::number(node->role()), node->text(QAccessible::Name),
                      node->text(QAccessible::Value));
  });
  return lines;
}

}  // namespace kelvora
