// SPDX-License-Identifier: MIT
#include "writewatch.h"

#include <climits>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

// Qt calls these functions of the C library through its table of imports, so that those of the program come first.

namespace {

const char *watchedFolder = nullptr;

// Links in the folders on the way count as what they lead to; the last part may not exist yet.
std::string withoutLinks(const std::string &path)
{
    const std::size_t slash = path.rfind('/');
    const std::string parent = slash == std::string::npos ? "." : path.substr(0, slash + 1);
    char resolved[PATH_MAX];
    if (!realpath(parent.c_str(), resolved)) {
        return {}; // nothing can be made where there is no folder
    }
    return std::string(resolved) + '/' + path.substr(slash == std::string::npos ? 0 : slash + 1);
}

void check(const char *path, const char *what)
{
    if (!watchedFolder || !path) {
        return;
    }
    const std::string place = withoutLinks(path);
    const std::string inside = std::string(watchedFolder) + '/';
    if (!place.empty() && place != watchedFolder && place.compare(0, inside.size(), inside) != 0) {
        std::fprintf(stderr, "==ERROR: %s outside of %s: %s\n", what, watchedFolder, path);
        std::abort();
    }
}

template <typename Function> Function original(const char *name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

} // namespace

WriteWatch::WriteWatch(const char *folder)
{
    watchedFolder = folder;
}

WriteWatch::~WriteWatch()
{
    watchedFolder = nullptr;
}

extern "C" {

__attribute__((visibility("default"))) int open64(const char *path, int flags, ...)
{
    static const auto next = original<int (*)(const char *, int, ...)>("open64");
    va_list rest;
    va_start(rest, flags);
    const unsigned mode = va_arg(rest, unsigned);
    va_end(rest);
    if ((flags & O_ACCMODE) != O_RDONLY || (flags & O_CREAT) != 0) {
        check(path, "a file is written");
    }
    return next(path, flags, mode);
}

// A function that makes something at a path.
#define WATCHED(name, parameters, arguments, path, what)                                                               \
    __attribute__((visibility("default"))) int name parameters                                                         \
    {                                                                                                                  \
        static const auto next = original<decltype(&(name))>(#name);                                                   \
        check(path, what);                                                                                             \
        return next arguments;                                                                                         \
    }

WATCHED(mkdir, (const char *path, mode_t mode), (path, mode), path, "a folder is made")
WATCHED(link, (const char *from, const char *to), (from, to), to, "a file is linked")
WATCHED(linkat, (int fromFolder, const char *from, int toFolder, const char *to, int flags),
        (fromFolder, from, toFolder, to, flags), to, "a file is linked")
WATCHED(symlink, (const char *from, const char *to), (from, to), to, "a link is made")
WATCHED(rename, (const char *from, const char *to), (from, to), to, "a file is renamed")
}
