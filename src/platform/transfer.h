// Plain HTTP: a GET of an address exactly as it stands, whose reply is fetched in chunks of bytes.
#pragma once

#include <functional>
#include <memory>
#include <string>

namespace kelvora {

// How a GET ends, by the number of its state: with a reply, whatever its status, or without one.
enum class TransferState { error = 11, completed = 12 };

// A GET that is under way or has ended. One that goes while it is under way is cancelled: nothing
// more is heard of it.
class Transfer {
 public:
  virtual ~Transfer() = default;
  // The next bytes of the reply, once it is completed; none behind its end.
  [[nodiscard]] virtual std::string GetChunk() = 0;
  // Why there is no reply, in the words of the component.
  [[nodiscard]] virtual std::string ResponseText() const = 0;
};

class Transfers {
 public:
  using OnState = std::function<void(TransferState)>;

  virtual ~Transfers() = default;
  // Sends a GET. The bytes behind the host of `address` go out as they stand, blanks and all; it
  // must hold no line break and no NUL. `on_state` is called once, by the event loop and never from
  // within this call, unless the transfer goes before; it may let the transfer go.
  [[nodiscard]] virtual std::unique_ptr<Transfer> Get(const std::string& address,
                                                      OnState on_state) = 0;
  // True if the machine has a network: an interface besides the loopback is up.
  [[nodiscard]] virtual bool NetworkIsUp() const = 0;
};

}  // namespace kelvora
