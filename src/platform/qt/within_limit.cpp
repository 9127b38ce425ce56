#include "platform/qt/within_limit.h"

#include <QEventLoop>
#include <QTimer>

namespace kelvora {

void WaitWhileDrawing(Deadline deadline, const std::function<bool()>& is_ready) {
  constexpr int kMillisecondsBetweenLooks = 10;
  QEventLoop loop;
  QTimer looks;
  QObject::connect(&looks, &QTimer::timeout, &loop, [&] {
    if (is_ready() || std::chrono::steady_clock::now() >= deadline) loop.quit();
  });
  looks.start(kMillisecondsBetweenLooks);
  loop.exec(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace kelvora
