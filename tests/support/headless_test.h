// The program without a window, in a folder of its own that goes away with it.
#pragma once

#include <gtest/gtest.h>

#include <sstream>

#include "platform/headless/faulty_files.h"
#include "platform/headless/headless_machine.h"
#include "platform/headless/headless_system.h"
#include "platform/posix_files.h"
#include "shell/program.h"
#include "tests/support/fresh_folder.h"

namespace zifferon {

// What a program without a window stands on.
class HeadlessStage {
  protected:
    static void type(Program& program, TextView characters) {
        for (const char16_t character : characters) program.keys.stroke(keyOfCharacter(character));
    }
    bool logHas(const std::string& words) const { return log_.str().find(words) != std::string::npos; }

    FreshFolder folder_;
    std::ostringstream log_;
    HeadlessMachine headless_{log_};
    HeadlessSystem system_;
    PosixFiles disk_{folder_.path()};
    FaultyFiles files_{disk_};
    Machine machine_ = headless_.with(files_, system_);
};

class HeadlessTest : public testing::Test, protected HeadlessStage {};

// The same with a calculator that has just begun.
class FreshProgramTest : public HeadlessTest {
  protected:
    FreshProgramTest() {
        headless_.setMainWindow(program_.pultform, program_.keys);
        program_.beginFresh();
    }

    void type(TextView characters) { HeadlessTest::type(program_, characters); }
    CalculatorState& state() { return program_.pultform.state; }

    Program program_{machine_};
};

}  // namespace zifferon
