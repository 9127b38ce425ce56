// A printing system of its own (support/print_server.py says what its queues are), and what it has
// printed as an independent reader finds it.
#pragma once

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QThread>
#include <QXmlStreamReader>

#include "platform/qt/cups_printers.h"
#include "support/test_program.h"

namespace kelvora {

inline constexpr int kPatience = 60'000;  // milliseconds, on the busiest machine

template <class Condition>
[[nodiscard]] bool Comes(Condition condition) {
  const QDeadlineTimer end(kPatience);
  while (!condition()) {
    if (end.hasExpired()) return false;
    QThread::msleep(10);
  }
  return true;
}

// What a command of the system writes.
inline QByteArray OutputOf(const QString& command, const QStringList& arguments) {
  QProcess process;
  process.start(command, arguments);
  EXPECT_TRUE(process.waitForFinished(kPatience)) << command.toStdString();
  EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
  return process.readAllStandardOutput();
}

// True if somebody answers at a local socket.
inline bool Listens(const std::string& place) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  place.copy(address.sun_path, sizeof address.sun_path - 1);
  const int client = socket(AF_UNIX, SOCK_STREAM, 0);
  const int result = connect(client, reinterpret_cast<sockaddr*>(&address), sizeof address);
  close(client);
  return result == 0;
}

// The printing system that the library meets from now on; the one before comes back at the end.
class ChosenServer {
 public:
  explicit ChosenServer(const std::string& server) : before_(qgetenv("CUPS_SERVER")) {
    qputenv("CUPS_SERVER", server.c_str());
  }
  ~ChosenServer() {
    if (before_.isNull()) {
      qunsetenv("CUPS_SERVER");
    } else {
      qputenv("CUPS_SERVER", before_);
    }
  }
  ChosenServer(const ChosenServer&) = delete;
  ChosenServer& operator=(const ChosenServer&) = delete;

 private:
  QByteArray before_;
};

enum class Queues { all, none };

class PrintServer {
 public:
  explicit PrintServer(Queues queues = Queues::all) {
    process_.setProcessChannelMode(QProcess::MergedChannels);
    QStringList arguments = {QStringLiteral(KELVORA_PRINT_SERVER),
                             QString::fromStdString(folder_.Path())};
    if (queues == Queues::none) arguments << QStringLiteral("--without-queues");
    process_.start(QStringLiteral("python3"), arguments);
    EXPECT_TRUE(Comes([&] { return Listens(folder_.Path("socket")); }))
        << process_.readAll().toStdString();
  }
  ~PrintServer() {
    process_.terminate();
    if (!process_.waitForFinished(kPatience)) process_.kill();
  }
  PrintServer(const PrintServer&) = delete;
  PrintServer& operator=(const PrintServer&) = delete;

  // The PDFs that a queue has printed, in the order of the jobs, as soon as there are `count`.
  [[nodiscard]] QStringList Printed(const QString& queue, int count = 1) const {
    const QDir folder(QString::fromStdString(folder_.Path("printed")));
    QStringList files;
    EXPECT_TRUE(Comes([&] {
      files = folder.entryList({queue + QStringLiteral("-*.pdf")}, QDir::Files, QDir::Time);
      return files.size() >= count;
    })) << "nothing was printed on "
        << queue.toStdString();
    for (QString& file : files) file = folder.filePath(file);
    return files;
  }
  // The documents of jobs that wait.
  [[nodiscard]] qsizetype Spooled() const {
    return QDir(QString::fromStdString(folder_.Path("spool")))
        .entryList({QStringLiteral("d*")}, QDir::Files)
        .size();
  }

 private:
  TemporaryFolder folder_;
  ChosenServer chosen_{folder_.Path("socket")};
  QProcess process_;
};

// A word of a PDF, its left and top edges in twips from the corner of the page.
struct PdfWord {
  QString text;
  double x;
  double y;
};

struct PdfPage {
  double width = 0;  // twips
  double height = 0;
  std::vector<PdfWord> words;
};

inline PdfPage ReadPdf(const QString& file) {
  constexpr double kTwipsOfPoint = 20;
  PdfPage page;
  QXmlStreamReader reader(
      OutputOf(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), file, QStringLiteral("-")}));
  const auto number = [&](const char* name) {
    return reader.attributes().value(QLatin1String(name)).toDouble() * kTwipsOfPoint;
  };
  int pages = 0;
  while (!reader.atEnd()) {
    if (reader.readNext() != QXmlStreamReader::StartElement) continue;
    if (reader.name() == QLatin1String("page")) {
      ++pages;
      page.width = number("width");
      page.height = number("height");
    } else if (reader.name() == QLatin1String("word")) {
      const double x = number("xMin");
      const double y = number("yMin");
      page.words.push_back({reader.readElementText(), x, y});
    }
  }
  EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
  EXPECT_EQ(pages, 1);
  return page;
}

// The names of the fonts in a PDF; each must be embedded and lead back to text.
inline QStringList FontsOf(const QString& file) {
  QStringList names;
  const QString table = QString::fromUtf8(OutputOf(QStringLiteral("pdffonts"), {file}));
  const QStringList lines = table.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
  for (const QString& line : lines.sliced(2)) {  // below the heading
    const QStringList fields = line.simplified().split(QLatin1Char(' '));
    // Name, kind in two words, encoding, embedded, subset, with a way back to text, object.
    EXPECT_EQ(fields.value(4) + fields.value(6), QStringLiteral("yesyes")) << line.toStdString();
    names << fields.value(0).section(QLatin1Char('+'), -1);
  }
  names.sort();
  return names;
}

}  // namespace kelvora
