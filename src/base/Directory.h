#pragma once

#include <string>
#include <vector>

/// A directory on disk and the list of what is in it. Paths use "/" and are not normalised.
class Directory
{
public:
    explicit Directory(const std::string& path);

    /// True only for an existing directory; a plain file counts as not existing.
    bool exists() const;
    static bool exists(const std::string& path);

    /// Full paths in the order in which the system reports them. Not recursive: files and
    /// sub-directories alike. Recursive: files only, depth first. Links to directories are
    /// listed but not entered, so a link to a parent can't send the walk round in circles.
    std::vector<std::string> entryList(bool recursive);
    void readDirectory(const std::string& dir, bool recursive);

    /// \p file itself when it names a directory, else the text before its last "/" (empty when
    /// there is none). The file need not exist.
    static std::string extractPathFomFile(const std::string& file);

    /// Creates every missing directory along \p path ("/" and "\" both separate); returns
    /// whether the path exists afterwards.
    static bool createDirectoryRecursive(const std::string& path);

private:
    std::vector<std::string> mEntries;
    std::string mPath;
};
