#include "shell/command_actions.h"

#include "storage/settings_files.h"

namespace zifferon {

void CommandActions::nextWindowMode() {
    p.modes.step();
    p.sounds.sizeChanged();
}

bool CommandActions::writeFormatMode() {
    return p.settings.store(settingsFile::format, p.window.state.formatMode);
}

void CommandActions::askSeparator() {
    p.settings.storing(settingsFile::decimalSeparator, [this] {
        zifferon::askSeparator(p.window.state, p.separator, p.settings.files(), p.messages);
    });
}

bool CommandActions::writeStartOptions(bool minimised) {
    const Place& place = p.window.place;
    return p.settings.storing("winstate.dat", [&] {
        zifferon::writeStartOptions(p.settings.files(),
                                    {.position = StartOptions::Position{place.left, place.top},
                                     .windowMode = p.modes.mode(),
                                     .minimised = minimised});
    });
}

}  // namespace zifferon
