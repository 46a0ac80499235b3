#include "page/stored_calculations.h"

#include "core/open_prompt.h"
#include "platform/key.h"

namespace zifferon {

void StoredCalculations::wire() {
    c.Speichern.onClick = [this] { saveCalculation(); };
    c.savefiles.maxLength = 25;
    c.savefiles.takesFocus = true;
    c.savefiles.onKeyDown = [this](int& code) {
        if (code == keyCode::f1) s.calls->openHelp();
    };
    c.savefiles.onKeyPress = [this](char16_t& character) {
        if (character == u'\r') saveCalculation();
    };
    c.savefiles.onMouseDown = c.savefiles.onClick = [this] { c.stripes.show(); };
    c.savefiles.onGotFocus = [this] {
        p.preview.hide();
        p.list.selectNone();
    };
    c.laden.onClick = [this] { loadByButton(); };
    c.killfile.onClick = [this] { deleteCalculation(); };
    c.Files.onClick = [this] {
        if (!p.list.empty()) p.list.keepRow();
    };
    c.Files.onDoubleClick = [this] { loadByList(); };
    c.Files.onKeyPress = [this](char16_t& character) {
        if (character == u'\r') loadByList();
    };
}

void StoredCalculations::saveCalculation() {
    p.preview.hide();
    closeOpenPrompt(s);
    if (nameIsRefused()) return;
    const std::string file = toUtf8(c.savefiles.text()) + ".sav";
    if (!mayOverwrite(file) || !store(file)) return;
    p.list.refresh();
    p.messages.tell({u"Die Datei wurde erfolgreich gespeichert.  ", u"The file has been saved.  "});
    p.list.filled();
    c.savefiles.setText(u"");
    focusName();
}

bool StoredCalculations::nameIsRefused() {
    constexpr TextView refused = u"\\/:*?<>|\".";  // also the point: no name brings an extension of its own
    const Text& name = c.savefiles.text();
    if (name.empty()) {
        p.messages.warn({u"Bitte geben Sie einen Dateinamen ein!   ", u"Please enter a filename!   "});
        focusName();
        return true;
    }
    if (name.find_first_of(refused) == Text::npos) return false;
    p.messages.warn(
        {u"Der Dateiname enthält ungültige Zeichen!", u"The filename contains invalid characters!"});
    focusName();
    c.savefiles.caretToEnd();
    return true;
}

bool StoredCalculations::mayOverwrite(const std::string& file) {
    return !p.files.isFile(file) ||
           p.messages.confirm({u"Es existiert bereits eine Datei unter dem angegebenen Namen.   \r\n"
                               u"Soll diese Datei überschrieben werden?   ",
                               u"The file already exists. Do your want to overwrite it?   "});
}

// Whether it is stored. Always on top is none of the calculation's; the rounding is that of the last time
// that it was read or stored.
bool StoredCalculations::store(const std::string& file) {
    gatherRecord(p.record);
    gatherSwitches(p.record);
    p.record.recordAlwaysOnTop = 0;
    try {
        writeRecord(p.files, file, p.record);
        return true;
    } catch (const FileFailure& failure) {
        if (failure.trouble() == FileTrouble::access) {
            p.messages.fail(
                {u"Speicherung fehlgeschlagen. Die zu überschreibende Datei  \r\n"
                 u"ist schreibgeschützt. Wählen Sie einen anderen Dateinamen.  ",
                 u"Error while saving file. The file you want to overwrite \r\n"
                 u"is write-protected. Choose another filename.  "});
        }
        return false;
    }
}

void StoredCalculations::loadByButton() {
    if (p.list.empty()) return;
    p.preview.hidePrintCopy();
    c.savefiles.setText(u"");
    s.keySound = 1;
    c.Files.visible = true;
    if (warnOfNoRow(p.messages)) {
        p.window.setFocus(c.laden);
        p.preview.showPrintCopy();
        p.window.setFocus(c.Files);
        return;
    }
    p.list.pick();
    if (confirmLoad()) {
        c.stripes.show();
        loadRecord(true);
        return focusName();
    }
    p.preview.showPrintCopy();
    focusName();
    c.stripes.show();
}

// The question comes at once, also where no row is selected.
void StoredCalculations::loadByList() {
    p.list.pick();
    if (!confirmLoad()) {
        p.preview.hide();
        focusName();
        return c.stripes.show();
    }
    s.keySound = 1;
    c.savefiles.setText(u"");
    c.Files.visible = true;
    if (warnOfNoRow(p.messages.titled(s.inLanguage({u"Fehler", u"Error"})))) {
        p.window.setFocus(c.laden);
        return p.preview.showPrintCopy();
    }
    loadRecord(false);
    c.stripes.show();
    focusName();
}

bool StoredCalculations::confirmLoad() {
    const Text& name = p.list.pickedName();
    const Text german = u"Möchten Sie die Datei '" + name +
                        u"' laden? \r\n\r\n"
                        u"Dieser Vorgang kann mit der Undo-Funktion nicht mehr rückgängig  \r\n"
                        u"gemacht werden. Die vorangegangenen Rechnungen gehen verloren.  ";
    const Text english = u"Do you want to load the file '" + name +
                         u"'? \r\n\r\n"
                         u"This operation can´t be undone. The previous calculations   \r\n"
                         u"will get lost!  ";
    return p.messages.confirmLoss({german, english});
}

// What cannot be read leaves the calculation as it is, but its steps can no longer be undone.
void StoredCalculations::loadRecord(bool byButton) {
    p.undo.emptyFolder();
    try {
        readPicked(byButton);
    } catch (const FileFailure&) {
        // The present calculation stays.
    } catch (const RecordFailure&) {
        // Likewise.
    }
    p.preview.hide();
    gatherRounding(p.record);
    p.undo.begin();
}

// The settings in the file are not taken over.
void StoredCalculations::readPicked(bool byButton) {
    const FileContent content = p.files.read(p.list.pickedFile());
    if (!isWholeCalculation(content.view(), p.record)) throw RecordFailure();
    decodeRecord(content.view(), p.record);
    applyCells(p.record);
    applyFields(p.record);
    applyVariables(p.record);
    forgetPrompts(s);
    if (byButton && s.anzeige.empty()) s.tapeDirty = false;
    if (s.zwischen.empty()) s.zwischen.setText(u"0");
}

void StoredCalculations::deleteCalculation() {
    if (p.list.empty()) return;
    p.preview.hidePrintCopy();
    c.savefiles.setText(u"");
    if (warnOfNoRow(p.messages)) {
        p.window.setFocus(c.killfile);
        p.preview.showPrintCopy();
        p.window.setFocus(c.Files);
        return;
    }
    p.list.pick();
    const Text& name = p.list.pickedName();
    const Text german = u"Soll die Datei '" + name + u"' endgültig gelöscht werden?  ";
    const Text english = u"Do you really want to delete the file '" + name + u"' ?  ";
    const bool confirmed = p.messages.confirm({german, english});
    if (!confirmed) {
        p.preview.showPrintCopy();
        focusName();
    }
    c.stripes.show();
    if (confirmed) removePicked();
}

void StoredCalculations::removePicked() {
    try {
        p.files.remove(p.list.pickedFile());
        p.preview.hide();
        p.list.refresh();
        if (!p.list.selectKept()) throw FileFailure(FileTrouble::missing);
    } catch (const FileFailure& failure) {
        return afterFailedDeletion(failure.trouble());
    }
    tellDeleted();
    p.preview.showPrintCopy();
}

// Also where the file has gone, but no row takes its place.
void StoredCalculations::afterFailedDeletion(FileTrouble trouble) {
    if (p.list.hasSelection()) c.stripes.hide();
    if (trouble != FileTrouble::missing) {
        p.messages.fail(
            {u"Löschung fehlgeschlagen. Die Datei ist schreibgeschützt.  \r\n"
             u"Heben Sie den Schreibschutz auf, um die Datei zu löschen.",
             u"Error while deleting file. The file is write-protected.  \r\n"
             u"Remove the write-protection, to delete the file."});
        if (!p.preview.shown()) p.preview.showPrintCopy();
        return;
    }
    p.list.forgetKept();
    tellDeleted();
    p.list.refresh();
    p.preview.showPrintCopy();
    focusName();
}

void StoredCalculations::tellDeleted() {
    const Text& name = p.list.pickedName();
    const Text german = u"Die Datei '" + name + u"' wurde erfolgreich gelöscht!   ";
    const Text english = u"The file '" + name + u"' has been deleted!   ";
    p.messages.tell({german, english});
}

// Whether there is none.
bool StoredCalculations::warnOfNoRow(const Messages& messages) {
    if (p.list.hasSelection()) return false;
    messages.warn({u"Bitte wählen Sie eine Datei aus!   ", u"Please select a file!   "});
    return true;
}

void StoredCalculations::focusName() { p.window.setFocus(c.savefiles); }

}  // namespace zifferon
