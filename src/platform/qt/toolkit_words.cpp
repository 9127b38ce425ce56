#include "platform/qt/toolkit_words.h"

#include <memory>

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace kelvora {

void UseToolkitWords(Language language) {
  const QString kName = QStringLiteral("toolkit_words");
  auto* const installed = QCoreApplication::instance()->findChild<QTranslator*>(kName);
  if (language == Language::english) {
    delete installed;  // that removes it
    return;
  }
  if (installed != nullptr) return;
  auto dutch = std::make_unique<QTranslator>();
  dutch->setObjectName(kName);
  if (!dutch->load(QStringLiteral("qtbase_nl"),
                   QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    return;
  }
  dutch->setParent(QCoreApplication::instance());
  QCoreApplication::installTranslator(dutch.release());
}

}  // namespace kelvora
