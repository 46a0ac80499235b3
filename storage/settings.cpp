#include "storage/settings.h"

#include "storage/settings_files.h"
#include "storage/write_protection.h"

namespace zifferon {

bool Settings::store(const std::string& file, float value) const {
    return storing(file, [&] { writeSingle(files_, file, value); });
}

bool Settings::storing(const std::string& file, const std::function<void()>& write) const {
    try {
        write();
        return true;
    } catch (const FileFailure&) {
        tellUnsaved(messages_, file);
        return false;
    }
}

}  // namespace zifferon
