#include "platform/qt/qt_platform.h"

#include <algorithm>

#include <QAbstractButton>
#include <QApplication>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>
#include <QMessageBox>
#include <QProcess>
#include <QRegularExpression>
#include <QScreen>
#include <QStandardPaths>
#include <QUrl>

#include "platform/qt/guarded_application.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

QMessageBox::Icon IconOf(BoxIcon icon) {
  switch (icon) {
    case BoxIcon::none:
      return QMessageBox::NoIcon;
    case BoxIcon::information:
      return QMessageBox::Information;
    case BoxIcon::question:
      return QMessageBox::Question;
    case BoxIcon::warning:
      return QMessageBox::Warning;
    case BoxIcon::error:
      return QMessageBox::Critical;
  }
  return QMessageBox::NoIcon;
}

// The button that loses nothing stands first: it is the default and what Escape answers.
QMessageBox::StandardButton SafeButtonOf(BoxButtons buttons) {
  switch (buttons) {
    case BoxButtons::ok:
      return QMessageBox::Ok;
    case BoxButtons::yes_no:
      return QMessageBox::No;
    case BoxButtons::yes_no_cancel:
      return QMessageBox::Cancel;
  }
  return QMessageBox::Ok;
}

QMessageBox::StandardButtons ButtonsOf(BoxButtons buttons) {
  switch (buttons) {
    case BoxButtons::ok:
      return QMessageBox::Ok;
    case BoxButtons::yes_no:
      return QMessageBox::Yes | QMessageBox::No;
    case BoxButtons::yes_no_cancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
  }
  return QMessageBox::Ok;
}

// What closing a box without a choice answers.
BoxAnswer SafeAnswerOf(BoxButtons buttons) {
  switch (buttons) {
    case BoxButtons::ok:
      return BoxAnswer::ok;
    case BoxButtons::yes_no:
      return BoxAnswer::no;
    case BoxButtons::yes_no_cancel:
      return BoxAnswer::cancel;
  }
  return BoxAnswer::ok;
}

void SetCaptions(const QMessageBox& window, const std::vector<Text>& captions) {
  constexpr std::array kOrder = {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel};
  for (std::size_t i = 0; i < std::min(captions.size(), kOrder.size()); ++i) {
    QAbstractButton* const button = window.button(kOrder[i]);
    if (button == nullptr) continue;
    button->setText(CaptionFrom(captions[i]));
    button->setIcon({});  // that of a yes or a no
  }
}

QDateTime DateTimeOf(const LocalTime& time) {
  return {QDate(time.year, time.month, time.day), QTime(time.hour, time.minute, time.second)};
}

// Words of the system; nothing if text can't hold them.
Text TextOrNone(const QString& words) {
  return TextHolds(words) ? FromQt(words) : Text();
}

// A splash stands on top of everything; a box that comes up meanwhile goes on top as well, and the
// later one is the upper one.
bool SplashIsUp() {
  const QWidgetList windows = QApplication::topLevelWidgets();
  return std::ranges::any_of(windows, [](const QWidget* window) {
    return window->windowType() == Qt::SplashScreen && window->isVisible();
  });
}

QString ZipFiles() {
  return QStringLiteral("*.zip");
}

std::string Standard(QStandardPaths::StandardLocation location) {
  return QStandardPaths::writableLocation(location).toStdString();
}

}  // namespace

BoxAnswer QtBoxes::Show(const Box& box) {
  if (GuardedApplication::IsPainting()) {
    // No window comes up in the middle of painting; it follows as soon as that is done.
    QMetaObject::invokeMethod(
        qApp, [box] { QtBoxes().Show(box); }, Qt::QueuedConnection);
    return SafeAnswerOf(box.buttons);
  }
  // A box during a long operation must be usable with a normal pointer.
  const bool waiting = QApplication::overrideCursor() != nullptr;
  if (waiting) QApplication::setOverrideCursor(Qt::ArrowCursor);
  QMessageBox window(QApplication::activeWindow());
  window.setObjectName(QStringLiteral("message_box"));
  if (SplashIsUp()) window.setWindowFlag(Qt::WindowStaysOnTopHint);
  window.setWindowTitle(ToQt(box.title));
  window.setTextFormat(Qt::PlainText);
  window.setText(ToQtMessage(box.text));
  window.setIcon(IconOf(box.icon));
  window.setStandardButtons(ButtonsOf(box.buttons));
  SetCaptions(window, box.captions);
  window.setDefaultButton(SafeButtonOf(box.buttons));
  window.setEscapeButton(SafeButtonOf(box.buttons));
  const int answer = window.exec();
  if (waiting) QApplication::restoreOverrideCursor();
  switch (answer) {
    case QMessageBox::Yes:
      return BoxAnswer::yes;
    case QMessageBox::No:
      return BoxAnswer::no;
    case QMessageBox::Cancel:
      return BoxAnswer::cancel;
    case QMessageBox::Ok:
      return BoxAnswer::ok;
    default:  // the program ended under it
      return SafeAnswerOf(box.buttons);
  }
}

void QtPointer::Show(bool waiting) {
  if (waiting == waiting_) return;
  waiting_ = waiting;
  if (waiting) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
}

Text QtLocale::SystemDecimalSeparator() const {
  return FromQt(QLocale::system().decimalPoint());
}

Text QtLocale::DayMonthYear(const LocalTime& time) const {
  return FromQt(DateTimeOf(time).toString(QStringLiteral("dd/MM/yyyy")));
}

Text QtLocale::HourMinuteSecond(const LocalTime& time) const {
  return FromQt(DateTimeOf(time).toString(QStringLiteral("HH/mm/s")));
}

Text QtLocale::ShortDate(const LocalTime& time) const {
  return TextOrNone(QLocale::system().toString(DateTimeOf(time).date(), QLocale::ShortFormat));
}

Text QtLocale::ShortTime(const LocalTime& time) const {
  return TextOrNone(QLocale::system().toString(DateTimeOf(time).time(), QLocale::ShortFormat));
}

Text QtLocale::LongDatePattern() const {
  // Words between quotes, as in "d 'de' MMMM", are not letters of the pattern.
  static const QRegularExpression quoted(QStringLiteral("'[^']*'"));
  return FromQt(QLocale::system().dateFormat(QLocale::LongFormat).remove(quoted));
}

Text QtLocale::WeekdayName(const LocalTime& time) const {
  return TextOrNone(QLocale::system().toString(DateTimeOf(time), QStringLiteral("dddd")));
}

std::string QtFolders::ApplicationData() const {
  return Standard(QStandardPaths::GenericConfigLocation);
}

std::string QtFolders::Documents() const {
  return Standard(QStandardPaths::DocumentsLocation);
}

// The toolkit does not know this folder yet. A path that is not absolute counts as none.
std::string QtFolders::State() const {
  const QString named = qEnvironmentVariable("XDG_STATE_HOME");
  if (QDir::isAbsolutePath(named)) return named.toStdString();
  const QString home = QDir::homePath();
  return home.isEmpty() ? std::string() : (home + QStringLiteral("/.local/state")).toStdString();
}

std::string QtFolders::UserData() const {
  return Standard(QStandardPaths::GenericDataLocation);
}

std::string QtFolders::ProgramFolder() const {
  return QFileInfo(QCoreApplication::applicationFilePath()).canonicalPath().toStdString();
}

LocalTime QtClock::Now() const {
  const QDateTime now = QDateTime::currentDateTime();
  return {now.date().year(), now.date().month(),  now.date().day(),
          now.time().hour(), now.time().minute(), now.time().second()};
}

ScreenSize QtScreenSize::Size() const {
  const QScreen* const screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return {};
  const QSizeF pixels = QSizeF(screen->size()) * screen->devicePixelRatio();
  return {qRound(pixels.width()), qRound(pixels.height())};
}

bool QtOpener::Open(const std::string& address) {
  const QUrl url = QUrl::fromUserInput(QString::fromStdString(address));
  return url.isValid() && QDesktopServices::openUrl(url);
}

void QtOpener::OpenWithChosenProgram(const std::string& path) {
  const QString program = QFileDialog::getOpenFileName(
      QApplication::activeWindow(), QFileInfo(QString::fromStdString(path)).fileName(),
      QStringLiteral("/usr/bin"));
  if (!program.isEmpty()) QProcess::startDetached(program, {QString::fromStdString(path)});
}

bool QtOpener::Start(const CommandLine& command, const std::string& folder) {
  QStringList arguments;
  for (const std::string& argument : command.arguments) {
    arguments.append(QString::fromStdString(argument));
  }
  return QProcess::startDetached(QString::fromStdString(command.program), arguments,
                                 QString::fromStdString(folder));
}

std::optional<std::string> QtFolderChooser::Choose(const Text& prompt, const std::string& start) {
  const QString folder = QFileDialog::getExistingDirectory(
      QApplication::activeWindow(), ToQt(prompt), QString::fromStdString(start));
  if (folder.isEmpty()) return std::nullopt;
  return folder.toStdString();
}

std::optional<std::string> QtFolderChooser::ChooseNewZip(const Text& prompt,
                                                         const std::string& proposed) {
  const QFileInfo file(QString::fromStdString(proposed));
  QFileDialog dialog(QApplication::activeWindow(), ToQt(prompt), file.absolutePath(), ZipFiles());
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(QStringLiteral("zip"));
  dialog.selectFile(file.fileName());
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return dialog.selectedFiles().constFirst().toStdString();
}

std::optional<std::string> QtFolderChooser::ChooseZip(const Text& prompt,
                                                      const std::string& start) {
  const QString file = QFileDialog::getOpenFileName(QApplication::activeWindow(), ToQt(prompt),
                                                    QString::fromStdString(start), ZipFiles());
  if (file.isEmpty()) return std::nullopt;
  return file.toStdString();
}

void QtEvents::Yield() {
  constexpr int kLeastMilliseconds = 8;
  if (last_.elapsed() < kLeastMilliseconds) return;
  QCoreApplication::processEvents();
  last_.restart();
}

void QtEvents::End() {
  QCoreApplication::exit();
}

}  // namespace kelvora
