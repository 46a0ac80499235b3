#include "memory/message_window.h"

#include <utility>

#include "platform/key.h"

namespace zifferon {

MessageWindow::MessageWindow(CalculatorState& state, std::function<void()> restoreCells)
    : s(state), restoreCells_(std::move(restoreCells)) {
    name = u"message";
    caption = u"Zifferon PRO 5.0 - Undo";
    framed = false;
    onActivate = [this] { activate(); };
    onAnswer = [this](BoxAnswer) { close(); };
    onDismiss = [this] { close(); };
    add(Shape1, u"Shape1");
    add(Picture1, u"Picture1");
    add(Label2, u"Label2");
    add(Label1, u"Label1");
    add(Text1, u"Text1");
    add(Command1, u"Command1");
    layOut();
    Command1.onMouseUp = [this] { close(); };
    Text1.onKeyDown = [this](int& code) {
        if (code != keyCode::space && code != keyCode::enter) return;
        s.keyBlockedOnce = true;  // so that the key does not act in the entry line
        close();
    };
    Text1.onKeyPress = [](char16_t& character) { character = 0; };
}

void MessageWindow::layOut() {
    place = {0, 0, 6300, 1950};
    Shape1.place = {15, 15, 6270, 345};
    Label2.place = {15, 60, 6270, 255};
    Label2.caption = u" Zifferon PRO 5.0 - Undo";
    Label2.font.bold = true;
    Picture1.place = {240, 585, 480, 480};
    Picture1.picture = u"zifferonpro";
    Label1.place = {900, 705, 5220, 255};
    Command1.place = {2550, 1350, 1200, 390};
    Command1.caption = u"&OK";
    Text1.place = {-3000, 0, 300, 300};
    Text1.locked = true;
    Text1.takesFocus = true;
    Text1.accessibleName = u"OK";
}

void MessageWindow::load() {
    keptAlwaysOnTop_ = s.Checkob.ticked() ? 1 : 0;
    s.zwischen.setText(u"0");
    s.eingabe.setText(u"");
    s.txtop.setText(u"");
    s.chainTotalled = false;
    s.eingabe.locked = false;
    s.tapeClearArmed = true;
    if (keptAlwaysOnTop_ == 1) s.Checkob.setTicked(false);
    Label1.caption = s.inLanguage({u"Es können keine weiteren Arbeitsschritte rückgängig gemacht werden.",
                                   u"              There is nothing to undo."});
    s.anzeige.setText(u"");
    s.tapeDirty = false;
    s.calls->beep();
}

void MessageWindow::activate() {
    setFocus(Text1);
    restoreCells_();
    Shape1.backColour = Label2.backColour = s.zwischen.backColour;
    Label2.foreColour = s.zwischen.foreColour;
}

void MessageWindow::close() {
    if (!visible) return;
    visible = false;
    // Off and on, so that the main window takes its place above all others again.
    s.Checkob.setTicked(keptAlwaysOnTop_ == 1);
    s.calls->focusEntry();
}

}  // namespace zifferon
