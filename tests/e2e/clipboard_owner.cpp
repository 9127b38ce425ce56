// Holds a text on the clipboard, as another program does from which somebody copies. The argument
// is the text in UTF-8; says "ready" when it can be pasted, and lives until it is ended.
#include <cstdio>

#include <QClipboard>
#include <QGuiApplication>
#include <QTimer>

int main(int argc, char** argv) {
  QGuiApplication application(argc, argv);
  if (argc != 2) return 2;
  QGuiApplication::clipboard()->setText(QString::fromUtf8(argv[1]));
  QTimer::singleShot(0, [] {
    std::puts("ready");
    std::fflush(stdout);
  });
  return QGuiApplication::exec();
}
