#include "platform/qt/menu_letter.h"

namespace kelvora {

QString WithMnemonic(const QString& title, QString& taken) {
  for (qsizetype i = 0; i < title.size(); ++i) {
    if (!title[i].isLetter() || taken.contains(title[i], Qt::CaseInsensitive)) continue;
    taken += title[i];
    return QString(title).insert(i, '&');
  }
  return title;
}

}  // namespace kelvora
