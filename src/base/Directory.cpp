#include "base/Directory.h"

#include "base/Api.h"

#include <cstring>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool isDirectory(const std::string& path, bool followLinks)
{
    struct stat info = {};
    const int result = followLinks ? stat(path.c_str(), &info) : lstat(path.c_str(), &info);
    return result == 0 && S_ISDIR(info.st_mode);
}

} // namespace

Directory::Directory(const std::string& path) : mPath(path) {}

bool Directory::exists() const
{
    return exists(mPath);
}

bool Directory::exists(const std::string& path)
{
    return isDirectory(path, true);
}

std::vector<std::string> Directory::entryList(bool recursive)
{
    mEntries.clear();
    readDirectory(mPath, recursive);
    return mEntries;
}

void Directory::readDirectory(const std::string& dir, bool recursive)
{
    void* handle = apiOpenDir(dir.c_str());
    if (handle == nullptr) {
        return;
    }
    char name[256];
    while (apiReadDir(handle, name) != 0) {
        if (std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0) {
            continue;
        }
        const std::string full = dir + "/" + name;
        if (recursive && isDirectory(full, false)) {
            readDirectory(full, recursive);
        } else {
            mEntries.push_back(full);
        }
    }
    apiCloseDir(handle);
}

std::string Directory::extractPathFomFile(const std::string& file)
{
    if (exists(file)) {
        return file;
    }
    const auto slash = file.rfind('/');
    return slash == std::string::npos ? std::string() : file.substr(0, slash);
}

bool Directory::createDirectoryRecursive(const std::string& path)
{
    if (exists(path)) {
        return true;
    }
    // From the second character: a leading "/" must not ask for a directory without a name.
    for (auto at = path.find_first_of("\\/", 1); at != std::string::npos;
         at = path.find_first_of("\\/", at + 1)) {
        mkdir(path.substr(0, at).c_str(), 0777);
    }
    mkdir(path.c_str(), 0777);
    return access(path.c_str(), F_OK) == 0;
}
