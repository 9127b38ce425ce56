// What becomes of a text that is entered into a box: composed, and held to the rule of the box. The
// same for every kind of box.
#pragma once

#include <string>

#include <QString>

#include "core/program.h"
#include "core/text_entry.h"

namespace kelvora {

// How a box is filled. The texts word its hints, the locale has the decimal separator; both outlive
// the box.
struct EntryContext {
  const TextTables& texts;
  const Locale& locale;
};
[[nodiscard]] EntryContext EntryContextOf(const Program& program);

// What was not taken and must be told of.
struct LeftOut {
  std::u32string characters;  // that text can't hold, each once
  bool mark = false;          // a decimal mark, by a box for whole numbers
};

// What a box may hold after a change. Where nothing of what was entered is taken, it is what the
// box held before, and what was selected stays.
struct HeldChange {
  QString before;  // what stood in front and is as it was
  QString taken;   // stands up to the cursor
  QString behind;
  bool refused = false;
  bool cut = false;  // the end had no room
  LeftOut left_out;

  [[nodiscard]] QString Whole() const { return before + taken + behind; }
};

// What is entered stands before the cursor of the changed text; what stands behind it was there
// before.
[[nodiscard]] HeldChange HoldChange(const EntryRule& rule, const EntryContext& context,
                                    const QString& held, const QString& changed, qsizetype cursor);

}  // namespace kelvora
