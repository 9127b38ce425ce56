// The food server of tests/support/food_server.py as a process of its own, and the real transfers
// that a test lets loose on it.
#pragma once

#include <gtest/gtest.h>

#include <QProcess>
#include <QTest>

#include "platform/qt/curl_transfers.h"

namespace kelvora {

class FoodServer {
 public:
  FoodServer() {
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_.start(QStringLiteral(KELVORA_PYTHON), {QStringLiteral(KELVORA_FOOD_SERVER)});
    constexpr int kLongest = 60'000;
    while (!lines_.contains("FULL") && process_.waitForReadyRead(kLongest)) Read();
    EXPECT_TRUE(lines_.contains("FULL")) << "the server did not start";
  }
  ~FoodServer() {
    process_.closeWriteChannel();
    process_.waitForFinished();
  }

  // The address of a host that behaves as `path` says, without a "/" at its end.
  [[nodiscard]] std::string Host(const char* path) const { return At("PORT") + "/" + path; }
  // One where nobody listens, one that can take no more connections, and one with a certificate
  // that nobody signed.
  [[nodiscard]] std::string Refusing() const { return At("REFUSES"); }
  [[nodiscard]] std::string Full() const { return At("FULL"); }
  [[nodiscard]] std::string Unsigned() const { return "https" + At("SECURE").substr(4); }
  // The port of the host, as in "Host: 127.0.0.1:port".
  [[nodiscard]] std::string Port() const { return lines_.value("PORT").toStdString(); }

  // The heads of the requests so far, once there are that many.
  std::vector<std::string> Requests(std::size_t count) {
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
          Read();
          return requests_.size() >= count;
        },
        60'000));
    return requests_;
  }

 private:
  [[nodiscard]] std::string At(const char* word) const {
    return "http://127.0.0.1:" + lines_.value(word).toStdString();
  }
  void Read() {
    while (process_.canReadLine()) {
      const QList<QByteArray> line = process_.readLine().trimmed().split(' ');
      if (line[0] == "REQUEST") {
        requests_.push_back(QByteArray::fromHex(line[1]).toStdString());
      } else {
        lines_[line[0]] = line[1];
      }
    }
  }

  QProcess process_;
  QMap<QByteArray, QByteArray> lines_;
  std::vector<std::string> requests_;
};

}  // namespace kelvora
