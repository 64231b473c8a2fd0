#include "base/Property.h"
#include "base/XmlHandler.h"
#include "base/XmlStream.h"
#include "base/XmlText.h"
#include "support/CoreTest.h"

#include <QtCore/QRegularExpression>

#include <sys/stat.h>

using namespace TARN;

/// XML documents, and the settings that are kept in one.
class TestXml : public CoreTest
{
    Q_OBJECT

    XmlHandler mXml;

private Q_SLOTS:
    void numberFormats()
    {
        QDomDocument document;
        QDomElement root = mXml.xmlCreateElement(document, document, "r");
        mXml.xmlCreateParameter(root, "f", "\xEF\xBB\xBFmarked");
        mXml.xmlCreateAttribute(document, root, "e", 1);
        QCOMPARE(mXml.xmlCreateAttribute(document, root, "e", 2).value(), "2"); // replaces
        mXml.xmlCreateAttribute(document, root, "d", -7L);
        mXml.xmlCreateAttribute(document, root, "c", ~0UL);
        mXml.xmlCreateAttribute(document, root, "b", -1e22);
        mXml.xmlCreateAttribute(document, root, "a", 0.5);
        QVERIFY(mXml.xmlWriteFile(document, folder(), "x.xml"));
        QCOMPARE(read("x.xml"),
                 QByteArray("<r a=\"0.500000000000\" b=\"-10000000000000000000000.000000000000\""
                            " c=\"-1\" d=\"-7\" e=\"2\" f=\"\xEF\xBB\xBFmarked\"/>\n"));
    }

    void typedAttributes()
    {
        const QString integers = "10=10 -5=-5 010=8 0x10=16 2147483647=2147483647 08=0 -0B1=0 "
                                 "0b101=0 abc=0 1.5=0 2147483648=0 0xFFFFFFFF=0 12cm=0 =5";
        QDomElement root = QDomDocument().createElement("r");
        const QDomNamedNodeMap map = root.attributes();
        for (const QString& text : integers.split(' ')) {
            root.setAttribute("a", text.section('=', 0, 0));
            const int read = mXml.xmlGetIntAttribute(map, "a", 5);
            QVERIFY2(read == text.section('=', 1).toInt(), qPrintable(text));
        }
        for (const QString text : {"1", "true", "True", "TRUE", "", "yes"}) {
            root.setAttribute("a", text);
            const bool on = text == "1" || text == "true";
            QVERIFY2(mXml.xmlGetBoolAttribute(map, "a", !on) == on, qPrintable(text));
        }
        QCOMPARE(mXml.xmlGetDoubleAttribute(map, "a", 0.5), 0.0);
        root.setAttribute("a", "");
        QCOMPARE(mXml.xmlGetDoubleAttribute(map, "a", 0.5), 0.5);
        QCOMPARE(mXml.xmlGetStringAttribute(map, "a", "d"), QString());
        QCOMPARE(mXml.xmlGetStdStringAttribute(map, "none", "d"), std::string("d"));
        QVERIFY(mXml.xmlGetBoolAttribute(map, "none", true));
        QCOMPARE(mXml.xmlGetIntAttribute(map, "none", 5), 5);
    }

    void textEqualsTheToolkits()
    {
        OutputFile file(path("streamed.xml"));
        QVERIFY(file.open());
        XmlStream xml(file);
        xml.instruction("xml", "version='1.0'");
        xml.begin("a", {{"b", "<&>\"'\t]]>\xC3\xBC"}});
        xml.begin("c");
        xml.begin("d");
        xml.end();
        xml.element("e", "<&>\"'\t]]>\xC3\xBC");
        xml.end();
        xml.begin("f", {{"g", ""}});
        xml.element("h", "1");
        xml.end();
        xml.end();
        QVERIFY(file.commit());
        for (const QByteArray& text :
             {read("streamed.xml"), QByteArray("<a b='1&#10;2&#13;3&#9;4'>1&#13;2\n3\t4</a>"),
              QByteArray(
                  "<a b='\xE2\x82\xAC\xF0\x9F\x98\x80&apos;]]&gt;'><c>]]&gt;</c><d/></a>")}) {
            QDomDocument document;
            QVERIFY(document.setContent(text));
            QCOMPARE(xmlText(document), document.toString(4));
            QVERIFY(!text.contains("?>") || xmlText(document).toUtf8() == text);
        }
    }

    void everyCharacterCanBeReadBack()
    {
        QString all = QString::fromUcs4(U"\t\r\n\U0001F600");
        for (int c = 0; c < 0x10000; c += c < 0x100 || c >= 0xD700 ? 1 : 97) {
            all += QChar(c);
        }
        all += QString(QChar(0xDC00)) + QChar(0xD83D);
        QDomDocument document;
        QDomElement root = mXml.xmlCreateElement(document, document, "r");
        mXml.xmlCreateAttribute(document, root, "a", all);
        mXml.xmlCreateTextElement(document, root, all);
        QVERIFY(mXml.xmlWriteFile(document, path("x.xml")));
        QDomDocument copy;
        QVERIFY2(mXml.xmlReadFile(copy, path("x.xml")), diagnostics());
        const QString back = copy.documentElement().attribute("a");
        QVERIFY(back.size() == all.size() && back == copy.documentElement().text());
        for (qsizetype i = 0; i < all.size(); ++i) {
            const bool isLost = i > 4 && (all[i] < u' ' || all[i] >= QChar(0xD800));
            QVERIFY(back[i] == all[i] || (isLost && back[i] == QChar(QChar::ReplacementCharacter)));
        }
    }

    void files_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QByteArray>("reason"); // empty where it is read
        const auto row = [](const char* name, const QByteArray& content, const char* reason = "") {
            QTest::addRow("%s", name) << content << QByteArray(reason);
        };
        const auto nested = [](int depth) {
            return QByteArray("<e>").repeated(depth) + QByteArray("</e>").repeated(depth);
        };
        row("a prefix that is declared nowhere", "<a:b c:d='1'/>");
        const auto attributes = [](int count) {
            QByteArray text;
            for (int i = 0; i < count; ++i) {
                text += "a" + QByteArray::number(i) + "\t=\r\n'' ";
            }
            return "<r " + text + "/>";
        };
        const auto wide = [](int count) {
            const QString text = "\uFEFF<r>" + QString("<e a=''/>").repeated(count) + "</r>";
            return QByteArray(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
        };
        const auto declared = [](const QByteArray& declarations, const QByteArray& text) {
            return "<!DOCTYPE r [" + declarations + "]><r>" + text + "</r>";
        };
        const auto entity = [&](const QByteArray& value, int uses) {
            return declared("<!ENTITY e '" + value + "'>", QByteArray("&e;").repeated(uses));
        };
        const QByteArray attribute = "<!ATTLIST e a CDATA '" + QByteArray(4000, 'x') + "'>";
        const QByteArray blanks((16 << 20) - 7, ' ');
        row("empty", "", "line 1: ");
        row("garbage", QByteArray("\x00\xFF<<<", 5), "line 1: ");
        row("two roots", "<r/>\n<r/>", "line 2: ");
        row("deepest", nested(256));
        row("too deep", nested(257), "line 1: nested too deeply");
        row("too deep by an entity", entity(nested(400), 1), "line 1: ");
        row("long entity", entity(QByteArray(256, 'x'), 1));
        row("too long an entity", entity(QByteArray(300, 'x'), 1), "line 1: ");
        row("most uses", entity("x", 65536));
        row("too many uses", entity("x", 65537), "too many declarations or uses of them");
        row("those known don't count", "<r>" + QByteArray("&lt;").repeated(65537) + "</r>");
        row("longest declarations", declared(QByteArray(4096 - 15, ' '), ""));
        row("too long ones", declared(QByteArray(4097 - 15, ' '), ""), "too many declarations");
        row("too long by them", declared(attribute, QByteArray("<e/>").repeated(4200)), "too long");
        row("most attributes", attributes(256));
        row("too many attributes", attributes(257), "too many attributes\n");
        row("most in wide characters", wide(16384));
        row("too many in wide characters", wide(16385), "too many attributes, save it as UTF-8");
        row("largest", "<r>" + blanks + "</r>");
        row("too large", "<r>" + blanks + " </r>", "larger than 16 MiB");
    }

    void files()
    {
        QFETCH(const QByteArray, content);
        QFETCH(const QByteArray, reason);
        const QByteArray file = write("x.xml", content).toUtf8();
        QDomDocument document("old");
        QCOMPARE(mXml.xmlReadFile(document, file), reason.isEmpty());
        QCOMPARE(document.documentElement().isNull(), !reason.isEmpty());
        const QByteArray said = diagnostics();
        QVERIFY2(said.startsWith("could not set content <" + file + ">\n") != reason.isEmpty(),
                 said);
        QVERIFY2(said.contains(reason), said);
    }

    void unopenableFiles()
    {
        QDomDocument document;
        QCOMPARE(mkfifo(qPrintable(path("pipe")), 0600), 0);
        QVERIFY(!mXml.xmlReadFile(document, path("pipe"))); // and does not block
        QCOMPARE(diagnostics(), "could not open file <" + path("pipe").toUtf8() + ">\n");
        QVERIFY(!mXml.xmlReadFile(document, folder(), "pipe")); // silent, and writing too
        QVERIFY(!mXml.xmlWriteFile(document, path("none"), "x.xml") && diagnostics().isEmpty());
    }

    void settingsInKeyOrder()
    {
        Property store;
        store.setString("Locale", "\xEF\xBB\xBF..."); // a byte order mark is a character too
        store.setString("LastPath", "");
        store.setSwitch("CsvAllParameter", false);
        store.setInt("KmlLineAlpha", -5);
        store.setDouble("Third", 1.0 / 3.0);
        const std::string file = path("ORNA.ini").toStdString();
        QVERIFY(store.writeXmlFile(file));
        const QByteArray expected = "<TARN>\n"
                                    "    <Property id=\"CsvAllParameter\" value=\"false\"/>\n"
                                    "    <Property id=\"KmlLineAlpha\" value=\"-5\"/>\n"
                                    "    <Property id=\"Locale\" value=\"\xEF\xBB\xBF...\"/>\n"
                                    "    <Property id=\"Third\" value=\"0.333333\"/>\n"
                                    "</TARN>\n";
        QCOMPARE(read("ORNA.ini"), expected);
        Property copy;
        copy.setConfigFile(file);
        copy.readXmlFile();
        QCOMPARE(diagnostics().toStdString(), "readXmlFile <" + file + "> 1\n");
        QCOMPARE(copy.getString("LastPath", "."), std::string("."));
        copy.writeXmlFile();
        QVERIFY(store.writeXmlFile(file + "/below-a-file"));
        QCOMPARE(read("ORNA.ini"), expected);
        // What another file holds is added, the last of equal keys wins.
        const QString more =
            write("c.xml", "<Any><Property id='Locale' value='1'/><Other id='Third'/>"
                           "<!-- --><Property id='Locale' value='2'/><Group>"
                           "<Property id='Third' value='deep'/></Group></Any>");
        QVERIFY(copy.readXmlFile(more.toStdString()));
        QCOMPARE(copy.getString("Locale", ""), std::string("2"));
        QCOMPARE(copy.getString("Third", ""), std::string("0.333333"));
    }

    /// What a damaged file holds may be all that is left of years of settings.
    void damagedSettingsAreKept()
    {
        Property store;
        store.setString("a", "kept");
        // A name that is too long to take an ending: it can't be moved and is not written over.
        const QString fixed(248, 'x');
        const std::tuple<QString, const char*, QString> files[] = {
            {"ORNA.ini", "<TARN><Property id='a' value='b'/>", "ORNA.ini.damaged"},
            {"ORNA.ini", "", "ORNA.ini.damaged2"},
            {"ORNA.ini", "Locale = de\n", "ORNA.ini.damaged3"},
            {fixed, "damaged", fixed},
            {".", "(no file)", ""}, // this one and the next are no damage
            {"none", "(no file)", ""}};
        for (const auto& [name, content, kept] : files) {
            const QByteArray file = path(name).toUtf8();
            store.setConfigFile(file.toStdString());
            if (!kept.isEmpty()) {
                store.writeXmlFile();
                QVERIFY(read(name).contains("value=\"kept\""));
                write(name, content);
            }
            if (name == fixed) {
                QTest::ignoreMessage(QtCriticalMsg, QRegularExpression("stat\\(\\) failed"));
            }
            QVERIFY(store.readXmlFile());
            QVERIFY(diagnostics().endsWith("readXmlFile <" + file + "> 0\n"));
            QCOMPARE(store.damagedFile(), kept.isEmpty() ? "" : path(kept).toStdString());
            QCOMPARE(store.getString("a", ""), std::string("kept"));
            QCOMPARE(read(kept), content);
            QVERIFY(store.writeXmlFile());
            QCOMPARE(read(kept), content);
            QCOMPARE(read(name) == content, name == kept || name == ".");
        }
    }

    void values()
    {
        // As a switch, an integer and a number.
        const QString texts =
            "true=1 0 0|TRUE=1 0 0|True=1 0 0|tRue=0 0 0|12abc=0 12 12| \t+7 =0 7 7|"
            "+-7=0 0 0|-2.5e3x=0 -2 -2500|3,5=0 3 3|1e-400=0 1 0|1e400=0 1 inf|1=0 1 1|"
            "99999999999=0 2147483647 99999999999";
        Property store;
        QVERIFY(store.getSwitch("key", true) && store.getInt("key", 5) == 5);
        QCOMPARE(store.getDouble("key", 0.5), 0.5);
        for (const QString& text : texts.split('|')) {
            store.setString("key", text.section('=', 0, 0).toStdString());
            const QStringList expected = text.section('=', 1).split(' ');
            QCOMPARE(store.getSwitch("key", true), expected[0] == "1");
            QVERIFY2(store.getInt("key", 5) == expected[1].toInt(), qPrintable(text));
            QVERIFY2(store.getDouble("key", 0.5) == expected[2].toDouble(), qPrintable(text));
        }
        store.clear();
        QCOMPARE(store.getInt("key", 5), 5);
    }
};

QTEST_APPLESS_MAIN(TestXml)
#include "tst_xml.moc"
