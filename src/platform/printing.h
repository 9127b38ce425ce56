// Putting a page on paper: a list of texts and lines, each with its place, played on one printer of
// the user's system. What stands where is decided before; nothing here clips, wraps or moves it.
//
// Places are in twips (1440 to the inch) from the top left corner of the sheet, right and down.
#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "core/text.h"

namespace kelvora {

struct PrintFont {
  std::string_view family;
  double points = 0;
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool operator==(const PrintFont&) const = default;
};

// A run of text in one font. The place is the top left corner of its cell: as far above the base
// line as the font ascends.
struct PrintedText {
  PrintFont font;
  double x = 0;
  double y = 0;
  Text text;
  bool operator==(const PrintedText&) const = default;
};

// A straight line; half its width lies on either side.
struct PrintedLine {
  double from_x = 0;
  double from_y = 0;
  double to_x = 0;
  double to_y = 0;
  double width = 0;
  bool operator==(const PrintedLine&) const = default;
};

using PrintedPage = std::vector<std::variant<PrintedText, PrintedLine>>;

// The sheet that a printer takes when nothing else is asked for, and the margins it can't reach.
struct Sheet {
  double width = 0;
  double height = 0;
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;
  std::string medium{};  // what the printing system calls it
};

struct PrintJob {
  Text printer;  // its device name
  Text title;
  Sheet sheet;
  PrintedPage page;
};

// Both routines throw what the printing system says, and std::errc::timed_out where it says nothing
// for too long; neither takes longer than that, and the screen is drawn meanwhile.
class Printing {
 public:
  virtual ~Printing() = default;
  [[nodiscard]] virtual Sheet SheetOf(const Text& printer) = 0;
  // Comes back when the printing system has taken the page over, which is before it is on paper.
  virtual void Print(const PrintJob& job) = 0;
};

}  // namespace kelvora
