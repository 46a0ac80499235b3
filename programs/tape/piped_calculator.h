// A calculator for a pipe: keys go in, and the tape comes out. It leaves nothing behind, neither files nor
// snapshots.
#pragma once

#include <sstream>

#include "platform/headless/headless_machine.h"
#include "platform/headless/headless_system.h"
#include "platform/posix_files.h"
#include "shell/program.h"

namespace zifferon {

// An empty program folder among the system's temporary files, which goes away with it.
class PassingFolder {
  public:
    // Throws std::filesystem::filesystem_error where there can be none.
    PassingFolder();
    ~PassingFolder();
    PassingFolder(const PassingFolder&) = delete;
    PassingFolder& operator=(const PassingFolder&) = delete;

    const std::string& path() const { return path_; }

  private:
    std::string path_;
};

class PipedCalculator {
  public:
    struct Options {
        Language language = Language::german;
        bool point = false;
        std::optional<int> decimals;  // 0 to 4: each total is rounded to so many
    };
    explicit PipedCalculator(const Options& options);

    // Each character is a key.
    void type(TextView keys);

    // Adds the one figure of a text; false where it is none, or not only one, or too long to be entered
    // whole.
    bool add(TextView text);

    // The print copy, with LF between its lines.
    std::string tape() const;

    // Whether a calculation has come to no result.
    bool failed() const { return failed_; }

  private:
    PassingFolder folder_;
    std::ostringstream nowhere_;
    HeadlessMachine headless_{nowhere_};
    HeadlessSystem system_;
    PosixFiles files_{folder_.path()};
    Machine machine_ = headless_.with(files_, system_);
    Program program_{machine_};
    bool failed_ = false;
};

}  // namespace zifferon
