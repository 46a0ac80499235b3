#include "memory/undo.h"

#include <utility>

namespace zifferon {

Undo::Undo(CalculatorState& state, MemoryState& memory, CalculationRecord& record, Machine& machine,
           const Messages& messages)
    : s(state),
      memory_(memory),
      machine_(machine),
      messages_(messages),
      record_(record),
      snapshots_(machine.files) {}

void Undo::begin() {
    s.undoCounter = 0;
    writeSnapshotFile();
}

void Undo::takeUndoSnapshot() {
    kept_.reset();
    if (std::exchange(s.undoStepPending, false)) s.undoCounter += 1;
    if (!s.tapeEmptied && !s.specialSnapshotLatch && s.undoActive) {
        s.undoCounter += 1;
        writeSnapshotFile();
    }
    s.specialSnapshotLatch = false;
}

void Undo::writeSnapshotFile() {
    gatherRecord(record_);
    gatherSwitches(record_);
    try {
        snapshots_.write(s.undoCounter, EncodedRecord(record_));
    } catch (const FileFailure&) {
        messages_.fail(
            {u"Zu wenig Arbeitsspeicher zur Auslagerung der temporären   \r\n"
             u"Daten vorhanden. Löschen Sie nicht benötigte Dateien von   \r\n"
             u"Ihrer Festplatte. Zifferon PRO wird beendet!",
             u"Your harddrive is out of memory! Zifferon will be shut down!   "});
        machine_.process.end();
    }
}

void Undo::applyUndo() {
    s.keySound = 5;
    s.blockedKeyReleased = false;
    if (!s.txtop.is(u"=") && !s.eingabe.empty()) {
        s.eingabe.setText(u"");
        return s.calls->focusEntry();
    }
    if (!s.undoActive) {
        showInactive();
        return s.calls->focusEntry();
    }
    s.eingabe.enabled = true;
    s.calls->focusEntry();
    s.percentDone = s.roundingDone = s.rootDone = s.roundingDoneSpecial = false;
    if (s.eingabe.empty() && s.undoCounter == 0) showNothingToUndo();
    if (s.undoCounter != 0) return stepBack();
    if (s.anzeige.empty()) {
        s.anzeige.setText(u"");
        s.superdruck.setText(u"");
        clearEntryAndSign();
        return s.zwischen.setText(u"0");
    }
    clearEntryAndSign();
}

void Undo::clearEntryAndSign() {
    s.eingabe.setText(u"");
    s.txtop.setText(u"");
}

// The record is applied only when it has been read whole; a step that cannot be read is not taken.
void Undo::stepBack() {
    s.undoCounter -= 1;
    try {
        const FileContent content = snapshots_.read(s.undoCounter);
        if (content.size() == 0) keep();
        decodeRecord(content.view(), record_);
        if (content.size() != 0) kept_.reset();
    } catch (const FileFailure&) {
        return showUnreadable();
    } catch (const RecordFailure&) {
        return showUnreadable();
    }
    apply();
    s.calls->focusEntry();
    s.eingabe.locked = false;
    snapshots_.remove(s.undoCounter + 1);
}

void Undo::keep() {
    if (kept_) return;
    gatherRecord(record_);
    const EncodedRecord encoded(record_);
    kept_.emplace(Kept{s.undoCounter + 1, ""});
    for (const std::string_view piece : encoded.pieces()) kept_->bytes += piece;
}

void Undo::apply() {
    applyCells(record_);
    applyFields(record_);
    applyVariables(record_);
}

// Its snapshot has gone with the first of the steps back.
void Undo::returnToKept() {
    decodeRecord(kept_->bytes, record_);
    s.undoCounter = kept_->counter;
    kept_.reset();
    apply();
    writeSnapshotFile();
}

void Undo::showUnreadable() {
    s.undoCounter += 1;
    if (kept_) returnToKept();
    messages_.titled(u"Undo").warn(
        {u"Der vorige Arbeitsschritt konnte nicht gelesen werden.   \r\n"
         u"Die Rechnung bleibt, wie sie ist.   ",
         u"The previous step could not be read.   \r\n"
         u"The calculation stays as it is.   "});
    s.calls->focusEntry();
}

void Undo::showInactive() {
    messages_.titled(u"Undo").tell(
        {u"Die Undo-Funktion ist derzeit inaktiv! Um sie aktiv zu setzten, legen Sie   \r\n"
         u"im Zifferon-Verzeichnis eine Datei mit dem Namen <temp.dat> an und   \r\n"
         u"starten Sie Zifferon neu.",
         u"The undo-function is inactive at the moment! To reconfigure it, please create   \r\n"
         u"the file <temp.dat> in the Zifferon-folder and restart the program.   "});
}

// A wiped tape makes a step without a file; an Undo that ends in one with its sound does not.
void Undo::anzeigeChanged() {
    s.tapeDirty = true;
    s.tapeEmptied = false;
    if (!s.anzeige.empty() || (s.Checksound.ticked() && s.keySound == 5)) return;
    s.tapeEmptied = true;
    s.undoStepPending = true;
}

// An Undo that lands on a number without a file goes on by itself.
void Undo::zwischenChanged() {
    if (!s.zwischen.empty() || !memory_.undoRepeatArmed) return;
    s.calls->SendKeysEx(u"{right}");
    memory_.undoRepeatArmed = false;
}

void Undo::showNothingToUndo() {
    message_.emplace(s, [this] { restoreCells(); });
    message_->load();
    machine_.windows.showModal(*message_);
    message_.reset();
}

void Undo::restoreCells() {
    try {
        zifferon::restoreCells(snapshots_.read(0).view(), s);
    } catch (const FileFailure&) {
        // Without snapshot 0 the cells stay.
    } catch (const RecordFailure&) {
        // A damaged one leaves them too.
    }
}

}  // namespace zifferon
