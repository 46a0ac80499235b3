#include "shell/always_on_top_file.h"

#include "shell/settings_files.h"

namespace zifferon {

AlwaysOnTopFile alwaysOnTopFile(const Settings& settings) {
    return {.write =
                [&settings](bool alwaysOnTop) {
                    settings.storing("visible.zfr", [&] { writeAlwaysOnTop(settings.files(), alwaysOnTop); });
                },
            .read =
                [&settings] {
                    try {
                        return readAlwaysOnTop(settings.files());
                    } catch (const FileFailure&) {
                        return false;
                    }
                }};
}

}  // namespace zifferon
