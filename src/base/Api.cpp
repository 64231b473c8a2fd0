#include "base/Api.h"

#include "base/Diagnostics.h"

#include <cstdio>
#include <dirent.h>
#include <dlfcn.h>
#include <sys/time.h>

double apiGetTime()
{
    timeval now{};
    gettimeofday(&now, nullptr);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_usec) * 1e-6;
}

void* apiOpenDir(const char* path)
{
    return path != nullptr ? opendir(path) : nullptr;
}

int apiReadDir(void* handle, char* name)
{
    if (handle == nullptr || name == nullptr) {
        return 0;
    }
    const dirent* entry = readdir(static_cast<DIR*>(handle));
    if (entry == nullptr) {
        return 0;
    }
    std::snprintf(name, 256, "%s", entry->d_name);
    return 1;
}

int apiCloseDir(void* handle)
{
    if (handle == nullptr) {
        return 0;
    }
    closedir(static_cast<DIR*>(handle));
    return 1;
}

void* apiDllOpen(const char* file)
{
    if (file == nullptr) {
        return nullptr;
    }
    dlerror();
    void* handle = dlopen(file, RTLD_NOW | RTLD_GLOBAL);
    if (const char* error = dlerror()) {
        TARN::diagnose("Error dlopen: %s\n", error);
        return nullptr;
    }
    return handle;
}

int apiDllClose(void* handle)
{
    if (handle != nullptr) {
        dlclose(handle);
    }
    return 0;
}

void* apiDllGetSymbol(void* handle, const char* symbol)
{
    if (handle == nullptr || symbol == nullptr) {
        return nullptr;
    }
    dlerror();
    void* address = dlsym(handle, symbol);
    return dlerror() == nullptr ? address : nullptr;
}
