#include "platform/posix_calls.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

#include <algorithm>
#include <array>

namespace zifferon {

Descriptor::~Descriptor() {
    if (number_ >= 0) ::close(number_);
}

int Descriptor::release() { return std::exchange(number_, -1); }

void Descriptor::close() {
    if (::close(release()) != 0 && errno != EINTR) fail();  // interrupted, it is closed all the same
}

FileTrouble troubleOf(int error) {
    switch (error) {
        case ENOENT:
        case ENOTDIR:
            return FileTrouble::missing;
        case EACCES:
        case EPERM:
        case EROFS:
        case ETXTBSY:
        case EISDIR:
            return FileTrouble::access;
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return FileTrouble::noSpace;
        default:
            return FileTrouble::other;
    }
}

void fail() { throw FileFailure(troubleOf(errno)); }

int openFile(int folder, const std::string& name, int flags) {
    constexpr mode_t newFile = 0666;  // less what the user's mask takes away
    return checked([&] { return ::openat(folder, name.c_str(), flags | O_CLOEXEC | O_NONBLOCK, newFile); });
}

namespace {

using Parts = std::array<iovec, 8>;  // so many pieces are written at once

// Fills `parts` with what of the pieces lies behind the first `done` bytes, as far as it goes; returns how
// many.
int cut(std::span<const std::string_view> pieces, std::size_t done, Parts& parts) {
    std::size_t count = 0;
    for (std::string_view piece : pieces) {
        const std::size_t skipped = std::min(done, piece.size());
        done -= skipped;
        piece.remove_prefix(skipped);
        if (piece.empty()) continue;
        parts[count++] = {const_cast<char*>(piece.data()), piece.size()};
        if (count == parts.size()) break;
    }
    return static_cast<int>(count);
}

}  // namespace

void writeAll(const Descriptor& file, std::span<const std::string_view> pieces) {
    Parts parts;
    std::size_t done = 0;
    while (const int count = cut(pieces, done, parts)) {
        done +=
            static_cast<std::size_t>(checked([&] { return ::writev(file.number(), parts.data(), count); }));
    }
}

off_t sizeOf(const Descriptor& file) {
    struct stat status;
    checked([&] { return ::fstat(file.number(), &status); });
    return status.st_size;
}

}  // namespace zifferon
