// Calls of the POSIX file system, with their failures as FileFailure.
#pragma once

#include <sys/types.h>

#include <cerrno>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "platform/files.h"

namespace zifferon {

// A file descriptor that is closed with its owner.
class Descriptor {
  public:
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(other.release()) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor();

    int number() const { return number_; }

    // Hands the descriptor to the caller.
    int release();

    // Closes it now and throws FileFailure for what only the closing tells.
    void close();

  private:
    int number_;
};

// What an error number means.
FileTrouble troubleOf(int error);

// Throws the failure of the last call.
[[noreturn]] void fail();

// Repeats a call that a signal has interrupted; what else goes wrong is a failure.
template <class Call>
auto checked(Call call) {
    for (;;) {
        const auto result = call();
        if (result >= 0) return result;
        if (errno != EINTR) fail();
    }
}

// Opens a file of a folder, with the rights of a new file where it is created. Not blocking, so that a pipe
// in the place of a file is a failure and no waiting for ever.
int openFile(int folder, const std::string& name, int flags);

// Writes the pieces one behind the other, from where the file stands.
void writeAll(const Descriptor& file, std::span<const std::string_view> pieces);

off_t sizeOf(const Descriptor& file);

}  // namespace zifferon
