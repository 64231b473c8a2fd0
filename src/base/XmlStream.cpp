#include "base/XmlStream.h"

#include "base/XmlText.h"

namespace TARN {

void XmlStream::instruction(const char* target, const char* data)
{
    mFile.write(std::string("<?") + target + " " + data + "?>\n");
}

void XmlStream::begin(const char* name, const char* attribute, const QString& value)
{
    close();
    indent();
    mFile.write(std::string("<") + name);
    if (attribute != nullptr) {
        mFile.write(std::string(" ") + attribute + "=\"" + xmlEscaped(value, true).toStdString() +
                    "\"");
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

void XmlStream::element(const char* name, const std::string& text)
{
    beginText(name);
    this->text(text);
    endText();
}

void XmlStream::beginText(const char* name)
{
    close();
    indent();
    mFile.write(std::string("<") + name + ">");
    mOpen.push_back(name);
}

void XmlStream::text(const std::string& piece)
{
    mFile.write(xmlEscaped(QString::fromStdString(piece), false).toStdString());
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

} // namespace TARN
