#include "days/popup.h"

#include <algorithm>

#include "language/popup_texts.h"

namespace kelvora {
namespace {

using namespace popup_text;

constexpr int kProgressEnd = 100;

struct ShowRow {
  int counter;
  TextId text;
  int picture;
};
constexpr std::array<ShowRow, kLoadPictures> kShow = {{
    {10, kLoadingSettings, 1},
    {40, kLoadingDatabases, 2},
    {50, kLoadingModules, 3},
    {70, kLoadingFiles, 4},
    {80, kStartingInterface, 5},
}};

}  // namespace

bool IsAbout(std::string_view PopupMode) {
  return PopupMode == kAboutMode;
}

SplashStep StepOf(int counter) {
  SplashStep step;
  const auto row = std::ranges::find(kShow, counter, &ShowRow::counter);
  if (row != kShow.end()) {
    step.text = row->text;
    step.picture = row->picture;
  }
  if (counter < kProgressEnd) step.progress = counter;
  return step;
}

AboutLines AboutLinesOf(const Program& program) {
  const TextTables& texts = program.texts;
  const Rec_Settings& settings = program.settings;
  const Text version(VersionText);
  return {
      .lbl_nfo_1 = version + " " + texts[kStarted] + " " + settings[Setting::StartCount] + " " +
                   texts[kTimes],
      .lbl_nfo_4 = texts[kSearched] + " " + settings[Setting::SearchCount] + " " +
                   texts[kSubmitted] + " " + settings[Setting::SubmitCount],
      .lbl_type = version + " " + texts[kProductSuffix],
  };
}

}  // namespace kelvora
