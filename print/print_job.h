// The document: logo, letterhead, tape and footer, as calls on the print device. Letterhead and footer stand
// once, at its two ends; the device fills the pages.
#pragma once

#include "platform/print_device.h"
#include "print/kopf.h"

namespace zifferon {

// Prints the text of the tape in the type setting of that name; of an unknown name the font stays that of the
// letterhead. Throws PrintFailure and PrintStopped, and the document is unfinished then.
void printDocument(PrintDevice& device, const Kopf& kopf, TextView tape, TextView typeSetting);

}  // namespace zifferon
