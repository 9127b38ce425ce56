#include "internet/update.h"

namespace kelvora {

void CheckForUpdateOnce(Program&) {}

}  // namespace kelvora
