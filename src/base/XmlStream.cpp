#include "base/XmlStream.h"

#include "base/XmlText.h"

#include <algorithm>

namespace TARN {

void XmlStream::instruction(const char* target, const char* data)
{
    mFile.write(std::string("<?") + target + " " + data + "?>\n");
}

void XmlStream::begin(const char* name, std::initializer_list<Attribute> attributes)
{
    close();
    indent();
    mFile.write("<");
    mFile.write(name);
    for (const auto& [attribute, value] : attributes) {
        mFile.write(" ");
        mFile.write(attribute);
        mFile.write("=\"");
        escape(value, true);
        mFile.write("\"");
    }
    mOpen.push_back(name);
    mIsEmpty = true;
}

void XmlStream::end()
{
    const char* name = mOpen.back();
    mOpen.pop_back();
    if (mIsEmpty) {
        mFile.write("/>\n");
        mIsEmpty = false;
        return;
    }
    indent();
    mFile.write(std::string("</") + name + ">\n");
}

void XmlStream::element(const char* name, std::string_view text)
{
    beginText(name);
    this->text(text);
    endText();
}

void XmlStream::row(const char* name, std::string_view text)
{
    close();
    mFile.write("<");
    mFile.write(name);
    mFile.write(">");
    escape(text, false);
    mFile.write("</");
    mFile.write(name);
    mFile.write(">\n");
}

void XmlStream::beginText(const char* name)
{
    close();
    indent();
    mFile.write(std::string("<") + name + ">");
    mOpen.push_back(name);
}

void XmlStream::text(std::string_view piece)
{
    escape(piece, false);
}

void XmlStream::endText()
{
    mFile.write(std::string("</") + mOpen.back() + ">\n");
    mOpen.pop_back();
}

void XmlStream::indent()
{
    mFile.write(std::string(mOpen.size() * 4, ' '));
}

/// Ends the start tag of the element that something is about to stand in.
void XmlStream::close()
{
    if (mIsEmpty) {
        mFile.write(">\n");
        mIsEmpty = false;
    }
}

/// Most texts are plain: numbers, times, names. Ends of lines are, but not in an attribute.
void XmlStream::escape(std::string_view text, bool inAttribute)
{
    const bool isPlain = std::ranges::all_of(text, [inAttribute](char c) {
        return (c >= ' ' || (c == '\n' && !inAttribute)) && c <= '~' && c != '<' && c != '>' &&
               c != '&' && c != '"';
    });
    if (isPlain) {
        mFile.write(text);
        return;
    }
    const auto size = static_cast<qsizetype>(text.size());
    mFile.write(xmlEscaped(QString::fromUtf8(text.data(), size), inAttribute).toStdString());
}

} // namespace TARN
