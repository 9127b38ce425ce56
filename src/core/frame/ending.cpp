#include "core/frame/ending.h"

#include "storage/recovery_copy.h"

namespace kelvora {

void EndAsAsked(Program& program) {
  if (!program.ending && !program.recovery.session_ends) {
    // What counts as no change was not asked about.
    program.day.FileChanged ? RemoveRecoveryCopy(program) : BringRecoveryCopyUpToDate(program);
  }
  EndProgram(program);
}

void EndBySignal(Program& program) {
  BringRecoveryCopyUpToDate(program);
  EndProgram(program);
}

void PrepareForSessionEnd(Program& program) {
  BringRecoveryCopyUpToDate(program);
  program.recovery.session_ends = true;
}

void TakeSessionAsGoingOn(Program& program) {
  program.recovery.session_ends = false;
}

}  // namespace kelvora
