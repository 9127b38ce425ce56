// Everything outside the program that the logic asks for, in one place. The real one stands in
// platform/qt, that of the tests in tests/support. Files are not here: they are standard C++.
#pragma once

#include "platform/boxes.h"
#include "platform/clock.h"
#include "platform/events.h"
#include "platform/folder_chooser.h"
#include "platform/folders.h"
#include "platform/locale.h"
#include "platform/opener.h"
#include "platform/pointer.h"
#include "platform/printers.h"
#include "platform/printing.h"
#include "platform/screen.h"
#include "platform/transfer.h"

namespace kelvora {

struct Platform {
  Boxes& boxes;
  Pointer& pointer;
  Locale& locale;
  Folders& folders;
  Clock& clock;
  Screen& screen;
  Events& events;
  Opener& opener;
  Printers& printers;
  Printing& printing;
  FolderChooser& folder_chooser;
  Transfers& transfers;
};

}  // namespace kelvora
