#include "base/XmlSafety.h"

#include <QtCore/QXmlStreamReader>

namespace TARN {

namespace {

constexpr int DeepestNesting = 256;
constexpr int MostAttributes = 256;          ///< of one element
constexpr int MostWideAttributes = 16384;    ///< of all elements together
constexpr qint64 LongestDeclarations = 4096; ///< characters
constexpr int LongestEntity = 256;           ///< characters
constexpr int MostReferences = 65536;        ///< to entities, where a file declares some
constexpr qint64 LongestText = 16 << 20;     ///< characters, entities and defaults written out

/// The toolkit compares each attribute of an element with all before it, so they are counted
/// before it sees them: quotation marks after an equals sign. Between two "<" there is at most
/// one element; where characters have 16 or 32 bits, and thus zeros among their bytes, a byte
/// that reads "<" may be none.
const char* attributeObjection(const QByteArray& content)
{
    const bool isWide = content.contains('\0');
    int count = 0;
    bool afterEquals = false;
    for (const char c : content) {
        if (c == '<' && !isWide) {
            count = 0;
        } else if (c == '"' || c == '\'') {
            count += afterEquals ? 1 : 0;
        } else if (c == '\0' || c == ' ' || c == '\t' || c == '\n' || c == '\r') {
            continue;
        }
        afterEquals = c == '=';
        if (count > (isWide ? MostWideAttributes : MostAttributes)) {
            return isWide ? "too many attributes, save it as UTF-8" : "too many attributes";
        }
    }
    return nullptr;
}

/// Characters that the token takes in the tree.
qint64 sizeOf(const QXmlStreamReader& reader)
{
    qint64 size = reader.text().size();
    for (const QXmlStreamAttribute& attribute : reader.attributes()) {
        size += attribute.qualifiedName().size() + attribute.value().size();
    }
    return size;
}

/// Text is handed out when all of it has been put together, so what entities make of it is limited
/// before it begins.
bool hasTooManyDeclarations(const QXmlStreamReader& reader, const QByteArray& content)
{
    return reader.text().size() > LongestDeclarations ||
           (!reader.entityDeclarations().isEmpty() && content.count('&') > MostReferences);
}

} // namespace

QString xmlObjection(const QByteArray& content)
{
    if (const char* reason = attributeObjection(content); reason != nullptr) {
        return reason;
    }
    QXmlStreamReader reader(content);
    reader.setNamespaceProcessing(false);
    reader.setEntityExpansionLimit(LongestEntity);
    int depth = 0;
    qint64 size = 0;
    while (!reader.atEnd()) {
        const auto token = reader.readNext();
        depth +=
            (token == QXmlStreamReader::StartElement) - (token == QXmlStreamReader::EndElement);
        size += sizeOf(reader);
        const bool isDtd = token == QXmlStreamReader::DTD;
        const char* reason = depth > DeepestNesting ? "nested too deeply"
                             : size > LongestText   ? "too long with its declarations written out"
                             : isDtd && hasTooManyDeclarations(reader, content)
                                 ? "too many declarations or uses of them"
                                 : nullptr;
        if (reason != nullptr) {
            return QString("line %1: %2").arg(reader.lineNumber()).arg(reason);
        }
    }
    return reader.hasError()
               ? QString("line %1: %2").arg(reader.lineNumber()).arg(reader.errorString())
               : QString();
}

} // namespace TARN
