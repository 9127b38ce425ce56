#include "platform/qt/toolkit_words.h"

#include <memory>

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QRegularExpression>
#include <QTranslator>

#include "platform/qt/text.h"

namespace kelvora {
namespace {

// The words of that language; null where the toolkit has none.
std::unique_ptr<QTranslator> WordsOf(const QString& code) {
  // What a user's own file gives for a code becomes part of a path.
  static const QRegularExpression kCode(QStringLiteral("^[A-Za-z]{2,3}(_[A-Za-z]{2})?$"));
  if (!kCode.match(code).hasMatch()) return nullptr;
  auto words = std::make_unique<QTranslator>();
  const bool found = words->load(QStringLiteral("qtbase_") + code,
                                 QLibraryInfo::path(QLibraryInfo::TranslationsPath));
  return found ? std::move(words) : nullptr;
}

}  // namespace

void UseToolkitWords(const Text& code) {
  const QString name = QStringLiteral("toolkit_words_") + ToQt(code);
  static const QRegularExpression kAnyName(QStringLiteral("^toolkit_words_"));
  auto* const application = QCoreApplication::instance();
  for (QTranslator* const installed : application->findChildren<QTranslator*>(kAnyName)) {
    if (installed->objectName() == name) return;
    delete installed;  // that removes it
  }
  std::unique_ptr<QTranslator> words = WordsOf(ToQt(code));
  if (words == nullptr) return;
  words->setObjectName(name);
  words->setParent(application);
  QCoreApplication::installTranslator(words.release());
}

}  // namespace kelvora
