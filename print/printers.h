// The printers by name.
#pragma once

#include "platform/combo_box.h"
#include "platform/print_device.h"

namespace zifferon {

// Makes the printers the rows of a combo box, and chooses the current one. Returns what the box shows then.
Text GetPrinters(ComboBox& combo, PrintDevice& device);

// Makes the printer of that name the current one; false where there is none. Throws PrintFailure.
bool selectPrinter(TextView name, PrintDevice& device);

}  // namespace zifferon
