// The controls of a window as plain values: what they show, where they stand, and their handlers. A view
// follows them; it holds no state and no rule of its own.
#pragma once

#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

#include "platform/text.h"

namespace zifferon {

struct Colour {
    std::uint8_t red = 0, green = 0, blue = 0;
    bool operator==(const Colour&) const = default;
};

// In twips, 1440 to the inch, from the corner of the window's client area.
struct Place {
    int left = 0, top = 0, width = 0, height = 0;
    bool operator==(const Place&) const = default;
};

struct Font {
    Text family = u"Arial";
    double points = 8.25;
    bool bold = false;
    bool operator==(const Font&) const = default;
};

enum class Alignment { left, right, centre };

enum class ControlKind { textField, label, button, checkBox, frame, picture, list, comboBox, menu };

// One row of the menu that the right mouse button opens on a control.
struct MenuEntry {
    Text caption;
    bool enabled = true;
    std::function<void()> onChoose;  // runs outside of the key road
};

// A control is told by its address: the window, the view and the handlers refer to it for its whole life.
class Control {
  public:
    explicit Control(ControlKind controlKind) : kind(controlKind) {}
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control() = default;

    const ControlKind kind;
    Text name;
    Place place;
    Text caption;            // labels, buttons, check boxes and frames; "&" marks the access key
    Text toolTip;            // empty: none
    Text accessibleName;     // what a screen reader says where there is no caption
    char16_t accessKey = 0;  // Alt and this character give it the keyboard; 0: none but that of the caption
    Text picture;            // pictures and picture buttons: name of the drawing; empty: none
    bool visible = true;
    bool enabled = true;
    bool flat = false;               // a button that is not drawn
    const Control* frame = nullptr;  // the frame that it lies in and is hidden with; null: the window
    bool takesFocus = false;         // a click gives it the focus
    bool draggable = false;          // the mouse takes it along, and it goes home when it is let go
    Colour foreColour{0, 0, 0};
    Colour backColour{192, 192, 192};
    Font font;
    Alignment alignment = Alignment::left;

    std::function<void()> onClick, onDoubleClick, onMouseDown, onMouseUp, onMouseMove;
    std::function<void(Control& dropped)> onDrop;  // another control has been let go over it
    std::function<void()> onGotFocus, onLostFocus;
    std::function<void(int& code)> onKeyDown;             // a handler may change the code, 0 stops the field
    std::function<void(char16_t& character)> onKeyPress;  // likewise: 0 eats, 8 makes a Backspace of it
    std::function<void(int code)> onKeyUp;

    std::function<std::vector<MenuEntry>()> menu;  // what its menu holds at this moment; none: no menu

    void click() { call(onClick); }

    // What a click does, or the access key.
    virtual void press() { click(); }

    // Its own handling of a key that commands, with Shift held or not; whether it takes characters, and what
    // it does with one of the program's character set: a button is pressed by Enter and the blank.
    virtual void handleKey(int /*code*/, bool /*shift*/ = false) {}
    virtual bool takesCharacters() const { return kind == ControlKind::button; }
    virtual void handleCharacter(char16_t character) {
        if (character == u'\r' || character == u' ') press();
    }

    // Has Enter and the blank do something, and all other characters nothing.
    void doWhenConfirmed(std::function<void()> deed) {
        onKeyPress = [deed = std::move(deed)](char16_t& character) {
            const char16_t typed = std::exchange(character, u'\0');
            if (typed == u'\r' || typed == u' ') deed();
        };
    }

    // Whether Shift and that key select in it; it selects all that it holds.
    virtual bool selectsBy(int /*code*/) const { return false; }
    virtual void selectAll() {}

    // Visible, and so is what it lies in.
    bool shown() const { return visible && (frame == nullptr || frame->shown()); }

  protected:
    static void call(const std::function<void()>& handler) {
        if (handler) handler();
    }
};

class CheckBox : public Control {
  public:
    CheckBox() : Control(ControlKind::checkBox) {}
    bool ticked() const { return ticked_; }

    void press() override { setTicked(!ticked_); }
    bool takesCharacters() const override { return true; }
    void handleCharacter(char16_t character) override {
        if (character == u' ') press();
    }

    // A tick that really changes runs the click handler, whoever changes it.
    void setTicked(bool ticked) {
        if (std::exchange(ticked_, ticked) != ticked) click();
    }

  private:
    bool ticked_ = false;
};

}  // namespace zifferon
