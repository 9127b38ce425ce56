// The toolkit's own words, those on the buttons of boxes and in the menus of text boxes, in the
// language of the program and not in that of the system.
#pragma once

#include "language/own_texts.h"

namespace kelvora {

// Lets them take effect at once. English is what the toolkit speaks by itself.
void UseToolkitWords(Language language);

}  // namespace kelvora
