// Runs a key script on the program without a window: one line is one command.
#pragma once

#include <chrono>
#include <functional>

#include <istream>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>

#include "platform/folder_lock.h"
#include "platform/headless/faulty_files.h"
#include "platform/headless/headless_machine.h"
#include "platform/headless/headless_system.h"
#include "platform/posix_files.h"
#include "programs/script/script_line.h"
#include "shell/program.h"

namespace zifferon {

class ScriptRunner {
  public:
    // What is shown and what happens goes to `out`; failed expectations and the reason of a malformed script,
    // with their line numbers, to `errors`.
    ScriptRunner(std::ostream& out, std::ostream& errors);

    // What the script runs on.
    HeadlessMachine& machine() { return headless_; }

    // From now on a question that finds no queued answer fails, as an expectation does.
    void expectAnswers();

    // Runs behind each line of the script, with what it says; not behind one that ends the program.
    std::function<void(std::string_view line, Program& program)> onLine;

    // Exit code: 0 all expectations held, 1 one failed, 2 the script is malformed and stopped at that line.
    int run(std::istream& script);

  private:
    void runLines(const std::function<bool()>& going);
    void runLine(std::string_view line);
    void stayIn(const Window& modal);
    void unwindModal() const;
    bool runStage(const std::string& command, ScriptLine& line);
    bool runKeys(const std::string& command, ScriptLine& line);
    void click(Control& target);
    void doubleClick(Control& target);
    void mouseDown(Control& target);
    void mouseUp(Control& target);
    void choose(ScriptLine& line);
    void drag(ScriptLine& line);
    void makeGesture();
    static void pointAt(Control& target, std::int64_t row);
    bool inReach(const Control& target);
    void hover(Control& target);
    void pressByAccessKey(TextView controlName);
    bool runMouse(const std::string& command, ScriptLine& line);
    bool runDesktop(const std::string& command, ScriptLine& line);
    bool runLook(const std::string& command, ScriptLine& line);

    void setMachine(ScriptLine& line);
    void setClock(const std::string& moment);
    void start(ScriptLine& line);
    void fresh(ScriptLine& line);
    void beginAnew();
    void answer(ScriptLine& line);
    void type(TextView text);
    void select(const std::string& command, ScriptLine& line);
    void show(std::string_view name);
    void expect(ScriptLine& line);
    void expectEvent(const std::string& expected);
    void expectNoEvent(ScriptLine& line);
    void expectLines(const char* fieldName, ScriptLine& line);
    void fail(std::string_view name, std::string_view expected, std::string_view found);

    Program& program();
    Control& control(const std::string& name);

    // The window that takes keys and the mouse, and its key road.
    Window& window();
    KeyRoad& keys();

    std::ostream& out_;
    std::ostream& errors_;
    HeadlessMachine headless_;
    HeadlessSystem system_;
    FolderLock folder_;
    PosixFiles disk_;
    FaultyFiles files_;
    Machine machine_;
    std::unique_ptr<Program> program_;
    std::chrono::system_clock::time_point clock_;  // as the last line told it
    std::istream* script_ = nullptr;
    std::string line_;
    std::size_t lineNumber_ = 0;
    bool allHeld_ = true;
};

}  // namespace zifferon
