#pragma once

#include "base/OutputFile.h"

#include <string>
#include <vector>

namespace TARN {

/// Writes an XML document piece by piece, laid out as xmlText lays it out: what it takes does not
/// grow with the document. Elements are ended in the reverse order of their beginnings; names
/// are plain words. Texts are UTF-8.
class XmlStream
{
public:
    /// The file is open and outlives the stream.
    explicit XmlStream(OutputFile& file) : mFile(file) {}

    void instruction(const char* target, const char* data);
    /// With at most one attribute.
    void begin(const char* name, const char* attribute = nullptr, const QString& value = {});
    void end();
    /// An element that holds a text; one of an empty text holds nothing but stays on its line.
    void element(const char* name, const std::string& text);

    // A text in pieces: none of them is kept.
    void beginText(const char* name);
    void text(const std::string& piece);
    void endText();

private:
    void indent();
    void close();

    OutputFile& mFile;
    std::vector<const char*> mOpen;
    bool mIsEmpty = false; ///< the last element begun holds nothing yet
};

} // namespace TARN
