#include "base/XmlText.h"

#include <map>

namespace TARN {

namespace {

bool isXmlCharacter(QChar c)
{
    return c >= u' ' ? c.unicode() < 0xFFFE : c == u'\t' || c == u'\n' || c == u'\r';
}

/// Half of a surrogate pair alone is no character either.
bool isLoneSurrogate(const QString& text, qsizetype at)
{
    const QChar c = text[at];
    if (c.isHighSurrogate()) {
        return at + 1 >= text.size() || !text[at + 1].isLowSurrogate();
    }
    return c.isLowSurrogate() && (at == 0 || !text[at - 1].isHighSurrogate());
}

void appendIndent(QString& out, int depth)
{
    out.append(QString(depth * 4, u' '));
}

void appendStartTag(QString& out, const QDomElement& element)
{
    std::map<QString, QString> attributes;
    const QDomNamedNodeMap map = element.attributes();
    for (int i = 0; i < map.count(); ++i) {
        const QDomAttr attribute = map.item(i).toAttr();
        attributes[attribute.name()] = attribute.value();
    }
    out += "<" + element.tagName();
    for (const auto& [name, value] : attributes) {
        out += " " + name + "=\"" + xmlEscaped(value, true) + "\"";
    }
}

void appendNode(QString& out, const QDomNode& node, int depth);

void appendChildren(QString& out, const QDomNode& parent, int depth)
{
    for (QDomNode child = parent.firstChild(); !child.isNull(); child = child.nextSibling()) {
        appendNode(out, child, depth);
    }
}

void appendElement(QString& out, const QDomElement& element, int depth)
{
    appendIndent(out, depth);
    appendStartTag(out, element);
    if (!element.hasChildNodes()) {
        out += "/>\n";
        return;
    }
    // A text must not gain blanks, so an element that holds one stays on its line.
    const bool inLine = element.firstChild().isText();
    out += inLine ? ">" : ">\n";
    appendChildren(out, element, depth + 1);
    if (!inLine) {
        appendIndent(out, depth);
    }
    out += "</" + element.tagName() + ">\n";
}

void appendNode(QString& out, const QDomNode& node, int depth)
{
    if (node.isElement()) {
        appendElement(out, node.toElement(), depth);
    } else if (node.isText()) {
        out += xmlEscaped(node.nodeValue(), false);
    } else if (node.isProcessingInstruction()) {
        const QDomProcessingInstruction instruction = node.toProcessingInstruction();
        out += "<?" + instruction.target() + " " + instruction.data() + "?>\n";
    }
}

} // namespace

QString xmlEscaped(const QString& text, bool inAttribute)
{
    QString out;
    out.reserve(text.size());
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar c = text[at];
        if (c == u'<') {
            out += "&lt;";
        } else if (c == u'&') {
            out += "&amp;";
        } else if (c == u'"' && inAttribute) {
            out += "&quot;";
        } else if (c == u'>' && out.endsWith("]]")) {
            out += "&gt;";
        } else if (c == u'\r' || (inAttribute && (c == u'\n' || c == u'\t'))) {
            out += QString("&#x%1;").arg(c.unicode(), 0, 16); // would be normalised on reading
        } else if (!isXmlCharacter(c) || isLoneSurrogate(text, at)) {
            out += QChar(QChar::ReplacementCharacter);
        } else {
            out += c;
        }
    }
    return out;
}

QString xmlText(const QDomDocument& document)
{
    QString out;
    appendChildren(out, document, 0);
    return out;
}

} // namespace TARN
