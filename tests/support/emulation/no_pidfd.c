// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

// Preloaded into test programs that run under qemu's user-mode emulation. qemu 7.2 answers
// waitid(P_PIDFD) but does not implement clone() with CLONE_PIDFD, so QProcess, having
// seen the first, fails every start on the second. Answering the probe as a kernel without
// pidfds does sends Qt to its fork() fallback. Every other system call passes.
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <stdarg.h>
#include <string.h>
#include <sys/syscall.h>

enum { IdTypePidFd = 3 }; // P_PIDFD, which older C libraries do not name

long syscall(long number, ...)
{
    va_list ap;
    va_start(ap, number);
    long a[6];
    for (int i = 0; i < 6; ++i)
        a[i] = va_arg(ap, long);
    va_end(ap);
    if (number == SYS_waitid && a[0] == IdTypePidFd) {
        errno = ENOSYS;
        return -1;
    }
    static long (*next)(long, ...);
    if (!next) {
        void *found = dlsym(RTLD_NEXT, "syscall");
        memcpy(&next, &found, sizeof next); // ISO C has no cast from an object to a function pointer
    }
    return next(number, a[0], a[1], a[2], a[3], a[4], a[5]);
}
