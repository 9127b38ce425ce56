// The pop-up: what the splash screen shows when, and the lines of the About window. The splash is a
// show on a timer; it does not follow what the program really loads meanwhile.
#pragma once

#include <optional>
#include <string_view>

#include "core/program.h"

namespace kelvora {

// The text PopupMode says what the window is wanted as: "ok" is About, all else the splash.
inline constexpr std::string_view kAboutMode = "ok";
inline constexpr std::string_view kSplashMode = "";
[[nodiscard]] bool IsAbout(std::string_view PopupMode);

inline constexpr int kSplashTickMilliseconds = 150;
inline constexpr int kSplashTickStep = 10;  // what each tick adds to the counter
inline constexpr int kSplashEndMilliseconds = 1700;
inline constexpr int kLoadPictures = 5;

// What a tick changes; what is not set stays as it is.
struct SplashStep {
  std::optional<TextId> text;   // of `loader`
  std::optional<int> picture;   // 1 to kLoadPictures: the Loadpic that lights up
  std::optional<int> progress;  // of ProgressBar, in hundredths
  bool operator==(const SplashStep&) const = default;
};
[[nodiscard]] SplashStep StepOf(int counter);

struct AboutLines {
  Text lbl_nfo_1;  // version and number of starts
  Text lbl_nfo_4;  // use of the food server
  Text lbl_type;
};
[[nodiscard]] AboutLines AboutLinesOf(const Program& program);

}  // namespace kelvora
