// The document: logo, letterhead, tape and footer, as calls on the print device. Letterhead and footer stand
// once, at its two ends; the device fills the pages.
#pragma once

#include <functional>

#include "platform/messages.h"
#include "platform/print_device.h"
#include "print/kopf.h"

namespace zifferon {

// Prints the text of the tape in the type setting of that name; of an unknown name the font stays that of the
// letterhead. Throws PrintFailure and PrintStopped, and the document is unfinished then.
void printDocument(PrintDevice& device, const Kopf& kopf, TextView tape, TextView typeSetting);

// Runs the calls of a job. What does not come to its end is dropped; a failure is told, after `failed` has
// run.
void runPrintJob(
    PrintDevice& device, const Messages& messages, const std::function<void()>& job,
    const std::function<void()>& failed = [] {});

}  // namespace zifferon
