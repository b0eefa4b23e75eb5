// Preloaded into a program under test: counts the system calls by which files come and go, and
// sends the program a signal in front of a chosen one. Names:
//
//     FAULTS_SIGNAL="N S"     signal S in front of the call with the number N, counted from 1
//     FAULTS_NO_TMPFILE=1     the file system knows no files without a name
//     FAULTS_NO_LIBRARY=name  libraries with this in their names can't be loaded

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/types.h>

namespace {

template <typename Function>
Function* Original(const char* name)
{
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

void Count()
{
    static int calls = 0;
    const char* const text = std::getenv("FAULTS_SIGNAL");
    int call = 0;
    int signal = 0;
    if (text != nullptr && std::sscanf(text, "%d %d", &call, &signal) == 2 && ++calls == call)
        std::raise(signal);
}

int Open(const char* symbol, const char* path, int flags, mode_t mode)
{
    const bool isUnnamed = (flags & O_TMPFILE) == O_TMPFILE;
    if (isUnnamed && std::getenv("FAULTS_NO_TMPFILE") != nullptr) {
        errno = EOPNOTSUPP;
        return -1;
    }
    if (isUnnamed || (flags & O_CREAT) != 0)
        Count();
    return Original<int(const char*, int, ...)>(symbol)(path, flags, mode);
}

mode_t ModeOf(int flags, va_list arguments)
{
    const bool hasMode = (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
    return hasMode ? va_arg(arguments, mode_t) : 0;
}

} // namespace

extern "C" {

__attribute__((visibility("default"))) int open(const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeOf(flags, arguments);
    va_end(arguments);
    return Open("open", path, flags, mode);
}

__attribute__((visibility("default"))) int open64(const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeOf(flags, arguments);
    va_end(arguments);
    return Open("open64", path, flags, mode);
}

__attribute__((visibility("default"))) ssize_t write(int file, const void* bytes, size_t size)
{
    constexpr int lastStandardStream = 2;
    if (file > lastStandardStream)
        Count();
    return Original<ssize_t(int, const void*, size_t)>("write")(file, bytes, size);
}

__attribute__((visibility("default"))) void* dlopen(const char* path, int flags)
{
    const char* const missing = std::getenv("FAULTS_NO_LIBRARY");
    if (missing != nullptr && path != nullptr && std::strstr(path, missing) != nullptr)
        return nullptr;
    return Original<void*(const char*, int)>("dlopen")(path, flags);
}

__attribute__((visibility("default"))) int fchmod(int file, mode_t mode)
{
    Count();
    return Original<int(int, mode_t)>("fchmod")(file, mode);
}

__attribute__((visibility("default"))) int fsync(int file)
{
    Count();
    return Original<int(int)>("fsync")(file);
}

__attribute__((visibility("default"))) int linkat(int oldFolder, const char* oldPath, int newFolder,
                                                  const char* newPath, int flags)
{
    Count();
    return Original<int(int, const char*, int, const char*, int)>("linkat")(
        oldFolder, oldPath, newFolder, newPath, flags);
}

__attribute__((visibility("default"))) int rename(const char* from, const char* to)
{
    Count();
    const int result = Original<int(const char*, const char*)>("rename")(from, to);
    Count();
    return result;
}
}
