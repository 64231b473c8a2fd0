#pragma once

#include <csignal>
#include <fstream>
#include <sys/resource.h>
#include <unistd.h>

/// While it lives, this process gets no more of a resource than so much.
class ResourceLimit
{
public:
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
