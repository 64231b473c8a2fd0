#pragma once

#include "base/OutputFile.h"

#include <initializer_list>
#include <string>
#include <string_view>
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
    struct Attribute
    {
        const char* name;
        std::string_view value; ///< UTF-8
    };
    void begin(const char* name, std::initializer_list<Attribute> attributes = {});
    void end();
    /// An element that holds a text; one of an empty text holds nothing but stays on its line.
    void element(const char* name, std::string_view text);
    /// One of very many such elements: it is not indented, the file would be mostly blanks.
    void row(const char* name, std::string_view text);

    // A text in pieces: none of them is kept.
    void beginText(const char* name);
    void text(std::string_view piece);
    void endText();

private:
    void indent();
    void close();
    void escape(std::string_view text, bool inAttribute);

    OutputFile& mFile;
    std::vector<const char*> mOpen;
    bool mIsEmpty = false; ///< the last element begun holds nothing yet
};

} // namespace TARN
