#include "programs/script/script_runner.h"

#include <algorithm>
#include <ctime>
#include <map>
#include <string>

#include "core/number_format.h"
#include "platform/mouse.h"
#include "programs/script/decimal_command.h"
#include "programs/script/event_pattern.h"
#include "programs/script/script_keys.h"
#include "programs/script/script_names.h"
#include "storage/settings_files.h"

namespace zifferon {

namespace {

constexpr int longestWaitForTheFolder = 2000;  // milliseconds

constexpr std::string_view gesture = "Help.showPuzzleButton";

// Thrown through the handlers that wait for a modal window to close.
class ScriptOver {};
class BeginsAnew {};

}  // namespace

ScriptRunner::ScriptRunner(std::ostream& out, std::ostream& errors)
    : out_(out), errors_(errors), headless_(out), files_(disk_), machine_(headless_.with(files_, system_)) {
    files_.onExchanged = [this](const std::string& name) { disk_.stamp(name, headless_.now()); };
    system_.clock = [this] { return headless_.now(); };
    setClock("2026-11-22 08:30:00");
    headless_.whileModal = [this](const Window& modal) { stayIn(modal); };
}

void ScriptRunner::expectAnswers() {
    headless_.onUnansweredQuestion = [this] { fail("question", "an answer", "none"); };
}

int ScriptRunner::run(std::istream& script) {
    script_ = &script;
    try {
        runLines([] { return true; });
    } catch (const ScriptOver&) {
        // It ends while a modal window is open.
    } catch (const ProcessEnded&) {
        // The rest of the script has no program to run on.
    } catch (const MalformedScript& reason) {
        out_.flush();
        errors_ << "line " << lineNumber_ << ": " << reason.what() << '\n';
        return 2;
    }
    out_.flush();
    return allHeld_ ? 0 : 1;
}

void ScriptRunner::runLines(const std::function<bool()>& going) {
    while (going() && std::getline(*script_, line_)) {
        ++lineNumber_;
        if (!line_.empty() && line_.back() == '\r') line_.pop_back();
        try {
            runLine(line_);
        } catch (const BeginsAnew&) {
            if (headless_.modalOpen()) throw;
            runLine(line_);
        }
        if (onLine && program_) onLine(line_, *program_);
    }
}

// The handler that has opened the window waits, and the script goes on in it.
void ScriptRunner::stayIn(const Window& modal) {
    runLines([&] { return modal.visible; });
    if (modal.visible) throw ScriptOver();
}

// A new calculator begins outside of all handlers of the former one.
void ScriptRunner::unwindModal() const {
    if (headless_.modalOpen()) throw BeginsAnew();
}

void ScriptRunner::runLine(std::string_view text) {
    ScriptLine line(text);
    if (line.atEnd() || text.front() == '#') return;
    const std::string command = line.word();
    const bool known = runKeys(command, line) || runStage(command, line) || runLook(command, line) ||
                       runMouse(command, line) || runDesktop(command, line);
    if (!known) throw MalformedScript("unknown command " + command);
    headless_.settleActivation();
}

bool ScriptRunner::runStage(const std::string& command, ScriptLine& line) {
    if (command == "machine") return setMachine(line), true;
    if (command == "fresh") return fresh(line), true;
    if (command == "start") return start(line), true;
    if (command == "answer") return answer(line), true;
    if (command == "decimal") {
        out_ << decimalCommand(line) << '\n';
        return true;
    }
    if (command == "wait") {
        const std::int64_t milliseconds = line.number();
        line.expectEnd();
        headless_.wait(milliseconds);
        return true;
    }
    return false;
}

bool ScriptRunner::runKeys(const std::string& command, ScriptLine& line) {
    if (command == "type") return type(fromUtf8(line.verbatim())), true;
    if (command == "press") {
        do {
            const std::string name = line.word();
            if (isAccessKeyOfBlank(name)) {
                pressByAccessKey(u"spezrnd");
            } else {
                keys().stroke(scriptKey(name));
            }
        } while (!line.atEnd());
        return true;
    }
    if (command == "hold") {
        const Key key = scriptKey(line.word());
        const std::int64_t times = line.number();
        line.expectEnd();
        for (std::int64_t i = 0; i < times; ++i) keys().keyDown(key);
        keys().keyUp(key);
        return true;
    }
    if (command == "down" || command == "up") {
        const Key key = scriptKey(line.word());
        line.expectEnd();
        command == "down" ? keys().keyDown(key) : keys().keyUp(key);
        return true;
    }
    return false;
}

bool ScriptRunner::runMouse(const std::string& command, ScriptLine& line) {
    if (command == "choose") return choose(line), true;
    if (command == "drag") return drag(line), true;
    if (command == "focus" || command == "caret" || command == "select") return select(command, line), true;
    using Action = void (ScriptRunner::*)(Control&);
    static const std::map<std::string, Action> actions = {{"click", &ScriptRunner::click},
                                                          {"dblclick", &ScriptRunner::doubleClick},
                                                          {"mousedown", &ScriptRunner::mouseDown},
                                                          {"mouseup", &ScriptRunner::mouseUp},
                                                          {"hover", &ScriptRunner::hover}};
    const auto action = actions.find(command);
    if (action == actions.end()) return false;
    const std::string name = line.word();
    if (name == gesture) return line.expectEnd(), makeGesture(), true;
    Control& target = control(name);
    const std::optional<std::int64_t> row = line.atEnd() ? std::nullopt : std::optional(line.number());
    line.expectEnd();
    if (!inReach(target)) return true;
    if (row) pointAt(target, *row);
    (this->*action->second)(target);
    return true;
}

bool ScriptRunner::inReach(const Control& target) {
    return windowOf(target, program()) == &window() && isReachable(window(), target);
}

// The mouse is on a row of a list, from 1, or on its empty part, which selects none.
void ScriptRunner::pointAt(Control& target, std::int64_t row) {
    auto* const list = dynamic_cast<ListBox*>(&target);
    if (list == nullptr) throw MalformedScript("no list");
    if (!list->select(static_cast<int>(row))) list->select(0);
}

// By a row from 1, or by its text; of a list 0 selects none, without a click.
void ScriptRunner::choose(ScriptLine& line) {
    Control& target = control(line.word());
    auto* const list = dynamic_cast<ListBox*>(&target);
    auto* const combo = dynamic_cast<ComboBox*>(&target);
    if (list == nullptr && combo == nullptr) throw MalformedScript("no list and no combo box");
    const std::vector<Text>& rows = list != nullptr ? list->rows() : combo->rows;
    const auto rowOf = [&](const Text& text) {
        return std::find(rows.begin(), rows.end(), text) - rows.begin() + 1;
    };
    const auto row = static_cast<int>(line.atQuote() ? rowOf(line.quotedText()) : line.number());
    line.expectEnd();
    if (!inReach(target)) return;
    if (row == 0 && list != nullptr) list->select(0);
    if (row != 0) keys().run([&] { list != nullptr ? list->choose(row) : combo->choose(row); });
}

void ScriptRunner::pressByAccessKey(TextView controlName) {
    Control* const button = window().find(controlName);
    if (button != nullptr && isReachable(window(), *button)) keys().run([&] { button->press(); });
}

// A press whose handler shows a box ends there: the box takes the mouse.
void ScriptRunner::click(Control& target) {
    const auto boxes = headless_.boxesShown();
    mousePress(window(), keys(), target);
    if (headless_.boxesShown() == boxes) mouseRelease(keys(), target);
}

void ScriptRunner::doubleClick(Control& target) {
    click(target);
    if (isReachable(window(), target)) mouseDoubleClick(keys(), target);
}

// The one that shows the way to the puzzle, whatever it is.
void ScriptRunner::makeGesture() {
    Control& programLine = program().help.Text6;
    if (inReach(programLine)) doubleClick(programLine);
}

void ScriptRunner::mouseDown(Control& target) { mousePress(window(), keys(), target); }

void ScriptRunner::mouseUp(Control& target) { keys().run(target.onMouseUp); }

// The press on the piece, and its release over the field.
void ScriptRunner::drag(ScriptLine& line) {
    const auto inUse = [this](const std::string& name) -> Control& {
        Control* const found = window().find(fromUtf8(name));
        return found != nullptr ? *found : control(name);
    };
    Control& piece = inUse(line.word());
    Control& field = inUse(line.word());
    line.expectEnd();
    if (!piece.draggable || !inReach(piece) || !inReach(field)) return;
    mousePress(window(), keys(), piece);
    mouseDrop(keys(), piece, field);
}

void ScriptRunner::hover(Control& target) { mouseMove(keys(), target); }

bool ScriptRunner::runDesktop(const std::string& command, ScriptLine& line) {
    Desktop& desktop = headless_;
    const auto run = [&](const std::function<void()>& handler) {
        line.expectEnd();
        program();
        if (!headless_.modalOpen()) program().keys.run(handler);
        return true;
    };
    if (command == "hotkey") return run(desktop.onHotKey);
    if (command == "session-end") return line.expectEnd(), program().keys.run(desktop.onSessionEnd), true;
    if (command == "tray") {
        const std::string what = line.word();
        if (what == "show") return run(desktop.onTrayShow);
        if (what == "exit") return run(desktop.onTrayExit);
        if (what == "dblclick") return run(desktop.onTrayDoubleClick);
        throw MalformedScript("unknown part of the tray " + what);
    }
    if (command != "close" && command != "activate" && command != "move") return false;
    const std::string name = line.word();
    Window* const named = windowCalled(name, program());
    if (named == nullptr) throw MalformedScript("unknown window " + name);
    if (command == "move") {
        named->place.left = static_cast<int>(line.number());
        named->place.top = static_cast<int>(line.number());
        return line.expectEnd(), true;
    }
    line.expectEnd();
    if (named == &window()) keys().run(command == "close" ? named->onDismiss : named->onActivate);
    return true;
}

bool ScriptRunner::runLook(const std::string& command, ScriptLine& line) {
    if (command == "show") {
        do show(line.word());
        while (!line.atEnd());
        return true;
    }
    if (command == "dump") {
        for (const std::string_view name : dumpNames()) show(name);
        out_ << ".\n";
        return true;
    }
    if (command == "expect") return expect(line), true;
    if (command == "expect-event") {
        do expectEvent(toUtf8(line.quotedText()));
        while (!line.atEnd());
        return true;
    }
    if (command == "expect-no-event") return expectNoEvent(line), true;
    if (command == "expect-tape") return expectLines("anzeige", line), true;
    if (command == "expect-print") return expectLines("superdruck", line), true;
    return false;
}

namespace {

const std::map<std::string, std::string HeadlessSystem::*> systemAnswers = {
    {"computer", &HeadlessSystem::computer},
    {"locale", &HeadlessSystem::locale},
    {"style", &HeadlessSystem::style},
    {"system", &HeadlessSystem::name}};

}  // namespace

void ScriptRunner::setMachine(ScriptLine& line) {
    const std::string key = line.word();
    if (key == "writable") return files_.writable(line.word() != "no");
    if (key == "diskfull") return files_.diskFull(line.word() == "yes");
    if (key == "printer") return headless_.printer.addPrinter(line.quotedText());
    if (key == "font") return headless_.printer.addFont(line.quotedText());
    if (key == "printfault") return headless_.printer.failCall(static_cast<int>(line.number()));
    if (key == "seed") return void(system_.seed = static_cast<std::uint32_t>(line.number()));
    if (key == "clock") return setClock(toUtf8(line.quotedText()));
    if (key == "caption") {
        system_.caption = static_cast<int>(line.number());
        return;
    }
    const auto answer = systemAnswers.find(key);
    if (answer == systemAnswers.end()) throw MalformedScript("unknown property of the machine: " + key);
    system_.*answer->second = toUtf8(line.quotedText());
}

// Local time.
void ScriptRunner::setClock(const std::string& moment) {
    std::tm time{};
    time.tm_isdst = -1;
    if (::strptime(moment.c_str(), "%Y-%m-%d %H:%M:%S", &time) == nullptr) {
        throw MalformedScript("no moment: " + moment);
    }
    clock_ = std::chrono::system_clock::from_time_t(std::mktime(&time));
    headless_.setClock(clock_);
}

void ScriptRunner::start(ScriptLine& line) {
    line.expectEnd();
    unwindModal();
    beginAnew();
    program_->keys.run([this] { program_->start(); });
}

void ScriptRunner::beginAnew() {
    if (!folder_.take(longestWaitForTheFolder)) throw MalformedScript("another program runs in this folder");
    program_.reset();
    headless_.beginAnew();
    headless_.setClock(clock_);
    program_ = std::make_unique<Program>(machine_);
    headless_.setMainWindow(program_->pultform, program_->keys);
}

void ScriptRunner::fresh(ScriptLine& line) {
    unwindModal();
    beginAnew();
    CalculatorState& s = program_->pultform.state;
    while (!line.atEnd()) {
        const std::string word = line.word();
        if (word == "english") {
            s.language = Language::english;
        } else if (word == "point") {
            s.decimalPointStyle = 1;
        } else if (word == "unformatted") {
            s.formatMode = 2;
        } else {
            throw MalformedScript("unknown setting " + word);
        }
    }
    applyFormatMode(s);
    try {
        disk_.replace("quicksave.zfr", "");
        writeLanguage(disk_, s.language);
        program_->beginFresh();
    } catch (const FileFailure&) {
        throw MalformedScript("no file can be written in this folder");
    }
}

void ScriptRunner::answer(ScriptLine& line) {
    do {
        const std::string word = line.word();
        if (word == "yes") {
            headless_.queueAnswer(BoxAnswer::yes);
        } else if (word == "no") {
            headless_.queueAnswer(BoxAnswer::no);
        } else if (word == "ok") {
            headless_.queueAnswer(BoxAnswer::ok);
        } else if (word == "cancel") {
            headless_.queueAnswer(BoxAnswer::cancel);
        } else if (word == "german") {
            headless_.queueAnswer(BoxAnswer::german);
        } else if (word == "english") {
            headless_.queueAnswer(BoxAnswer::english);
        } else {
            throw MalformedScript("unknown answer " + word);
        }
    } while (!line.atEnd());
}

void ScriptRunner::type(TextView text) {
    for (const char16_t character : text) keys().stroke(keyOfCharacter(character));
}

void ScriptRunner::select(const std::string& command, ScriptLine& line) {
    Control& target = control(line.word());
    if (command == "focus") {
        const bool canHaveIt = target.takesFocus || target.accessKey != 0;
        if (canHaveIt) keys().run([&] { window().setFocus(target); });
        return;
    }
    auto* const field = dynamic_cast<TextField*>(&target);
    if (field == nullptr) throw MalformedScript("no text field");
    const auto start = static_cast<std::size_t>(line.number());
    field->select(start, command == "select" ? static_cast<std::size_t>(line.number()) : 0);
}

void ScriptRunner::show(std::string_view name) {
    const auto value = valueOf(name, program(), headless_);
    if (!value) throw MalformedScript("unknown name " + std::string(name));
    out_ << name << " = " << *value << '\n';
}

namespace {

// The next value of the line, in the one form in which values are shown.
std::string normalised(ScriptLine& line) {
    if (line.atQuote()) return quoted(line.quotedText());
    const std::string word = line.word();
    if (word == "text") return "text " + quoted(line.quotedText());
    const bool isKind = word == "int" || word == "double" || word == "decimal";
    return isKind ? word + ' ' + line.word() : word;
}

}  // namespace

// One name and its value behind the other.
void ScriptRunner::expect(ScriptLine& line) {
    do {
        const std::string name = line.word();
        const auto found = valueOf(name, program(), headless_);
        if (!found) throw MalformedScript("unknown name " + name);
        const std::string expected = normalised(line);
        if (*found != expected && *found != "int " + expected) fail(name, expected, *found);
    } while (!line.atEnd());
}

namespace {

bool isOfWindow(const std::string& event) { return event.starts_with("window "); }

}  // namespace

// Where another event comes first the story goes on behind the one that it expected, if that has come at all.
void ScriptRunner::expectEvent(const std::string& expected) {
    std::deque<std::string>& events = headless_.events();
    const auto isExpected = [&](const std::string& event) { return matches(event, expected); };
    const auto found = std::find_if(events.begin(), events.end(), isExpected);
    const auto first = std::find_if_not(events.begin(), found, isOfWindow);
    if (found == events.end() || first != found) {
        fail("event", expected, first != events.end() ? *first : "none");
    }
    if (found != events.end()) events.erase(events.begin(), found + 1);
}

void ScriptRunner::expectNoEvent(ScriptLine& line) {
    line.expectEnd();
    const std::deque<std::string>& events = headless_.events();
    const auto found = std::find_if_not(events.begin(), events.end(), isOfWindow);
    if (found != events.end()) fail("event", "none", *found);
}

void ScriptRunner::expectLines(const char* fieldName, ScriptLine& line) {
    Text expected = line.quotedText();
    while (!line.atEnd()) expected += u"\r\n" + line.quotedText();
    const auto found = valueOf(fieldName, program(), headless_);
    if (*found != quoted(expected)) fail(fieldName, quoted(expected), *found);
}

void ScriptRunner::fail(std::string_view name, std::string_view expected, std::string_view found) {
    allHeld_ = false;
    errors_ << "line " << lineNumber_ << ": " << name << ": expected " << expected << ", found " << found
            << '\n';
}

Program& ScriptRunner::program() {
    if (!program_) throw MalformedScript("no calculator yet: fresh comes first");
    return *program_;
}

Window& ScriptRunner::window() {
    program();
    return *headless_.inUse().window;
}

KeyRoad& ScriptRunner::keys() {
    program();
    headless_.settleActivation();
    return *headless_.inUse().keys;
}

Control& ScriptRunner::control(const std::string& name) {
    Control* const found = controlOf(name, program());
    if (found == nullptr) throw MalformedScript("unknown control " + name);
    return *found;
}

}  // namespace zifferon
