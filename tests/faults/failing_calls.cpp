#include "tests/faults/failing_calls.h"

#include <dirent.h>
#include <sys/stat.h>
#include <sys/uio.h>

#include <cerrno>

namespace zifferon {

namespace {

int callsToFault = 0;
int errorNumber = 0;
std::string failed;
std::map<std::string, int> counted;

bool fails(const char* call) {
    ++counted[call];
    if (--callsToFault != 0) return false;
    failed = call;
    if (errorNumber != shortWrite) errno = errorNumber;
    return true;
}

// A short write is none of any other call.
bool failsOtherwise(const char* call) { return fails(call) && errorNumber != shortWrite; }

}  // namespace

void armFault(int n, int error) {
    callsToFault = n;
    errorNumber = error;
    failed.clear();
}

const std::string& failedCall() { return failed; }

const std::map<std::string, int>& countedCalls() { return counted; }

}  // namespace zifferon

using zifferon::failsOtherwise;

extern "C" {

#define ZIFFERON_WRAP(result, name, failure, parameters, arguments) \
    result __real_##name parameters;                                \
    result __wrap_##name parameters;                                \
    result __wrap_##name parameters { return failsOtherwise(#name) ? (failure) : __real_##name arguments; }

ZIFFERON_WRAP(ssize_t, pread, -1, (int file, void* to, size_t size, off_t at), (file, to, size, at))
ZIFFERON_WRAP(int, fsync, -1, (int file), (file))
ZIFFERON_WRAP(int, ftruncate, -1, (int file, off_t size), (file, size))
ZIFFERON_WRAP(int, renameat, -1, (int from, const char* name, int to, const char* newName),
              (from, name, to, newName))
ZIFFERON_WRAP(int, unlinkat, -1, (int folder, const char* name, int flags), (folder, name, flags))
ZIFFERON_WRAP(int, mkdirat, -1, (int folder, const char* name, mode_t mode), (folder, name, mode))
ZIFFERON_WRAP(int, posix_fallocate, errno, (int file, off_t at, off_t size), (file, at, size))
ZIFFERON_WRAP(int, fstat, -1, (int file, struct stat* status), (file, status))
ZIFFERON_WRAP(DIR*, fdopendir, nullptr, (int folder), (folder))

// The mode is handed on whether it was given or not.
ZIFFERON_WRAP(int, openat, -1, (int folder, const char* name, int flags, mode_t mode),
              (folder, name, flags, mode))
// What fails to close is closed all the same.
ZIFFERON_WRAP(int, close, (__real_close(file), errno = zifferon::errorNumber, -1), (int file), (file))

ssize_t __real_writev(int file, const iovec* pieces, int count);
ssize_t __wrap_writev(int file, const iovec* pieces, int count);
ssize_t __wrap_writev(int file, const iovec* pieces, int count) {
    if (!zifferon::fails("writev")) return __real_writev(file, pieces, count);
    if (zifferon::errorNumber != zifferon::shortWrite) return -1;
    const iovec half{pieces->iov_base, (pieces->iov_len + 1) / 2};
    return __real_writev(file, &half, 1);
}
}
