// System calls that fail when told to. The program is linked with -Wl,--wrap for each of them, so
// that those of its libraries are left alone.
#pragma once

#include <map>
#include <string>

namespace zifferon {

inline constexpr int shortWrite = -1;  // in place of an error number: half of the bytes are written

// From now on the n-th call, counted from 1, fails with the error number; those behind it work again. 0: none
// fails.
void armFault(int n, int error);

// The call that has failed since; empty where none has.
const std::string& failedCall();

// How often each call has been counted so far.
const std::map<std::string, int>& countedCalls();

}  // namespace zifferon
