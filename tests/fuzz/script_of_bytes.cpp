#include "tests/fuzz/script_of_bytes.h"

#include <iostream>
#include <map>
#include <sstream>
#include <vector>

#include "programs/script/script_runner.h"

namespace zifferon {

namespace {

// What may stand for a name in braces; "calculation" and "anything" stand for lines, {control} for the name
// of one. Where the bytes are at their end, the first of its kind is chosen.
constexpr const char* grammar = R"(
calculation = {number} | {number} | {number} | {number} | {number} | {number} | {number} | {number} | {number}
calculation = {number} | {calculating} | {calculating} | {calculating} | {calculating} | # store | {undone}
number = type {figures};type {operator}
figures = 5 | 12,50 | 0,05 | 1234567,89 | 3 | 100 | 0 | 99999999999999 | 0,001 | 7v
operator = + | - | * | /
calculating = press ENTER | press ENTER | press SPACE | press RIGHT | press RIGHT | click checkrnd | type c
calculating = type p | type w | type t | type d | type m1 | type m2 | type r1 | type r2 | type < | type >
calculating = type % | type v | type -t | type +t
undone = type 1,5+;# remember;{step};# compare
step = type 1,5{operator};press RIGHT | type 1,5{operator};{step};press RIGHT | type 1,5{operator};{step};press RIGHT
anything = type {character} | type {character} | type {character} | type {character} | press {key} | press {key}
anything = click {control} | click {control} | click {control} | dblclick {control} | focus {control}
anything = hover {control} | hold {key} {times} | down {character} | up {character} | {other}
anything = machine writable yes;machine diskfull no;# store
character = 0 | 1 | 2 | 3 | 4 | 5 | 6 | 7 | 8 | 9 | , | . | + | - | * | / | % | = | c | v | w | p | d | m
character = r | t | < | > | x | € | ß | M | R | C | j | n
key = ENTER | BS | DEL | ESC | LEFT | RIGHT | UP | DOWN | HOME | END | PGUP | PGDN | TAB | SPACE | ALT | CTRL+R | INS
key = F1 | F2 | F3 | F4 | F5 | F6 | F7 | F8 | F9 | F10 | F11 | F12 | ADD | SUBTRACT | MULTIPLY | DIVIDE | DECIMAL
times = 1 | 2 | 3 | 5 | 8 | 13 | 20 | 40
other = answer yes | answer no | answer cancel | answer english | wait 20 | wait 300 | wait 2500
other = press ALT+SPACE | hotkey | tray show | tray exit | tray dblclick | session-end | start
other = fresh english point | fresh unformatted | machine writable no | machine writable yes
other = machine diskfull yes | machine diskfull no | machine printfault 3 | machine printfault 0
other = machine locale "00000409" | machine caption 26 | machine computer ""
other = click Help.showPuzzleButton | drag puzzle.Picture1 puzzle.Picture01 | drag puzzle.Picture2 puzzle.Picture03
other = choose Files 1 | choose Files 2 | choose allprint 1 | select eingabe 1 2 | caret superdruck 5
other = select superdruck 0 9 | move Pultform 30000 5000 | close kopf | close Help | close Pultform
other = close puzzle | close secretform | activate Pultform
)";

using Kinds = std::map<std::string, std::vector<std::string>>;

Kinds makeKinds() {
    Kinds kinds;
    std::istringstream lines(grammar), fresh("fresh\n");
    for (std::string line; std::getline(lines, line);) {
        std::size_t bar = line.find(" =");
        if (bar == std::string::npos) continue;
        auto& choices = kinds[line.substr(0, bar)];
        while (bar != std::string::npos) {
            const std::size_t begin = bar + 3;
            bar = line.find(" | ", begin);
            choices.push_back(line.substr(begin, bar - begin));
        }
    }
    ScriptRunner runner(std::cout, std::cerr);
    runner.onLine = [&](std::string_view, Program& program) {
        for (Window* const window : program.windows()) {
            const std::string prefix = window == &program.pultform ? "" : toUtf8(window->name) + ".";
            for (const Control* const control : window->controls()) {
                if (!control->name.empty()) kinds["control"].push_back(prefix + toUtf8(control->name));
            }
        }
    };
    runner.run(fresh);
    return kinds;
}

class Generator {
  public:
    Generator(std::span<const unsigned char> bytes, const Kinds& kinds) : bytes_(bytes), kinds_(kinds) {}

    FuzzScript make() {
        FuzzScript script{"machine printer \"Zett A\"\nmachine seed 7\nfresh\n", next() % 2 == 0};
        while (!bytes_.empty()) script.lines += oneOf(script.calculates ? "calculation" : "anything") + '\n';
        return script;
    }

  private:
    std::size_t next() {
        if (bytes_.empty()) return 0;
        const unsigned char byte = bytes_.front();
        bytes_ = bytes_.subspan(1);
        return byte;
    }

    std::string oneOf(const std::string& kind) {
        const std::vector<std::string>& choices = kinds_.at(kind);
        const std::size_t high = choices.size() > 256 ? next() << 8 : 0;
        std::string text = choices[(high + next()) % choices.size()];
        for (std::size_t at = 0; (at = text.find_first_of("{;", at)) != std::string::npos; ++at) {
            if (text[at] == ';') {
                text[at] = '\n';
            } else {
                const std::size_t end = text.find('}', at);
                const std::string word = oneOf(text.substr(at + 1, end - at - 1));
                text.replace(at, end + 1 - at, word);
                at += word.size() - 1;
            }
        }
        return text;
    }

    std::span<const unsigned char> bytes_;
    const Kinds& kinds_;
};

}  // namespace

FuzzScript scriptOfBytes(std::span<const unsigned char> bytes) {
    static const Kinds kinds = makeKinds();
    return Generator(bytes, kinds).make();
}

}  // namespace zifferon
