#include "print/printers.h"

#include <algorithm>

namespace zifferon {

void GetPrinters(ComboBox& combo, PrintDevice& device) {
    for (const Text& name : device.printerNames()) combo.rows.push_back(name);
    const Text current = device.deviceName();
    if (std::find(combo.rows.begin(), combo.rows.end(), current) != combo.rows.end()) combo.setText(current);
}

bool selectPrinter(TextView name, PrintDevice& device) {
    const std::vector<Text> names = device.printerNames();
    if (std::find(names.begin(), names.end(), name) == names.end()) return false;
    device.setPrinter(name);
    return true;
}

}  // namespace zifferon
