// Message boxes. The logic decides when one appears, what it says and what an answer means.
#pragma once

#include <vector>

#include "core/text.h"

namespace kelvora {

enum class BoxIcon { none, information, question, warning, error };
enum class BoxButtons { ok, yes_no, yes_no_cancel };
enum class BoxAnswer { ok, yes, no, cancel };

// Text is Windows-1252, its lines separated by "\n".
struct Box {
  Text title;
  Text text;
  BoxIcon icon = BoxIcon::none;
  BoxButtons buttons = BoxButtons::ok;
  // What the buttons say instead of their usual words: yes, no and cancel, as far as there are any.
  std::vector<Text> captions{};
};

class Boxes {
 public:
  virtual ~Boxes() = default;
  // Shows the box and waits. Closing it without a choice answers no, cancel or ok, whichever loses
  // nothing; that one is the default button of a question.
  virtual BoxAnswer Show(const Box& box) = 0;
};

}  // namespace kelvora
