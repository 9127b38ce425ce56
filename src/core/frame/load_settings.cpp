#include "core/frame/load_settings.h"

#include "language/common_texts.h"
#include "language/language_file.h"
#include "storage/settings_file.h"

namespace kelvora {
namespace {

void PrepareFirstRun(Program& program) {
  using namespace common_text;
  program.windows.core->ShowMainWindow();
  Apply_Default_Settings(program);
  Check_Language_Files(program);
  FallBackOnDefaultLanguage(program);
  LoadChosenLanguage(program);
  program.windows.core->Set_Taal();  // the main window stands behind the box for a while
  Tell(program, BoxIcon::information,
       JoinLines(program.texts,
                 {kFirstRunNotFound, kFirstRunProbably, std::nullopt, kFirstRunPressOk}));
  if (program.ending) return;
  program.windows.core->OpenSettings();
}

}  // namespace

void Load_Settings(Program& program) {
  if (!ReadSettingsFile(program)) PrepareFirstRun(program);
}

}  // namespace kelvora
