#include "internet/submission.h"

#include "language/new_food_texts.h"

namespace kelvora {

void SubmitFood(Program& program) {
  using namespace new_food_text;
  program.platform.boxes.Show({.title = program.texts[kSendErrorTitle],
                               .text = JoinLines(program.texts, {kSendError, kSendErrorCheck}),
                               .icon = BoxIcon::error});
}

}  // namespace kelvora
