/* SPDX-FileCopyrightText: 2026 the ceiechart authors */
/* SPDX-License-Identifier: MIT */
#define _GNU_SOURCE
#include "failingcalls.h"

#include <dlfcn.h>
#include <errno.h>
#include <execinfo.h>
#include <fcntl.h>
#include <limits.h>
#include <stdarg.h>
#include <stdatomic.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

enum Call { None, Open, Read, Write, Fsync, Rename, Memory, OwnMemory };

static const char *const names[] = {"", "open", "read", "write", "fsync", "rename", "memory", "own memory"};
static enum Call failing = None;
static int failingNumber = 0;
static int isLasting = 0;
static char failingFolder[PATH_MAX];
static char firedFile[PATH_MAX];
static atomic_int count;
static atomic_int armed; /* whether the folder has been opened in: allocations count from there */
static atomic_int fired;

void failCall(const char *call, int number, const char *folder, int lasting)
{
    failing = None;
    isLasting = lasting;
    atomic_store(&count, 0);
    atomic_store(&armed, 0);
    atomic_store(&fired, 0);
    failingNumber = number;
    snprintf(failingFolder, sizeof failingFolder, "%s", folder ? folder : "");
    void *frame = NULL;
    backtrace(&frame, 1); /* loads what it needs */
    for (int i = Open; call && i <= OwnMemory; ++i) {
        if (strcmp(call, names[i]) == 0) {
            failing = (enum Call)i;
        }
    }
}

int hasCallFailed(void)
{
    return atomic_load(&fired);
}

int numberOfCalls(void)
{
    return atomic_load(&count);
}

__attribute__((constructor)) static void readEnvironment(void)
{
    const char *number = getenv("FAULT_NUMBER");
    const char *file = getenv("FAULT_FIRED");
    if (number) {
        snprintf(firedFile, sizeof firedFile, "%s", file ? file : "");
        failCall(getenv("FAULT_CALL"), atoi(number), getenv("FAULT_FOLDER"), getenv("FAULT_LASTING") != NULL);
    }
}

static int isInFolder(const char *path)
{
    const size_t length = strlen(failingFolder);
    /* A file without a name yet is opened by the name of its folder. */
    return length > 0 && path && strncmp(path, failingFolder, length) == 0
        && (path[length] == '/' || path[length] == 0);
}

static int isOfFolder(int descriptor)
{
    char link[64];
    char path[PATH_MAX];
    snprintf(link, sizeof link, "/proc/self/fd/%d", descriptor);
    const ssize_t length = readlink(link, path, sizeof path - 1);
    if (length < 0) {
        return 0;
    }
    path[length] = 0;
    return isInFolder(path);
}

/* The function of that name that this one takes the place of. */
#define ORIGINAL(type, name, ...)                                                                                      \
    static type (*original)(__VA_ARGS__);                                                                              \
    if (!original) {                                                                                                   \
        *(void **)&original = dlsym(RTLD_NEXT, name);                                                                  \
    }

/* Whether this call is the one that is to fail. */
static int fails(enum Call call)
{
    if (failing != call) {
        return 0;
    }
    const int number = atomic_fetch_add(&count, 1) + 1;
    if (number < failingNumber || (number > failingNumber && !isLasting)) {
        return 0;
    }
    atomic_store(&fired, 1);
    if (firedFile[0] && number == failingNumber) {
        ORIGINAL(int, "creat", const char *, mode_t)
        const int descriptor = original(firedFile, 0600);
        if (descriptor >= 0) {
            close(descriptor);
        }
    }
    return 1;
}

static int mayOpen(const char *path)
{
    if (!isInFolder(path)) {
        return 1;
    }
    atomic_store(&armed, 1);
    if (fails(Open)) {
        errno = EMFILE;
        return 0;
    }
    return 1;
}

static mode_t modeOf(int flags, va_list arguments)
{
    return (flags & (O_CREAT | O_TMPFILE)) ? (mode_t)va_arg(arguments, int) : 0;
}

int open(const char *path, int flags, ...)
{
    ORIGINAL(int, "open", const char *, int, ...)
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeOf(flags, arguments);
    va_end(arguments);
    return mayOpen(path) ? original(path, flags, mode) : -1;
}

int open64(const char *path, int flags, ...)
{
    ORIGINAL(int, "open64", const char *, int, ...)
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeOf(flags, arguments);
    va_end(arguments);
    return mayOpen(path) ? original(path, flags, mode) : -1;
}

ssize_t read(int descriptor, void *bytes, size_t size)
{
    ORIGINAL(ssize_t, "read", int, void *, size_t)
    if (failing == Read && isOfFolder(descriptor) && fails(Read)) {
        errno = EIO;
        return -1;
    }
    return original(descriptor, bytes, size);
}

static int mayWrite(int descriptor)
{
    if (failing == Write && (descriptor == STDOUT_FILENO || isOfFolder(descriptor)) && fails(Write)) {
        errno = ENOSPC;
        return 0;
    }
    return 1;
}

ssize_t write(int descriptor, const void *bytes, size_t size)
{
    ORIGINAL(ssize_t, "write", int, const void *, size_t)
    if (mayWrite(descriptor)) {
        return original(descriptor, bytes, size);
    }
    /* A disk fills up in the middle of what is written. */
    if (size > 1) {
        const ssize_t written = original(descriptor, bytes, size / 2);
        (void)written;
    }
    errno = ENOSPC;
    return -1;
}

size_t fwrite(const void *bytes, size_t size, size_t items, FILE *stream)
{
    ORIGINAL(size_t, "fwrite", const void *, size_t, size_t, FILE *)
    return mayWrite(fileno(stream)) ? original(bytes, size, items, stream) : 0;
}

int fsync(int descriptor)
{
    ORIGINAL(int, "fsync", int)
    if (failing == Fsync && isOfFolder(descriptor) && fails(Fsync)) {
        errno = EIO;
        return -1;
    }
    return original(descriptor);
}

int fdatasync(int descriptor)
{
    ORIGINAL(int, "fdatasync", int)
    if (failing == Fsync && isOfFolder(descriptor) && fails(Fsync)) {
        errno = EIO;
        return -1;
    }
    return original(descriptor);
}

static int mayRename(const char *to)
{
    if (failing == Rename && isInFolder(to) && fails(Rename)) {
        errno = EACCES;
        return 0;
    }
    return 1;
}

int rename(const char *from, const char *to)
{
    ORIGINAL(int, "rename", const char *, const char *)
    return mayRename(to) ? original(from, to) : -1;
}

int renameat2(int fromFolder, const char *from, int toFolder, const char *to, unsigned flags)
{
    ORIGINAL(int, "renameat2", int, const char *, int, const char *, unsigned)
    return mayRename(to) ? original(fromFolder, from, toFolder, to, flags) : -1;
}

int linkat(int fromFolder, const char *from, int toFolder, const char *to, int flags)
{
    ORIGINAL(int, "linkat", int, const char *, int, const char *, int)
    return mayRename(to) ? original(fromFolder, from, toFolder, to, flags) : -1;
}

/* The allocator of the GNU C library, which is there before anything can be looked up. */
extern void *__libc_malloc(size_t size);
extern void *__libc_calloc(size_t number, size_t size);
extern void *__libc_realloc(void *block, size_t size);

/*
 * Whether what has called the allocator at the address caller is code of the project, be it through the containers of
 * the toolkit's core or the C++ library, which pass on that there is no memory. All else of the toolkit does not.
 */
static int isOwn(const void *caller)
{
    static const char *const passing[] = {"libc.so", "libstdc++", "Qt5Core", "Qt6Core"};
    static const char *const own[] = {"libceiechart", "libgamut", "libcolortemperature"};
    void *frames[32];
    const int number = backtrace(frames, 32);
    Dl_info program;
    if (!dladdr((const void *)(size_t)&failCall, &program)) {
        return 0;
    }
    int i = 0;
    while (i < number && frames[i] != caller) {
        ++i;
    }
    for (; i < number; ++i) {
        Dl_info info;
        if (!dladdr(frames[i], &info) || !info.dli_fname) {
            return 0;
        }
        int passes = 0;
        for (size_t k = 0; k < sizeof passing / sizeof *passing; ++k) {
            passes = passes || strstr(info.dli_fname, passing[k]) != NULL;
        }
        if (passes) {
            continue;
        }
        for (size_t k = 0; k < sizeof own / sizeof *own; ++k) {
            if (strstr(info.dli_fname, own[k])) {
                return 1;
            }
        }
        return info.dli_fbase == program.dli_fbase;
    }
    return 0;
}

static int mayAllocate(const void *caller)
{
    if ((failing != Memory && failing != OwnMemory) || !atomic_load(&armed)) {
        return 1;
    }
    if (!fails(failing)) {
        return 1;
    }
    if (failing == OwnMemory && !isOwn(caller)) {
        atomic_store(&fired, 0);
        return 1;
    }
    errno = ENOMEM;
    return 0;
}

void *malloc(size_t size)
{
    return mayAllocate(__builtin_return_address(0)) ? __libc_malloc(size) : NULL;
}

void *calloc(size_t number, size_t size)
{
    return mayAllocate(__builtin_return_address(0)) ? __libc_calloc(number, size) : NULL;
}

void *realloc(void *block, size_t size)
{
    return mayAllocate(__builtin_return_address(0)) ? __libc_realloc(block, size) : NULL;
}
