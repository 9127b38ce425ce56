#include "core/frame/environment.h"

#include "language/common_texts.h"
#include "language/main_texts.h"

namespace kelvora {

using namespace common_text;

namespace {

constexpr std::string_view kTerminators = "½¾"_w;

}  // namespace

void CheckScreenResolution(Program& program) {
  constexpr int kLeastWidth = 1024;
  const ScreenSize size = program.platform.screen.Size();
  if (size.width >= kLeastWidth) return;
  const TextTables& texts = program.texts;
  const Text text =
      texts[kResolutionIs] + " " + std::to_string(size.width) + "x" + std::to_string(size.height) +
      "\n" +
      JoinLines(texts, {kResolutionAdvice, std::nullopt, kResolutionChange, kResolutionWhere});
  program.platform.boxes.Show(
      {.title = texts[main_text::kScreenWarningTitle], .text = text, .icon = BoxIcon::error});
}

void CheckSeparatorIsValid(Program& program) {
  const Text separator = program.platform.locale.SystemDecimalSeparator();
  if (separator == "," || separator == ".") return;
  const TextTables& texts = program.texts;
  Tell(program, BoxIcon::error,
       texts[kSeparatorIs] + " " + separator + "\n" +
           JoinLines(texts, {kCannotContinue, std::nullopt, kSeparatorMustBe, kCannotUse}));
}

void CheckHalfCharacter(Program& program) {
  program.store.txt_testdata = kTerminators;
  WarnUnlessTerminators(program, program.store.txt_testdata);
}

void WarnUnlessTerminators(Program& program, std::string_view read_back) {
  if (read_back == kTerminators) return;
  const TextTables& texts = program.texts;
  program.platform.boxes.Show({.title = texts[kHalfClose],
                               .text = JoinLines(texts, {kHalfNotDisplayed, kHalfNeeded,
                                                         kHalfErrors, std::nullopt, kHalfClose}),
                               .icon = BoxIcon::error});
}

}  // namespace kelvora
