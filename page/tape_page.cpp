#include "page/tape_page.h"

#include "storage/settings_files.h"

namespace zifferon {

void TapePage::wire() {
    c.edit.onClick = [this] { open(); };
    c.leave.onClick = [this] { leave(); };
    s.superdruck.onGotFocus = [this] { printCopyFocused(); };
    p.window.tabOrder = {&s.superdruck, &c.Check33,  &c.savefiles,   &c.Speichern,     &c.Files,
                         &c.laden,      &c.killfile, &c.editordruck, &c.optbtn,        &c.leave,
                         &c.druckcomb,  &c.allprint, &c.cmdkopf,     &c.standardprint, &c.back};
    for (Control* button : {&c.laden, &c.killfile, &c.Speichern, &c.editordruck, &c.optbtn, &c.leave,
                            &c.cmdkopf, &c.standardprint, &c.back}) {
        button->takesFocus = true;
    }
}

void TapePage::open() {
    keepAlwaysOnTop();
    showParts(true);
    setCaptions();
    p.list.refresh();
    if (!c.stripes.stripesOff()) c.stripes.show();
    p.list.open();
    p.options.restore();
    p.window.setFocus(c.savefiles);
}

void TapePage::leave() {
    p.preview.hide();
    c.stripes.hide();
    s.calls->focusEntry();
    c.savedAlwaysOnTop = wasAlwaysOnTop();
    c.savefiles.setText(u"");
    showParts(false);
    p.options.close();
    if (c.savedAlwaysOnTop) s.Checkob.setTicked(true);
}

// The page, or else the controls of the desk that it takes away.
void TapePage::showParts(bool visible) {
    for (Control* part :
         {static_cast<Control*>(&c.insertmode), static_cast<Control*>(&s.superdruck), &c.blende,
          static_cast<Control*>(&c.Check33), &c.Speichern, &c.blendevorschau, &c.laden,
          static_cast<Control*>(&c.Files), static_cast<Control*>(&c.savefiles), &c.Frame7}) {
        part->visible = visible;
    }
    s.Checkob.visible = s.clipcheck.visible = s.Checksound.visible = s.zurück.visible = !visible;
}

void TapePage::keepAlwaysOnTop() {
    p.settings.storing("visible.zfr", [this] { writeAlwaysOnTop(p.settings.files(), s.Checkob.ticked()); });
}

bool TapePage::wasAlwaysOnTop() const {
    try {
        return readAlwaysOnTop(p.settings.files());
    } catch (const FileFailure&) {
        return false;
    }
}

void TapePage::setCaptions() {
    if (s.language == Language::german) c.Speichern.caption = u"S&peichern";
    for (Control* box : {&c.Check33, &c.insertmode}) {
        box->caption = s.inLanguage({u"Überschreibmodus", u"overwrite mode"});
        box->place.left = s.language == Language::english ? 6400 : 6200;
    }
    c.vorschaulabel.caption = s.inLanguage({u"DRUCKVORSCHAU", u"PRINT PREVIEW"});
}

void TapePage::printCopyFocused() {
    p.preview.hide();
    p.list.selectNone();
    c.stripes.show();
}

}  // namespace zifferon
