#include "base/XmlHandler.h"

#include "base/Diagnostics.h"
#include "base/Numbers.h"
#include "base/OutputFile.h"
#include "base/XmlSafety.h"
#include "base/XmlText.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QStringDecoder>

#include <algorithm>

namespace TARN {

namespace {

constexpr qint64 LargestFile = 16 << 20;

enum class ReadResult
{
    Ok,
    NotOpened,
    NotParsed
};

ReadResult readDocument(QDomDocument& document, const QString& name, QString& reason,
                        QByteArray* hash = nullptr)
{
    document = QDomDocument();
    QFile file(name);
    // A pipe would block for ever; only regular files hold our documents.
    if (!QFileInfo(name).isFile() || !file.open(QIODevice::ReadOnly)) {
        return ReadResult::NotOpened;
    }
    // Reading allocates what it is asked for, however short the file.
    const QByteArray content = file.read(std::min(file.size(), LargestFile) + 1);
    if (content.size() > LargestFile) {
        reason = "larger than 16 MiB";
        return ReadResult::NotParsed;
    }
    if (hash != nullptr) {
        *hash = QCryptographicHash::hash(content, QCryptographicHash::Sha256);
    }
    reason = xmlObjection(content);
    if (!reason.isEmpty()) {
        return ReadResult::NotParsed;
    }
    if (!document.setContent(content, false, &reason)) {
        document = QDomDocument();
        return ReadResult::NotParsed;
    }
    return ReadResult::Ok;
}

const QDomAttr attributeOf(const QDomNamedNodeMap& map, const QString& name)
{
    return map.namedItem(name).toAttr();
}

/// Unlike the toolkit's own conversion this keeps a byte order mark that a text begins with.
QString fromUtf8(const std::string& text)
{
    using Decoder = QStringDecoder;
    Decoder decoder(Decoder::Utf8, Decoder::Flag::Stateless | Decoder::Flag::ConvertInitialBom);
    return decoder(QByteArrayView(text));
}

/// The toolkit also takes "0b" for binary numbers, which no writer of these files means.
bool isBinary(const QString& text)
{
    QStringView digits = QStringView(text).trimmed();
    if (digits.startsWith(u'-') || digits.startsWith(u'+')) {
        digits = digits.mid(1);
    }
    return digits.startsWith(u"0b", Qt::CaseInsensitive);
}

} // namespace

QDomElement XmlHandler::xmlCreateElement(QDomDocument& document, QDomNode& parent,
                                         const QString& name)
{
    QDomElement element = document.createElement(name);
    parent.appendChild(element);
    return element;
}

QDomText XmlHandler::xmlCreateTextElement(QDomDocument& document, QDomElement& parent,
                                          const QString& text)
{
    QDomText node = document.createTextNode(text);
    parent.appendChild(node);
    return node;
}

QDomAttr XmlHandler::xmlCreateAttribute(QDomDocument& document, QDomElement& element,
                                        const QString& name, const QString& value)
{
    QDomAttr attribute = document.createAttribute(name);
    attribute.setValue(value);
    element.removeAttribute(name); // setting alone would keep both
    element.setAttributeNode(attribute);
    return attribute;
}

QDomAttr XmlHandler::xmlCreateAttribute(QDomDocument& document, QDomElement& element,
                                        const QString& name, const std::string& value)
{
    return xmlCreateAttribute(document, element, name, fromUtf8(value));
}

QDomAttr XmlHandler::xmlCreateAttribute(QDomDocument& document, QDomElement& element,
                                        const QString& name, int value)
{
    return xmlCreateAttribute(document, element, name, QString::number(value));
}

QDomAttr XmlHandler::xmlCreateAttribute(QDomDocument& document, QDomElement& element,
                                        const QString& name, long value)
{
    return xmlCreateAttribute(document, element, name, QString::number(value));
}

QDomAttr XmlHandler::xmlCreateAttribute(QDomDocument& document, QDomElement& element,
                                        const QString& name, unsigned long value)
{
    return xmlCreateAttribute(document, element, name, static_cast<long>(value));
}

QDomAttr XmlHandler::xmlCreateAttribute(QDomDocument& document, QDomElement& element,
                                        const QString& name, double value)
{
    return xmlCreateAttribute(document, element, name, fixedText(value, 12));
}

void XmlHandler::xmlCreateParameter(QDomElement& element, const QString& name,
                                    const std::string& value)
{
    element.setAttribute(name, fromUtf8(value));
}

QString XmlHandler::xmlGetStringAttribute(const QDomNamedNodeMap& map, const QString& name,
                                          const QString& def)
{
    const QDomAttr attribute = attributeOf(map, name);
    return attribute.isNull() ? def : attribute.value();
}

std::string XmlHandler::xmlGetStdStringAttribute(const QDomNamedNodeMap& map, const QString& name,
                                                 const std::string& def)
{
    const QDomAttr attribute = attributeOf(map, name);
    return attribute.isNull() ? def : attribute.value().toStdString();
}

int XmlHandler::xmlGetIntAttribute(const QDomNamedNodeMap& map, const QString& name, int def)
{
    const QString text = attributeOf(map, name).value();
    if (text.isEmpty()) {
        return def;
    }
    return isBinary(text) ? 0 : text.toInt(nullptr, 0);
}

double XmlHandler::xmlGetDoubleAttribute(const QDomNamedNodeMap& map, const QString& name,
                                         double def)
{
    const QString text = attributeOf(map, name).value();
    return text.isEmpty() ? def : text.toDouble();
}

bool XmlHandler::xmlGetBoolAttribute(const QDomNamedNodeMap& map, const QString& name, bool def)
{
    const QDomAttr attribute = attributeOf(map, name);
    if (attribute.isNull()) {
        return def;
    }
    return attribute.value() == "true" || attribute.value() == "1";
}

bool XmlHandler::xmlReadFile(QDomDocument& document, const QString& file, QByteArray* hash)
{
    QString reason;
    switch (readDocument(document, file, reason, hash)) {
    case ReadResult::Ok:
        return true;
    case ReadResult::NotOpened:
        diagnose("could not open file <%s>\n", qUtf8Printable(file));
        return false;
    case ReadResult::NotParsed:
        diagnose("could not set content <%s>\n", qUtf8Printable(file));
        diagnose("    %s\n", qUtf8Printable(reason));
        return false;
    }
    return false;
}

bool XmlHandler::xmlReadFile(QDomDocument& document, const QString& folder, const QString& file)
{
    QString reason;
    return readDocument(document, folder + "/" + file, reason) == ReadResult::Ok;
}

bool XmlHandler::xmlWriteFile(const QDomDocument& document, const QString& file)
{
    OutputFile out(file);
    if (!out.open()) {
        return false;
    }
    out.write(xmlText(document).toStdString());
    return out.commit();
}

bool XmlHandler::xmlWriteFile(const QDomDocument& document, const QString& folder,
                              const QString& file)
{
    return xmlWriteFile(document, folder + "/" + file);
}

} // namespace TARN
