#include "base/Property.h"
#include "support/CoreTest.h"

#include <QtCore/QDir>

using namespace TARN;

class TestProperty : public CoreTest
{
    Q_OBJECT

private Q_SLOTS:
    void writesKeysInOrder()
    {
        Property store;
        store.setString("Locale", "de");
        store.setString("LastPath", "");
        store.setSwitch("CsvAllParameter", false);
        store.setInt("KmlLineAlpha", -5);
        store.setDouble("Third", 1.0 / 3.0);
        store.setString("A<b>&\"c\"", "T\xC3\xBCr\n'x'");
        store.setConfigFile(path("ORNA.ini").toStdString());
        QVERIFY(store.writeXmlFile());
        const QByteArray expected =
            "<TARN>\n"
            "    <Property id=\"A&lt;b>&amp;&quot;c&quot;\" value=\"T\xC3\xBCr&#xa;'x'\"/>\n"
            "    <Property id=\"CsvAllParameter\" value=\"false\"/>\n"
            "    <Property id=\"KmlLineAlpha\" value=\"-5\"/>\n"
            "    <Property id=\"Locale\" value=\"de\"/>\n"
            "    <Property id=\"Third\" value=\"0.333333\"/>\n"
            "</TARN>\n";
        QCOMPARE(read("ORNA.ini"), expected);
        Property copy;
        copy.setConfigFile(path("ORNA.ini").toStdString());
        copy.readXmlFile();
        QCOMPARE(diagnostics(), "readXmlFile <" + path("ORNA.ini").toUtf8() + "> 1\n");
        QCOMPARE(copy.getString("A<b>&\"c\"", ""), std::string("T\xC3\xBCr\n'x'"));
        QCOMPARE(copy.getString("LastPath", "."), std::string("."));
        copy.writeXmlFile();
        QCOMPARE(read("ORNA.ini"), expected);
        QVERIFY(store.writeXmlFile(path("ORNA.ini/below-a-file").toStdString()));
        QCOMPARE(read("ORNA.ini"), expected);
    }

    void mergesFiles()
    {
        Property store;
        store.setString("kept", "old");
        store.setString("twice", "old");
        store.readXmlFile(write("c.xml",
                                "<Any><Property id='twice' value='1'/><Other id='kept'/><!-- -->"
                                "<Property id='twice' value='2'/><Property id='bare'/>"
                                "<Group><Property id='kept' value='deep'/></Group></Any>")
                              .toStdString());
        QCOMPARE(store.getString("kept", ""), std::string("old"));
        QCOMPARE(store.getString("twice", ""), std::string("2"));
        QCOMPARE(store.getString("bare", "default"), std::string());
    }

    void unreadableFiles()
    {
        const std::pair<QString, QByteArray> files[] = {
            {path("none"), "could not open file <"},
            {write("ini", "Locale = de\n"), "could not set content <"},
            {write("cut", "<TARN><Property id='a' value='b'/>"), "could not set content <"}};
        for (const auto& [file, reason] : files) {
            Property store;
            store.setString("a", "kept");
            store.readXmlFile(file.toStdString());
            QCOMPARE(store.getString("a", ""), std::string("kept"));
            const QByteArray said = diagnostics();
            QVERIFY2(said.startsWith(reason + file.toUtf8() + ">\n"), said);
            QVERIFY2(said.endsWith("readXmlFile <" + file.toUtf8() + "> 0\n"), said);
        }
    }

    /// What a damaged file holds may be all that is left of years of settings.
    void damagedConfigurationIsKept()
    {
        Property store;
        store.setConfigFile(path("ORNA.ini").toStdString());
        QVERIFY(store.readXmlFile());
        QCOMPARE(store.damagedFile(), std::string());
        const std::pair<const char*, const char*> damages[] = {
            {"<TARN><Property", "ORNA.ini.damaged"}, {"", "ORNA.ini.damaged2"}};
        for (const auto& [content, kept] : damages) {
            write("ORNA.ini", content);
            QVERIFY(store.readXmlFile());
            QCOMPARE(store.damagedFile(), path(kept).toStdString());
            QCOMPARE(read("ORNA.ini"), "(no file)");
            store.setInt("CsvLimiter", 44);
            QVERIFY(store.writeXmlFile());
            QVERIFY(store.readXmlFile());
            QCOMPARE(store.damagedFile(), std::string());
        }
        QCOMPARE(read("ORNA.ini.damaged"), "<TARN><Property");
        QCOMPARE(read("ORNA.ini.damaged2"), "");
        QVERIFY(QDir(folder()).mkdir("folder"));
        store.setConfigFile(path("folder").toStdString());
        QVERIFY(store.readXmlFile());
        QCOMPARE(store.damagedFile(), std::string());
        QVERIFY(QDir(path("folder")).exists());
    }

    void values_data()
    {
        QTest::addColumn<bool>("asSwitch");
        QTest::addColumn<int>("asInt");
        QTest::addColumn<double>("asDouble");
        for (const char* on : {"true", "TRUE", "True"}) {
            QTest::addRow("%s", on) << true << 0 << 0.0;
        }
        QTest::addRow("tRue") << false << 0 << 0.0;
        QTest::addRow("1") << false << 1 << 1.0;
        QTest::addRow("12abc") << false << 12 << 12.0;
        QTest::addRow("abc") << false << 0 << 0.0;
        QTest::addRow(" \t+7 ") << false << 7 << 7.0;
        QTest::addRow("+-7") << false << 0 << 0.0;
        QTest::addRow("-2.5e3x") << false << -2 << -2500.0;
        QTest::addRow("3,5") << false << 3 << 3.0;
        QTest::addRow("99999999999") << false << 2147483647 << 99999999999.0;
        QTest::addRow("1e-400") << false << 1 << 0.0;
    }

    void values()
    {
        Property store;
        QVERIFY(store.getSwitch("key", true) && store.getInt("key", 5) == 5);
        QCOMPARE(store.getDouble("key", 0.5), 0.5);
        store.setString("key", QTest::currentDataTag());
        QTEST(store.getSwitch("key", true), "asSwitch");
        QTEST(store.getInt("key", 5), "asInt");
        QTEST(store.getDouble("key", 0.5), "asDouble");
    }
};

QTEST_APPLESS_MAIN(TestProperty)
#include "tst_property.moc"
