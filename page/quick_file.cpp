#include "page/quick_file.h"

#include "core/open_prompt.h"

namespace zifferon {

namespace {

const std::string fileName = "quicksave.zfr";

}  // namespace

void QuickFile::wire() {
    buttons_.Save.onClick = [this] { quickSave(); };
    buttons_.load.onClick = [this] { quickLoad(); };
}

void QuickFile::restore() {
    if (!read()) {
        messages_.warn({u"quicksave.zfr: Die gespeicherte Rechnung konnte nicht gelesen werden.   ",
                        u"quicksave.zfr: The stored calculation could not be read.   "});
    }
    if (s.checkrnd.caption.empty()) s.checkrnd.caption = u"&RND 2";
    if (s.zwischen.empty()) s.zwischen.setText(u"0");
}

bool QuickFile::read() {
    try {
        readRecord(files_, fileName, record_);
        apply();
        return true;
    } catch (const FileFailure&) {
        return false;
    } catch (const RecordFailure&) {
        return false;
    }
}

void QuickFile::quickSave() {
    closeOpenPrompt(s);
    s.calls->beep();
    gatherRecord(record_);
    gatherSwitches(record_);
    gatherRounding(record_);
    try {
        writeRecord(files_, fileName, record_);
        messages_.tell(
            {u"Die Einstellungen wurden erfolgreich gespeichert und werden   \r\n"
             u"beim nächsten Aufruf von Zifferon PRO automatisch geladen.   ",
             u"The settings have been saved and will be restored automatically \r\n"
             u"after reloading Zifferon PRO."});
    } catch (const FileFailure&) {
        messages_.fail({u"quicksave.zfr: Die Rechnung konnte nicht gespeichert werden.   ",
                        u"quicksave.zfr: The calculation could not be saved.   "});
    }
    s.calls->focusEntry();
}

// What cannot be read leaves the calculation as it is, but its steps can no longer be undone.
void QuickFile::quickLoad() {
    const bool confirmed =
        messages_.confirmLoss({u"Dieser Vorgang kann mit der Undo-Funktion nicht mehr rückgängig  \r\n"
                               u"gemacht werden. Die vorangegangenen Rechnungen gehen verloren. \r\n"
                               u"Möchten Sie trotzdem fortsetzen?   ",
                               u"This operation can´t be undone. The previous calculations   \r\n"
                               u"will get lost! Do you want to proceed?"});
    if (!confirmed) return s.calls->focusEntry();
    undo_.emptyFolder();
    restore();
    s.calls->focusEntry();
    if (s.anzeige.empty()) s.tapeDirty = false;
    undo_.begin();
}

void QuickFile::apply() {
    applyCells(record_);
    s.clipcheck.setTicked(record_.recordClipboard == 1);
    applyFields(record_);
    s.Checkob.setTicked(record_.recordAlwaysOnTop == 1);
    s.Checksound.setTicked(record_.recordSound == 1);
    s.checkrnd.setTicked(record_.recordRoundingTick == 1);
    s.checkrnd.caption = record_.recordRoundingCaption.toText(s.separators());
    applyVariables(record_);
    forgetPrompts(s);
}

}  // namespace zifferon
