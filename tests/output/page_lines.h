// A printed page as lines that a test can spell out: "X Y FONT [text]" for a text and
// "X Y line to X Y" for a line. A font is its size and the letters b, i and u.
#pragma once

#include <gtest/gtest.h>

#include "nutrition/numbers.h"
#include "platform/printing.h"

namespace kelvora {

struct PageLines {
  std::string lines;

  void operator()(const PrintedText& text) {
    EXPECT_EQ(text.font.family, "Arial");
    lines += Str(text.x, ".") + " " + Str(text.y, ".") + " " + Str(text.font.points, ".") +
             (text.font.bold ? "b" : "") + (text.font.italic ? "i" : "") +
             (text.font.underline ? "u" : "") + " [" + Utf8FromText(text.text) + "]\n";
  }
  void operator()(const PrintedLine& line) {
    EXPECT_EQ(line.width, 10);  // half a point
    lines += Str(line.from_x, ".") + " " + Str(line.from_y, ".") + " line to " +
             Str(line.to_x, ".") + " " + Str(line.to_y, ".") + "\n";
  }
};

inline std::string LinesOf(const PrintedPage& page) {
  PageLines lines;
  for (const auto& operation : page) std::visit(lines, operation);
  return lines.lines;
}

}  // namespace kelvora
