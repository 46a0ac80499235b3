// A window as a value: its controls in drawing order, its timers, its size, and which control has the focus.
#pragma once

#include <functional>
#include <vector>

#include "platform/boxes.h"
#include "platform/control.h"
#include "platform/language.h"
#include "platform/text_field.h"
#include "platform/timer.h"

namespace zifferon {

// What a window's frame and caption take of its place, in twips: 3 pixels each side, and a caption of 19.
constexpr int frameWidth = 90, frameHeight = 375;

// A menu bar pushes all other controls down by so much; its one entry has its place above them.
constexpr int menuBarHeight = 285;

class Window {
  public:
    Window() = default;
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;
    virtual ~Window() = default;

    Text name;
    Text caption;
    Place place;  // with frame and caption, in twips
    bool visible = false;
    Colour backColour{192, 192, 192};
    Text icon;  // name of the drawing; empty: the program's

    bool alwaysOnTop = false;
    bool minimised = false;
    bool framed = true;     // whether the system draws a frame and a title around it
    bool closeable = true;  // whether its title has the buttons to close and minimise it

    std::function<void()> onMouseMove;  // over the window itself
    std::function<void()> onActivate;   // it has become the one in use

    // The entry of its menu bar, if it has one. The bar takes its room only while the entry is visible.
    Control* menu = nullptr;
    int menuHeight() const { return menu != nullptr && menu->visible ? menuBarHeight : 0; }

    // Where the Tab key goes, in this order; it does nothing where the focus is none of them.
    std::vector<Control*> tabOrder;
    bool isTabStop(const Control& control) const;

    // What the edit keys do here, none of them inside the key road; without onPaste a text is typed as it is.
    std::function<void(TextView)> onPaste;
    std::function<void()> onCopy, onCut, onUndo;

    std::function<void(BoxAnswer)>
        onAnswer;  // what a scripted answer does to it; none: it stays until the script closes it
    std::function<void()> onDismiss;  // the user closes it by other means than its controls

    // Later controls lie above earlier ones.
    void add(Control& control, TextView controlName);
    void add(Timer& timer, TextView timerName);
    const std::vector<Control*>& controls() const { return controls_; }
    const std::vector<Timer*>& timers() const { return timers_; }

    // What a control says in each language; in one where a pair holds no English. The German is said at once.
    struct Said {
        Words caption{};
        Words changedCaption{};  // what a change of the language sets in place of the caption, if anything
        Words spoken{};          // for a screen reader
        Words tip{};
    };
    void say(Control& control, const Said& said);

    // Brings all that say() has told into a language: as it is from a start on, or as a change sets it.
    void speak(Language language, bool changed);

    // The control of that name, or null.
    Control* find(TextView controlName) const;

    // The control that gets the keys, or null.
    Control* focus() const { return focus_; }

    // Moves the focus with its lost and got handlers; to the control that has it, nothing happens. Returns
    // false, and changes nothing, where the window is not visible or the control hidden or disabled.
    bool setFocus(Control& control);

    // How often the focus has been asked for.
    unsigned long focusWishes() const { return focusWishes_; }

  private:
    // The pairs as the window keeps them.
    struct Pair {
        explicit Pair(Words words) : german(words.german), english(words.english) {}
        Words words() const { return {german, english}; }
        Text german, english;
    };
    struct Speaker {
        Control& control;
        Pair caption, changedCaption, spoken, tip;
    };

    std::vector<Speaker> speakers_;
    std::vector<Control*> controls_;
    std::vector<Timer*> timers_;
    Control* focus_ = nullptr;
    unsigned long focusWishes_ = 0;
};

}  // namespace zifferon
