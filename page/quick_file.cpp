#include "page/quick_file.h"

namespace zifferon {

void QuickFile::restore() {
    try {
        readRecord(files_, "quicksave.zfr", record_);
        return apply();
    } catch (const FileFailure&) {
        // Told below.
    } catch (const RecordFailure&) {
        // Told below.
    }
    messages_.warn({u"quicksave.zfr: Die gespeicherte Rechnung konnte nicht gelesen werden.   ",
                    u"quicksave.zfr: The stored calculation could not be read.   "});
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
}

}  // namespace zifferon
