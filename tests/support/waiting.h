// A program whose pointer counts how often it was told to show that one waits.
#pragma once

#include "support/test_program.h"

namespace kelvora {

struct CountingPointer : Pointer {
  int waits = 0;
  bool waiting = false;

 private:
  void Show(bool wait) override {
    if (wait) ++waits;
    waiting = wait;
  }
};

// The doubles and folders of `test`, with another pointer.
struct WaitingProgram {
  WaitingProgram() {
    program.texts = test.program.texts;
    program.settings = test.program.settings;
    program.paths = test.program.paths;
    program.windows.core = &test.core;
  }

  TestProgram test;
  CountingPointer pointer;
  Platform platform{test.boxes,    pointer,       test.locale,         test.folders,
                    test.clock,    test.screen,   test.events,         test.opener,
                    test.printers, test.printing, test.folder_chooser, test.transfers};
  Program program{platform};
};

}  // namespace kelvora
