#include "nutrition/decimal_check.h"

#include "language/common_texts.h"

namespace kelvora {

void CheckDecimal(Program& program) {
  if (program.platform.locale.DecimalSeparator() == program.StartSeparator) return;
  // Windows that total the day one after the other need not say it each.
  if (!program.actions.FirstTime("separator changed")) return;
  using namespace common_text;
  const TextTables& texts = program.texts;
  Tell(program, BoxIcon::error,
       texts[kSeparatorChanged] + "\n" + texts[kSeparatorAtStart] + " " + program.StartSeparator +
           "\n\n" + JoinLines(texts, {kCannotContinue, kDoNotSave, kCloseAndStart}));
}

}  // namespace kelvora
