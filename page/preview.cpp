#include "page/preview.h"

#include "platform/key.h"
#include "storage/calculation_record.h"

namespace zifferon {

namespace {

constexpr Colour windowText{0, 0, 0};

}  // namespace

void Preview::wire() {
    c.Files.onMouseDown = [this] { pressed(); };
    c.Files.onKeyUp = [this](int code) { released(code); };
    c.Files.onGotFocus = [this] { listFocused(); };
    for (TextField* box : {&c.txtvorschaulabel, &c.txtvorschau, &c.txtvorschau2}) {
        box->takesFocus = box->locked = true;
        box->onGotFocus = [this, box] { close(*box); };
    }
    c.txtvorschau.multiLine = true;
    c.txtvorschau.onClick = [this] { window_.setFocus(c.savefiles); };
}

void Preview::hide() {
    c.txtvorschaulabel.visible = c.txtvorschau.visible = c.txtvorschau2.visible = false;
    showPrintCopy();
}

void Preview::hidePrintCopy() { s.superdruck.foreColour = s.superdruck.backColour; }

void Preview::showPrintCopy() { s.superdruck.foreColour = windowText; }

void Preview::pressed() {
    c.stripes.hide();
    if (list_.empty()) return;
    c.savefiles.setText(u"");
    list_.keepRow();
    if (!list_.hasSelection()) {
        showPrintCopy();
        window_.setFocus(c.savefiles);
        return;
    }
    show();
    list_.pick();
    Text previewCopy;
    try {
        previewCopy = readPicked();
        setNameAndDate();
    } catch (const FileFailure&) {
        // The boxes show nothing of it.
    } catch (const RecordFailure&) {
        // Nor of what is no record.
    }
    c.txtvorschau.setText(previewCopy);
}

// Neither the Tab that has brought the focus here nor Alt is meant for the list.
void Preview::released(int code) {
    if (code == keyCode::tab || code == keyCode::alt) return;
    c.stripes.hide();
    show();
    if (!list_.hasSelection()) return warnOfNoRow();
    list_.pick();
    try {
        const Text previewCopy = readPicked();
        setNameAndDate();
        c.txtvorschau.setText(previewCopy);
    } catch (const FileFailure&) {
        // The boxes stay as they were.
    } catch (const RecordFailure&) {
        // Likewise.
    }
}

void Preview::show() {
    c.txtvorschaulabel.visible = c.txtvorschau.visible = c.txtvorschau2.visible = true;
    hidePrintCopy();
    c.savefiles.setText(u"");
    c.Files.visible = true;
}

void Preview::warnOfNoRow() {
    hide();
    messages_.titled(s.inLanguage({u"Fehler", u"Error"}))
        .warn({u"Bitte wählen Sie eine Datei aus!   ", u"Please select a file!   "});
    window_.setFocus(c.laden);
}

Text Preview::readPicked() {
    Text copy = printCopyOf(machine_.files.read(list_.pickedFile()).view(), s.separators());
    date_ = machine_.system.shortDateTime(machine_.files.lastModified(list_.pickedFile()));
    return copy;
}

void Preview::setNameAndDate() {
    c.txtvorschaulabel.setText(Text(s.inLanguage({u"Vorschau '", u"Preview '"})) + list_.pickedName() + u"'");
    c.txtvorschau2.setText(Text(s.inLanguage({u" Erstellung bzw. letzte Änderung:  ", u" Last access:  "})) +
                           date_);
}

// Without a preview the print copy stays in sight.
void Preview::listFocused() {
    if (!shown()) return;
    hidePrintCopy();
    if (list_.hasSelection()) setNameAndDate();
}

void Preview::close(const Control& box) {
    hide();
    list_.selectNone();
    window_.setFocus(&box == &c.txtvorschau ? static_cast<Control&>(c.savefiles) : s.superdruck);
    c.stripes.show();
}

}  // namespace zifferon
