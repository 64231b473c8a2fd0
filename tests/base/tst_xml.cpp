#include "base/XmlHandler.h"
#include "base/XmlText.h"
#include "support/CoreTest.h"

#include <QtCore/QDir>

#include <algorithm>
#include <sys/stat.h>

using namespace TARN;

class TestXml : public CoreTest
{
    Q_OBJECT

    XmlHandler mXml;

private Q_SLOTS:
    void numberFormats()
    {
        QDomDocument document;
        QDomElement root = mXml.xmlCreateElement(document, document, "r");
        mXml.xmlCreateAttribute(document, root, "a", 0.5);
        mXml.xmlCreateAttribute(document, root, "b", -1e22);
        mXml.xmlCreateAttribute(document, root, "c", ~0UL);
        mXml.xmlCreateAttribute(document, root, "d", -7L);
        mXml.xmlCreateAttribute(document, root, "e", 1);
        mXml.xmlCreateAttribute(document, root, "e", 2); // replaces
        QDomElement child = mXml.xmlCreateElement(document, root, "child");
        mXml.xmlCreateTextElement(document, child, "text");
        QVERIFY(mXml.xmlWriteFile(document, folder(), "x.xml"));
        QCOMPARE(read("x.xml"),
                 QByteArray("<r a=\"0.500000000000\" b=\"-10000000000000000000000.000000000000\""
                            " c=\"-1\" d=\"-7\" e=\"2\">\n"
                            "    <child>text</child>\n"
                            "</r>\n"));
    }

    void typedAttributes()
    {
        const std::pair<const char*, int> integers[] = {
            {"10", 10},        {"-5", -5},
            {"010", 8},        {"0x10", 16},
            {"08", 0},         {"0b101", 0},
            {"-0B1", 0},       {"abc", 0},
            {"1.5", 0},        {"2147483647", 2147483647},
            {"2147483648", 0}, {"0xFFFFFFFF", 0},
            {"12 apples", 0},  {"", 5}};
        QDomDocument document;
        QDomElement root = document.createElement("r");
        const QDomNamedNodeMap map = root.attributes();
        for (const auto& [text, value] : integers) {
            root.setAttribute("a", text);
            QVERIFY2(mXml.xmlGetIntAttribute(map, "a", 5) == value, text);
        }
        for (const char* text : {"1", "true", "True", "TRUE", "", "yes"}) {
            root.setAttribute("a", text);
            const bool on = QString("1 true").split(' ').contains(text);
            QVERIFY2(mXml.xmlGetBoolAttribute(map, "a", !on) == on, text);
        }
        root.setAttribute("a", "word");
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
        for (const char* xml :
             {"<a><b c='1'/><b><d/></b></a>",
              "<a b='&lt;&gt;&amp;&quot;&apos;]]&gt;'>&lt;&gt; &amp; \" ]]&gt;</a>",
              "<a b='1&#10;2&#13;3&#9;4'>1&#13;2\n3\t4</a>",
              "<?xml version='1.0' encoding='UTF-8'?><a/>",
              "<a b='\xC3\xBC\xE2\x82\xAC'>\xF0\x9F\x98\x80</a>"}) {
            QDomDocument document;
            QVERIFY(document.setContent(QByteArray(xml)));
            QCOMPARE(xmlText(document), document.toString(4));
        }
    }

    void attributesAreSortedHoweverTheyCame()
    {
        QString names = "abcdefghijklmnopqrstuvwxyz";
        QString expected = "<r";
        for (const QChar name : names) {
            expected += QString(" %1=\"\"").arg(name);
        }
        for (int turn = 0; turn < 26; ++turn) {
            QDomDocument document;
            QDomElement root = mXml.xmlCreateElement(document, document, "r");
            for (const QChar name : names) {
                mXml.xmlCreateAttribute(document, root, QString(name), QString());
            }
            QCOMPARE(xmlText(document), expected + "/>\n");
            std::rotate(names.begin(), names.begin() + 5, names.end());
        }
    }

    void everyCharacterCanBeReadBack()
    {
        QString all;
        for (int c = 0; c < 0x10000; c += c < 0x100 || c >= 0xD700 ? 1 : 97) {
            all += QChar(c);
        }
        const QString smile = QString::fromUcs4(U"\U0001F600");
        all += smile + QChar(0xDC00) + QChar(0xD83D);
        QDomDocument document;
        QDomElement root = mXml.xmlCreateElement(document, document, "r");
        mXml.xmlCreateAttribute(document, root, "a", all);
        mXml.xmlCreateTextElement(document, root, all);
        QVERIFY(mXml.xmlWriteFile(document, path("x.xml")));
        QDomDocument copy;
        QVERIFY2(mXml.xmlReadFile(copy, path("x.xml")), diagnostics());
        const QString back = copy.documentElement().attribute("a");
        QCOMPARE(back.size(), all.size());
        QCOMPARE(copy.documentElement().text(), back);
        for (qsizetype i = 0; i < all.size(); ++i) {
            QVERIFY(back[i] == all[i] || back[i] == QChar(QChar::ReplacementCharacter));
        }
        QVERIFY(back.contains(smile) && back.contains("\t\n") && back.contains("\r"));
    }

    void refusedFiles_data()
    {
        QTest::addColumn<QByteArray>("content");
        QByteArray bomb = "<!DOCTYPE r [<!ENTITY a0 \"0123456789\">";
        for (int i = 1; i < 12; ++i) {
            const QByteArray inner = "&a" + QByteArray::number(i - 1) + ";";
            bomb += "<!ENTITY a" + QByteArray::number(i) + " \"" + inner.repeated(10) + "\">";
        }
        const auto nested = [](int depth) {
            return QByteArray("<e>").repeated(depth) + QByteArray("</e>").repeated(depth);
        };
        QTest::addRow("empty") << QByteArray("");
        QTest::addRow("garbage") << QByteArray("\x00\xFF<<<", 5);
        QTest::addRow("two roots") << QByteArray("<r/><r/>");
        QTest::addRow("entity bomb") << bomb + "]><r a='&a11;'>&a11;</r>";
        QTest::addRow("too deep") << nested(257);
        QTest::addRow("never closed") << QByteArray("<e>").repeated(1000000);
        QTest::addRow("deep through an entity")
            << "<!DOCTYPE r [<!ENTITY d '" + nested(400) + "'>]><r>&d;</r>";
        QTest::addRow("long through entities")
            << "<!DOCTYPE r [<!ENTITY e 'x'>]><r>" + QByteArray("&e;").repeated(70000) + "</r>";
        QTest::addRow("many attributes by default")
            << "<!DOCTYPE r [" + QByteArray("<!ATTLIST r a CDATA ''>").repeated(200) + "]><r/>";
        QByteArray attributes;
        for (int i = 0; i < 300; ++i) {
            attributes += " a" + QByteArray::number(i) + " = ''";
        }
        QTest::addRow("many attributes") << "<r" + attributes + "/>";
        QTest::addRow("too large") << "<r>" + QByteArray(16 << 20, ' ') + "</r>";
        QTest::addRow("deepest allowed") << nested(256);
    }

    void refusedFiles()
    {
        QFETCH(const QByteArray, content);
        const QString file = write("x.xml", content);
        QDomDocument document;
        document.setContent(QString("<old/>"));
        const bool allowed = QTest::currentDataTag() == QByteArray("deepest allowed");
        QCOMPARE(mXml.xmlReadFile(document, file), allowed);
        QCOMPARE(document.documentElement().isNull(), !allowed);
        const QByteArray said = diagnostics();
        QVERIFY2(said.startsWith("could not set content <" + file.toUtf8() + ">\n") != allowed,
                 said);
    }

    void unopenableFiles()
    {
        QDomDocument document;
        QCOMPARE(mkfifo(qPrintable(path("pipe")), 0600), 0);
        QVERIFY(!mXml.xmlReadFile(document, path("pipe"))); // and does not block
        QCOMPARE(diagnostics(), "could not open file <" + path("pipe").toUtf8() + ">\n");
        write("bad.xml", "<r>");
        QVERIFY(!mXml.xmlReadFile(document, folder(), "none.xml"));
        QVERIFY(!mXml.xmlReadFile(document, folder(), "bad.xml"));
        QVERIFY(!mXml.xmlWriteFile(document, path("none"), "x.xml"));
        QVERIFY(!mXml.xmlWriteFile(document, path("bad.xml/x.xml")));
        QCOMPARE(diagnostics(), QByteArray()); // forms with a folder are silent, so is writing
        QCOMPARE(QDir(folder()).entryList(QDir::Files | QDir::Hidden), QStringList("bad.xml"));
    }
};

QTEST_APPLESS_MAIN(TestXml)
#include "tst_xml.moc"
