#include "tests/fuzz/script_of_bytes.h"

#include <iterator>
#include <vector>

namespace zifferon {

namespace {

constexpr const char* numbers[] = {"5",   "12,50", "0,05",           "1234567,89", "3",
                                   "100", "0",     "99999999999999", "0,001",      "7v"};
constexpr const char* calculatingKeys[] = {
    "press ENTER", "press ENTER", "press SPACE", "type c",  "type p",      "type w",      "type t",
    "type d",      "type m1",     "type m2",     "type r1", "type r2",     "type <",      "type >",
    "type %",      "type v",      "type -t",     "type +t", "press RIGHT", "press RIGHT", "click checkrnd"};

constexpr const char* characters[] = {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", ",", ".",
                                      "+", "-", "*", "/", "%", "=", "c", "v", "w", "p", "d", "m",
                                      "r", "t", "<", ">", "x", "€", "ß", "M", "R", "C", "j", "n"};
constexpr const char* namedKeys[] = {"ENTER",  "BS",      "DEL",   "ESC",  "LEFT",   "RIGHT",    "UP",
                                     "DOWN",   "HOME",    "END",   "PGUP", "PGDN",   "TAB",      "F1",
                                     "F2",     "F3",      "F4",    "F5",   "F6",     "F7",       "F8",
                                     "F9",     "F10",     "F11",   "F12",  "ADD",    "SUBTRACT", "MULTIPLY",
                                     "DIVIDE", "DECIMAL", "SPACE", "ALT",  "CTRL+R", "INS"};
constexpr const char* others[] = {"answer yes",
                                  "answer no",
                                  "answer cancel",
                                  "answer english",
                                  "wait 20",
                                  "wait 300",
                                  "wait 2500",
                                  "press ALT+SPACE",
                                  "hotkey",
                                  "tray show",
                                  "tray exit",
                                  "tray dblclick",
                                  "session-end",
                                  "start",
                                  "fresh english point",
                                  "fresh unformatted",
                                  "machine writable no",
                                  "machine writable yes",
                                  "machine diskfull yes",
                                  "machine diskfull no",
                                  "machine printfault 3",
                                  "machine printfault 0",
                                  "machine locale \"00000409\"",
                                  "machine caption 26",
                                  "machine computer \"\"",
                                  "click Help.showPuzzleButton",
                                  "drag puzzle.Picture1 puzzle.Picture01",
                                  "drag puzzle.Picture2 puzzle.Picture03",
                                  "choose Files 1",
                                  "choose Files 2",
                                  "choose allprint 1",
                                  "select eingabe 1 2",
                                  "caret superdruck 5",
                                  "select superdruck 0 9",
                                  "move Pultform 30000 5000",
                                  "close kopf",
                                  "close Help",
                                  "close Pultform",
                                  "close puzzle",
                                  "close secretform",
                                  "activate Pultform"};

class Generator {
  public:
    Generator(std::span<const unsigned char> bytes, Program& program) : bytes_(bytes) {
        for (Window* const window : program.windows()) {
            const std::string prefix = window == &program.pultform ? "" : toUtf8(window->name) + ".";
            for (const Control* const control : window->controls()) {
                if (!control->name.empty()) controls_.push_back(prefix + toUtf8(control->name));
            }
        }
    }

    FuzzScript make() {
        script_.calculates = next() % 2 == 0;
        line("machine printer \"Zett A\"");
        line("machine seed 7");
        line("fresh");
        while (at_ < bytes_.size()) script_.calculates ? calculate() : doAnything();
        return std::move(script_);
    }

  private:
    unsigned char next() { return at_ < bytes_.size() ? bytes_[at_++] : 0; }

    template <class List>
    const auto& anyOf(const List& list) {
        const std::size_t size = std::size(list);
        const std::size_t high = size > 256 ? std::size_t{next()} << 8 : 0;
        return std::data(list)[(high + next()) % size];
    }

    void line(std::string_view text) { (script_.lines += text) += '\n'; }
    void type(std::string_view keys) { line("type " + std::string(keys)); }

    void calculate() {
        switch (next() % 16) {
            case 0:
                return line(store);
            case 1:
                return takeStepsBack();
            case 2:
            case 3:
            case 4:
            case 5:
                return line(anyOf(calculatingKeys));
            default:
                type(anyOf(numbers));
                type(anyOperator());
        }
    }

    std::string_view anyOperator() { return std::string_view("+-*/").substr(next() % 4, 1); }

    // Undo brings the cells back as they were at the last step, so there is one before.
    void takeStepsBack() {
        type("1,5+");
        line(remember);
        const int steps = 1 + next() % 4;
        for (int i = 0; i < steps; ++i) {
            type("1,5");
            type(anyOperator());
        }
        for (int i = 0; i < steps; ++i) line("press RIGHT");
        line(compare);
    }

    void doAnything() {
        switch (next() % 16) {
            case 0:
                return line("hold " + std::string(anyOf(namedKeys)) + ' ' + std::to_string(1 + next() % 40));
            case 1:
                return line("down " + std::string(anyOf(characters)));
            case 2:
                return line("up " + std::string(anyOf(characters)));
            case 3:
            case 4:
                return line("press " + std::string(anyOf(namedKeys)));
            case 5:
            case 6:
            case 7:
                return line("click " + anyOf(controls_));
            case 8:
                return line((next() % 2 == 0 ? "dblclick " : "hover ") + anyOf(controls_));
            case 9:
                return line(anyOf(others));
            case 10:
                line("machine writable yes");
                line("machine diskfull no");
                return line(store);
            case 11:
                return line("focus " + anyOf(controls_));
            default:
                return type(anyOf(characters));
        }
    }

    std::span<const unsigned char> bytes_;
    std::size_t at_ = 0;
    std::vector<std::string> controls_;
    FuzzScript script_;
};

}  // namespace

FuzzScript scriptOfBytes(std::span<const unsigned char> bytes, Program& program) {
    return Generator(bytes, program).make();
}

}  // namespace zifferon
