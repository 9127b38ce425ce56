// Must not compile: the logic has no way to Qt. A test builds this file and expects the failure.
#include <QString>
