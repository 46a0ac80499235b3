#include "print/printers.h"

#include <algorithm>

namespace zifferon {

Text GetPrinters(ComboBox& combo, PrintDevice& device) {
    combo.rows = device.printerNames();
    const Text current = device.deviceName();
    if (std::find(combo.rows.begin(), combo.rows.end(), current) != combo.rows.end()) combo.setText(current);
    return combo.text();
}

bool selectPrinter(TextView name, PrintDevice& device) {
    const std::vector<Text> names = device.printerNames();
    if (std::find(names.begin(), names.end(), name) == names.end()) return false;
    device.setPrinter(name);
    return true;
}

}  // namespace zifferon
