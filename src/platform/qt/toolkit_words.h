// The toolkit's own words, those on the buttons of boxes and in the menus of text boxes, in the
// language of the program and not in that of the system.
#pragma once

#include "core/text.h"

namespace kelvora {

// Lets them take effect at once, for a language by its code ("nl"). English is what the toolkit
// speaks by itself, and where it has no words of that language.
void UseToolkitWords(const Text& code);

}  // namespace kelvora
