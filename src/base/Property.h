#pragma once

#include <map>
#include <string>

namespace TARN {

/// The user's settings: a store of texts by key, kept in one XML file.
///
/// There is no schema; every getter passes the default that holds while its key is absent.
/// Setting a value never writes the file, the caller does with writeXmlFile().
class Property
{
public:
    static Property* instance();

    void setConfigFile(const std::string& file);
    const std::string& configFile() const { return mConfigFile; }

    /// Merges the file's entries into the store. A file that can't be read leaves the store as
    /// it is; that is reported on the diagnostic stream and is not an error. Where that is the
    /// configuration file, it is renamed so that the next writing does not replace it.
    bool readXmlFile();
    bool readXmlFile(const std::string& file);

    /// Where the configuration file is now that could not be read; empty when there is none such.
    const std::string& damagedFile() const { return mDamagedFile; }

    /// Writes every setting that is not empty, in key order. The old file stays when writing
    /// fails; the result is true all the same, settings are never worth stopping for.
    bool writeXmlFile();
    bool writeXmlFile(const std::string& file);

    void setString(const std::string& key, const std::string& value);
    void setInt(const std::string& key, int value);
    void setDouble(const std::string& key, double value); ///< kept with six significant digits
    void setSwitch(const std::string& key, bool value);

    std::string getString(const std::string& key, const std::string& def) const;
    int getInt(const std::string& key, int def) const;
    double getDouble(const std::string& key, double def) const;
    /// True for "true", "TRUE" and "True", false for any other text.
    bool getSwitch(const std::string& key, bool def) const;

    /// Forgets every setting; the file stays.
    void clear();

private:
    bool merge(const std::string& file);
    const std::string* find(const std::string& key) const;

    std::map<std::string, std::string> mProperties;
    std::string mConfigFile;
    std::string mDamagedFile;
};

} // namespace TARN
