// A page while it is written, text by text and line by line. Places as in platform/printing.h; the
// columns of a page follow its width.
#pragma once

#include <utility>

#include "platform/printing.h"

namespace kelvora {

// Every page uses one family.
inline constexpr std::string_view kPageFamily = "Arial";
inline constexpr PrintFont kPageText{.family = kPageFamily, .points = 10};
inline constexpr PrintFont kPageBold{.family = kPageFamily, .points = 10, .bold = true};
inline constexpr PrintFont kPageHeading{
    .family = kPageFamily, .points = 10, .bold = true, .italic = true};
inline constexpr PrintFont kPageFoot{
    .family = kPageFamily, .points = 6, .bold = true, .italic = true};

// Where every page begins from the left.
inline constexpr double kPageLeft = 200;

class PageWriter {
 public:
  // `width` is that of the sheet.
  explicit PageWriter(double width) : right_(width - 300), columns_(width - 700) {}

  [[nodiscard]] double Right() const { return right_; }
  // The place of a column: a fraction of the width that the columns have.
  [[nodiscard]] double Column(double fraction) const { return fraction * columns_; }

  void Write(const PrintFont& font, double x, double y, Text text) {
    page_.emplace_back(PrintedText{font, x, y, std::move(text)});
  }
  // A line across the page.
  void Rule(double y) {
    constexpr double kHalfAPoint = 10;
    page_.emplace_back(PrintedLine{kPageLeft, y, right_, y, kHalfAPoint});
  }
  [[nodiscard]] PrintedPage Take() { return std::move(page_); }

 private:
  double right_;
  double columns_;
  PrintedPage page_;
};

}  // namespace kelvora
