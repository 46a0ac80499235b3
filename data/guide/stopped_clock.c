// Stops the clock of the help compiler, which writes the time of day into what it makes, so that two builds
// are the same. To be preloaded; SOURCE_DATE_EPOCH tells the time, in seconds since 1970. The compiler asks
// the kernel itself and not the C library: its call is trapped, and answered here.
#define _GNU_SOURCE
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <signal.h>
#include <stddef.h>
#include <stdlib.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <time.h>
#include <ucontext.h>

#ifdef __x86_64__

static time_t stopped;

// Both calls take what is written as seconds and a fraction of the same sizes.
static void answer(int signalNumber, siginfo_t* call, void* context) {
    (void)signalNumber;
    greg_t* const registers = ((ucontext_t*)context)->uc_mcontext.gregs;
    const int at = call->si_syscall == SYS_gettimeofday ? REG_RDI : REG_RSI;
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the address is in a register
    *(struct timespec*)registers[at] = (struct timespec){.tv_sec = stopped};
    registers[REG_RAX] = 0;
}

__attribute__((constructor)) static void stopClock(void) {
    const char* const time = getenv("SOURCE_DATE_EPOCH");
    if (time == NULL) return;
    stopped = strtoll(time, NULL, 10);
    const struct sigaction action = {.sa_sigaction = answer, .sa_flags = SA_SIGINFO};
    sigaction(SIGSYS, &action, NULL);
    struct sock_filter filter[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(struct seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_gettimeofday, 1, 0),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_clock_gettime, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_TRAP),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    const struct sock_fprog program = {.len = sizeof filter / sizeof filter[0], .filter = filter};
    prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program);
}

#endif
