#pragma once

#include <csignal>
#include <fstream>
#include <sys/resource.h>
#include <unistd.h>

// There in a process that runs under a sanitizer.
extern "C" [[gnu::weak]] void __asan_init();
extern "C" [[gnu::weak]] void __tsan_init();

/// While it lives, this process gets no more of a resource than so much.
class ResourceLimit
{
public:
    /// Not under the sanitizers: they reserve terabytes, and write files, too.
    static bool isPossible() { return __asan_init == nullptr && __tsan_init == nullptr; }

    /// No file can grow beyond a size, as on a full disk.
    static ResourceLimit fullDisk(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        return ResourceLimit(RLIMIT_FSIZE, bytes);
    }

    /// No more memory than so many bytes beyond what is in use.
    static ResourceLimit shortMemory(rlim_t bytes)
    {
        rlim_t pages = 0;
        std::ifstream("/proc/self/statm") >> pages;
        return ResourceLimit(RLIMIT_AS, pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE)) + bytes);
    }

    ResourceLimit(const ResourceLimit&) = delete;
    ResourceLimit& operator=(const ResourceLimit&) = delete;
    ~ResourceLimit() { setrlimit(mResource, &mBefore); }

private:
    ResourceLimit(decltype(RLIMIT_AS) resource, rlim_t most) : mResource(resource)
    {
        getrlimit(mResource, &mBefore);
        const rlimit limit{most, mBefore.rlim_max};
        setrlimit(mResource, &limit);
    }

    decltype(RLIMIT_AS) mResource;
    rlimit mBefore{};
};
