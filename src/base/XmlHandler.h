#pragma once

#include <QtCore/QString>
#include <QtXml/QDomDocument>

#include <string>

namespace TARN {

/// The document operations that every XML file of the program is built and read with: one
/// number format, typed attributes with defaults, whole files with fixed messages.
class XmlHandler
{
public:
    // Creation: each appends the new node to, or sets it on, the given parent.
    QDomElement xmlCreateElement(QDomDocument& document, QDomNode& parent, const QString& name);
    QDomText xmlCreateTextElement(QDomDocument& document, QDomElement& parent, const QString& text);
    QDomAttr xmlCreateAttribute(QDomDocument& document, QDomElement& element, const QString& name,
                                const QString& value);
    QDomAttr xmlCreateAttribute(QDomDocument& document, QDomElement& element, const QString& name,
                                const std::string& value);
    QDomAttr xmlCreateAttribute(QDomDocument& document, QDomElement& element, const QString& name,
                                int value);
    QDomAttr xmlCreateAttribute(QDomDocument& document, QDomElement& element, const QString& name,
                                long value);
    /// Written as a signed number: what exceeds the largest long prints negative.
    QDomAttr xmlCreateAttribute(QDomDocument& document, QDomElement& element, const QString& name,
                                unsigned long value);
    /// Written with twelve decimals.
    QDomAttr xmlCreateAttribute(QDomDocument& document, QDomElement& element, const QString& name,
                                double value);
    void xmlCreateParameter(QDomElement& element, const QString& name, const std::string& value);

    // Reading: the default holds when the attribute is absent, for numbers also when it is
    // empty. A text that is no number reads as 0, not as the default.
    QString xmlGetStringAttribute(const QDomNamedNodeMap& map, const QString& name,
                                  const QString& def);
    std::string xmlGetStdStringAttribute(const QDomNamedNodeMap& map, const QString& name,
                                         const std::string& def);
    /// Decimal, "0x" hexadecimal or "0" octal.
    int xmlGetIntAttribute(const QDomNamedNodeMap& map, const QString& name, int def);
    double xmlGetDoubleAttribute(const QDomNamedNodeMap& map, const QString& name, double def);
    /// True for "true" and "1" only.
    bool xmlGetBoolAttribute(const QDomNamedNodeMap& map, const QString& name, bool def);

    /// Reads and parses a file; says on the diagnostic stream what failed. On failure the
    /// document is empty. Files above 16 MiB are refused, and those that XmlSafety objects to.
    /// \p hash takes the SHA-256 of what was read.
    bool xmlReadFile(QDomDocument& document, const QString& file, QByteArray* hash = nullptr);
    /// The same for folder + "/" + file, silent.
    bool xmlReadFile(QDomDocument& document, const QString& folder, const QString& file);

    /// Replaces the file whole or not at all; false when it could not be written. Indented by
    /// four blanks a level, attributes in the order of their names.
    bool xmlWriteFile(const QDomDocument& document, const QString& file);
    bool xmlWriteFile(const QDomDocument& document, const QString& folder, const QString& file);
};

} // namespace TARN
