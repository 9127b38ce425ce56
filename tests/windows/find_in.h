// Finding what a window holds by its name, as tests do.
#pragma once

#include <stdexcept>

#include <QString>
#include <QWidget>

namespace kelvora {

// Throws where there is none, since a test can't go on without it.
template <class Kind>
Kind* FindIn(const QWidget& window, const QString& name) {
  Kind* const found = window.findChild<Kind*>(name);
  if (found == nullptr) throw std::runtime_error(name.toStdString());
  return found;
}

}  // namespace kelvora
