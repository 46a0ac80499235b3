// The captions of the main window and of the letterhead window in both languages. The designed ones are
// German.
#pragma once

#include "print/kopf.h"
#include "shell/pultform.h"

namespace zifferon {

// The captions that an English start sets; a German one keeps the designed ones.
void setEnglishCaptions(Pultform& window, Kopf& kopf);

// Those that a change of the language sets; a few differ from those of a start. Access keys change with them.
void changeCaptions(Pultform& window, Kopf& kopf, Language language);

}  // namespace zifferon
