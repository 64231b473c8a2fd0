#include "export/GpxRules.h"

#include <QtCore/QDateTime>
#include <QtCore/QRegularExpression>
#include <QtXml/QDomDocument>

#include <map>

namespace {

/// What ends in "?" stands once or is left out, "*" any number of times.
struct Rule
{
    QStringList attributes; ///< all of them are required
    QStringList children;   ///< in this order
    QString text;           ///< type of the text; elements with children have none
};

const Rule Point = {{"lat", "lon"},
                    {"ele?", "time?", "magvar?", "geoidheight?", "name?", "cmt?", "desc?", "src?",
                     "link*", "sym?", "type?"},
                    {}};

const std::map<QString, Rule> Rules = {
    {"gpx", {{"creator", "version"}, {"metadata?", "wpt*", "rte*", "trk*", "extensions?"}, {}}},
    {"metadata",
     {{},
      {"name?", "desc?", "author?", "copyright?", "link*", "time?", "keywords?", "bounds?",
       "extensions?"},
      {}}},
    {"bounds", {{"maxlat", "maxlon", "minlat", "minlon"}, {}, {}}},
    {"wpt", Point},
    {"trkpt", Point},
    {"trk",
     {{},
      {"name?", "cmt?", "desc?", "src?", "link*", "number?", "type?", "extensions?", "trkseg*"},
      {}}},
    {"trkseg", {{}, {"trkpt*", "extensions?"}, {}}},
    {"ele", {{}, {}, "decimal"}},
    {"time", {{}, {}, "dateTime"}},
    {"name", {{}, {}, "string"}},
    {"desc", {{}, {}, "string"}},
    {"type", {{}, {}, "string"}}};

bool isDecimal(const QString& text)
{
    static const QRegularExpression form("^[+-]?(\\d+(\\.\\d*)?|\\.\\d+)$");
    return form.match(text).hasMatch();
}

bool isOfType(const QString& text, const QString& type)
{
    static const QRegularExpression moment(
        "^\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d(\\.\\d+)?Z$");
    return type == "decimal"    ? isDecimal(text)
           : type == "dateTime" ? moment.match(text).hasMatch() &&
                                      QDateTime::fromString(text, Qt::ISODateWithMs).isValid()
                                : type == "string" || text.trimmed().isEmpty();
}

bool isAllowed(const QString& attribute, const QString& value)
{
    const double number = value.toDouble();
    return attribute.endsWith("lat")   ? isDecimal(value) && -90 <= number && number <= 90
           : attribute.endsWith("lon") ? isDecimal(value) && -180 <= number && number < 180
                                       : attribute != "version" || value == "1.1";
}

QString attributeFault(const QDomElement& element, const Rule& rule)
{
    QStringList found;
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.size(); ++i) {
        const QDomAttr attribute = attributes.item(i).toAttr();
        if (!attribute.namespaceURI().isEmpty()) {
            continue;
        }
        found += attribute.name();
        if (!isAllowed(attribute.name(), attribute.value())) {
            return element.tagName() + "/@" + attribute.name() + "=" + attribute.value();
        }
    }
    found.sort();
    return found == rule.attributes ? QString() : element.tagName() + " has @" + found.join(" @");
}

QString elementFault(const QDomElement& element, const QString& space)
{
    const auto found = Rules.find(element.tagName());
    if (found == Rules.end() || element.namespaceURI() != space) {
        return "no such element: " + element.tagName();
    }
    const Rule& rule = found->second;
    QString fault = attributeFault(element, rule);
    QString text;
    qsizetype place = 0;
    for (QDomNode node = element.firstChild(); !node.isNull(); node = node.nextSibling()) {
        text += node.isText() ? node.nodeValue() : QString();
        if (!node.isElement() || !fault.isEmpty()) {
            continue;
        }
        const QString name = node.toElement().tagName();
        while (place < rule.children.size() && rule.children[place].chopped(1) != name) {
            ++place;
        }
        if (place == rule.children.size()) {
            return name + " does not belong there in " + element.tagName();
        }
        place += rule.children[place].endsWith('?') ? 1 : 0;
        fault = elementFault(node.toElement(), space);
    }
    return !fault.isEmpty() || isOfType(text, rule.text)
               ? fault
               : element.tagName() + " holds \"" + text + "\"";
}

} // namespace

QString gpxFault(const QByteArray& document)
{
    QDomDocument gpx;
    QString error;
    if (!gpx.setContent(document, true, &error)) {
        return error;
    }
    return gpx.documentElement().tagName() != "gpx"
               ? "the root is no gpx"
               : elementFault(gpx.documentElement(), "http://www.topografix.com/GPX/1/1");
}
