// A text field: its text, caret, selection and limits, and the field's own reaction to keys. Typing,
// Backspace and insertion are done here, once, for the window and for the program without one.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "platform/control.h"

namespace zifferon {

class TextField;

// Tells how much of both ends of a field's text has stood unchanged, for whoever keeps a form of that text of
// his own and brings up to date only what lies between. Must not outlive the field.
class TextFollower {
  public:
    explicit TextFollower(TextField& field);
    TextFollower(const TextFollower&) = delete;
    TextFollower& operator=(const TextFollower&) = delete;
    ~TextFollower();

    // How many leading and how many trailing characters have stood unchanged since the last call, none of
    // them counted twice in the former text or the present one; 0 at the first call.
    struct Ends {
        std::size_t prefix = 0, suffix = 0;
    };
    Ends takeUnchanged();

  private:
    friend class TextField;

    TextField& field_;
    Ends unchanged_;
    std::size_t length_ = 0;  // of the text at the last call
};

class TextField : public Control {
  public:
    explicit TextField(Alignment initialAlignment = Alignment::left,
                       ControlKind ofField = ControlKind::textField)
        : Control(ofField) {
        alignment = initialAlignment;
    }

    const Text& text() const { return text_; }
    bool empty() const { return text_.empty(); }
    bool is(TextView text) const { return text_ == text; }
    bool contains(TextView part) const { return zifferon::contains(text_, part); }

    // Writes the text and puts the caret at 0. When the text has really changed, onChange runs before the
    // call returns.
    void setText(TextView text);

    // Adds to the end of the text; costs the same at any length. Otherwise like setText.
    void append(TextView text);

    // Writes what stands behind the first `position` characters, which stay; costs nothing for those.
    // Otherwise like setText. `position` is at most the length of the text.
    void setTextFrom(std::size_t position, TextView text);

    std::size_t caret() const { return caret_; }
    std::size_t selectionStart() const { return caret_; }
    std::size_t selectionLength() const { return selection_; }

    // Caret and selection are held within the text. The caret stands at the start of the selection.
    void select(std::size_t start, std::size_t length);
    void setCaret(std::size_t position) { select(position, 0); }
    void caretToEnd() { setCaret(text_.size()); }

    // The field's own handling of an editing key: arrows, Home, End, Delete. A line end, CR LF, counts as one
    // character; of several lines Home and End go to those of the line. Other codes do nothing. With Shift a
    // key that moves the caret takes the selection along from where it was.
    void handleKey(int code, bool shift = false) override;

    // The field's own handling of a character that the key press left: 8 is a Backspace, printable ones enter
    // at the caret in place of the selection unless the field is locked or full, and so does 13 as a line end
    // where there are several lines; all others do nothing. A change runs onChange.
    bool takesCharacters() const override { return true; }
    void handleCharacter(char16_t character) override;

    bool selectsBy(int code) const override;
    void selectAll() override { select(0, text_.size()); }

    // Takes the user's last change back, and so on to the first one since the program wrote the text itself;
    // whether there was one. Only where `keepsChanges`.
    bool undo();

    bool multiLine = false;
    bool keepsChanges = false;
    int pageLines = 20;    // of several lines: how far Page Up and Page Down go
    bool bare = false;     // of several lines: shown without scroll bar and caret
    bool shrinks = false;  // of one line: a text too long for the field is shown smaller, and never cut
    bool locked = false;   // editing keys change nothing; writing by code does
    bool blankIgnoresLimit =
        false;                  // a blank enters a full field too, for the Backspace that is queued for it
    std::size_t maxLength = 0;  // for typing only; 0: no limit

    std::function<void()> onChange;

  private:
    friend class TextFollower;

    std::optional<std::size_t> moved(std::size_t position, int code) const;
    std::size_t movedByLines(std::size_t position, int lines) const;
    void extendSelection(int code);
    std::size_t lineStart(std::size_t position) const;
    std::size_t lineEnd(std::size_t position) const;
    std::size_t before(std::size_t position) const;
    std::size_t behind(std::size_t position) const;
    void replace(std::size_t start, std::size_t length, TextView by);
    void changed(std::size_t unchangedPrefix, std::size_t unchangedSuffix = 0);
    void keepChange(std::size_t start, TextView old, TextView by);

    // What the user has changed: `old` stood where `inserted` characters stand now.
    struct Change {
        std::size_t start;
        Text old;
        std::size_t inserted;
    };

    Text text_;
    std::vector<Change> changes_;
    std::size_t caret_ = 0;
    std::size_t selection_ = 0;
    bool anchoredAtEnd_ = false;  // the selection grew to the left: its start moves on
    std::vector<TextFollower*> followers_;
};

}  // namespace zifferon
