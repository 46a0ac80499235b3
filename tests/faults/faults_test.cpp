// A day's work with files, whose every operation fails once, and which is killed at any moment. Behind a
// fault the calculation stands as before or as meant, and every file is the old one or the new one, whole.

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <map>
#include <random>
#include <thread>

#include "programs/script/script_runner.h"
#include "shell/required_files.h"
#include "tests/faults/failing_calls.h"
#include "tests/support/fresh_folder.h"
#include "tests/support/record_bytes.h"

namespace zifferon {
namespace {

constexpr const char* work = R"(
machine printer "Zett A"; start; wait 3000
type 12,50+; type 3; press ENTER; click Save; press C; press C
type 7*; type 6; press ENTER; press RIGHT; press RIGHT; type 1-
click edit; type Miete Mai; click Speichern; press F5; type Zwei; click Speichern
choose Files "Miete Mai.sav"; press SPACE; answer yes; click laden
choose Files "Zwei.sav"; answer yes; click killfile
click optbtn; click standardprint; click optbtn
click cmdkopf; click kopf.muster; click kopf.kopfok; click editordruck
click leave; answer yes; click load; type 2+; answer yes; press F12
)";

// The calculation as its record's bytes, and all files.
struct Moment {
    std::string calculation;
    std::map<std::string, std::string> files;
};

// What is told when the script has run, with each of its lines and the call that has failed so far.
std::string run(const std::string& lines, const std::function<void(std::string_view, Program&)>& behindLine) {
    std::ostringstream told;
    std::istringstream script(lines);
    ScriptRunner runner(told, told);
    runner.onLine = [&](std::string_view line, Program& program) {
        told << line << "  " << failedCall() << '\n';
        behindLine(line, program);
    };
    EXPECT_NE(runner.run(script), 2);
    return told.str();
}

// What a fault may leave of a line's effect: nothing, or all. A file that was to be created may be empty.
void expectOneOf(const Moment& found, const Moment& before, const Moment& meant) {
    EXPECT_TRUE(found.calculation == before.calculation || found.calculation == meant.calculation);
    for (const auto& [name, bytes] : found.files) {
        const auto isAsIn = [&, &file = name, &content = bytes](const Moment& moment) {
            const auto other = moment.files.find(file);
            return other != moment.files.end() ? other->second == content : content.empty();
        };
        EXPECT_TRUE(isAsIn(before) || isAsIn(meant)) << name << ": " << bytes.size() << " bytes";
    }
}

class Faults : public testing::Test {
  protected:
    Faults() { std::filesystem::current_path(folder_.path()); }
    ~Faults() override { std::filesystem::current_path("/"); }

    void layOut() const {
        for (const auto& entry : std::filesystem::directory_iterator(".")) std::filesystem::remove_all(entry);
        for (const char* const name : requiredFiles) folder_.put(name, "");
        for (const char* const name : {"decpoint.dat", "ntcheck.zfr"}) {
            folder_.put(name, fromHex("00 00 80 3F"));  // 1, a single: the first run is behind
        }
    }

    // The files of the folder; snapshots are not looked at, as Undo drops what it cannot read.
    Moment momentOf(std::string calculation) const {
        Moment moment{std::move(calculation), {}};
        for (const auto& entry : std::filesystem::directory_iterator(".")) {
            const std::string name = entry.path().filename();
            if (entry.is_regular_file()) moment.files[name] = folder_.bytes(name);
        }
        return moment;
    }

    // Looks at the calculation behind each line of the work, by the line's number, and behind the end.
    void runWork(const std::function<void(std::size_t, const std::string&)>& look) {
        layOut();
        std::size_t line = 0;
        std::string calculation;
        std::string lines = work;
        std::ranges::replace(lines, ';', '\n');
        told_ = run(lines, [&](std::string_view, Program& program) {
            calculation = recordBytes(program.pultform.state);
            look(line++, calculation);
        });
        look(line, calculation);
    }

    FreshFolder folder_;
    std::string told_;
};

TEST_F(Faults, leaveTheCalculationAndWholeFiles) {
    armFault(0, EIO);
    std::vector<Moment> moments;
    runWork([&](std::size_t, const std::string& calculation) { moments.push_back(momentOf(calculation)); });
    for (const int error : {ENOSPC, EACCES, EIO, shortWrite}) {
        bool came = true;
        for (int n = 1; came; ++n) {
            came = false;
            armFault(n, error);
            runWork([&](std::size_t line, const std::string& calculation) {
                if (failedCall().empty() || std::exchange(came, true) || line == 0) return;
                expectOneOf(momentOf(calculation), moments[line - 1], moments[line]);
            });
            if (HasFailure()) FAIL() << "fault " << n << " of " << error << ": " << told_;
        }
    }
    for (const char* const call : {"openat", "close", "pread", "writev", "fsync", "renameat", "unlinkat",
                                   "mkdirat", "posix_fallocate", "fstat", "fdopendir"}) {
        EXPECT_TRUE(countedCalls().contains(call)) << call;
    }
}

// Types a number and stores it, and the next one, for ever; tells each number when it is stored.
[[noreturn]] void storeNumbers(int from, int pipe) {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);  // and not longer than the test
    std::string lines = "start\nwait 3000\n";
    for (int i = from; i < from + 10000; ++i) {
        lines += "press C\ntype " + std::to_string(i) + "+\nclick Save\n";
    }
    run(lines, [&, number = from](std::string_view line, Program&) mutable {
        if (line == "click Save" && ::write(pipe, &number, sizeof number) == sizeof number) ++number;
    });
    ::_exit(EXIT_FAILURE);
}

// What stands behind the next start.
std::string numberAfterStart() {
    std::string number;
    run("start\nwait 3000\n",
        [&](std::string_view, Program& program) { number = toUtf8(program.pultform.state.zwischen.text()); });
    std::erase(number, '.');  // of the groups
    return number;
}

TEST_F(Faults, aKillLeavesWhatWasStoredLast) {
    layOut();
    armFault(0, EIO);
    std::mt19937 random(7);
    int stored = 0;
    for (int kill = 0; kill < 500 && !HasFailure(); ++kill) {
        std::array<int, 2> pipe{};
        ASSERT_EQ(::pipe(pipe.data()), 0);
        const pid_t child = ::fork();
        if (child == 0) storeNumbers(stored + 1, pipe[1]);
        ::close(pipe[1]);
        auto readStored = [&, number = 0]() mutable {
            if (::read(pipe[0], &number, sizeof number) != sizeof number) return false;
            stored = number;
            return true;
        };
        // Every other one dies behind its start, however slow the machine is.
        if (kill % 2 == 0) {
            ASSERT_TRUE(readStored());
        }
        std::this_thread::sleep_for(std::chrono::microseconds(random() % 8000));
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        while (readStored()) {
        }
        ::close(pipe[0]);
        const std::string number = numberAfterStart();
        const bool nextIsStored = number == std::to_string(stored + 1) + ",00";
        if (nextIsStored) ++stored;
        EXPECT_TRUE(nextIsStored || number == (stored > 0 ? std::to_string(stored) + ",00" : "0")) << number;
    }
    EXPECT_GE(stored, 250);
}

}  // namespace
}  // namespace zifferon
