#include "base/ClockTime.h"
#include "base/Directory.h"
#include "base/Revision.h"
#include "base/Timer.h"
#include "support/CoreTest.h"

#include <QtCore/QDir>
#include <QtCore/QRegularExpression>

#include <bit>
#include <random>

using namespace TARN;

class TestBase : public CoreTest
{
    Q_OBJECT

private Q_SLOTS:
    void truncationClamps()
    {
        const double inf = std::numeric_limits<double>::infinity();
        QCOMPARE(truncatedTo<int>(-1.9), -1);
        QCOMPARE(truncatedTo<int>(2147483646.9), 2147483646);
        QCOMPARE(truncatedTo<int>(1e300), 2147483647);
        QCOMPARE(truncatedTo<int>(-inf), std::numeric_limits<int>::min());
        QCOMPARE(truncatedTo<int>(std::nan("")), 0);
        QCOMPARE(truncatedTo<std::uint32_t>(-5.0), 0U);
        QCOMPARE(truncatedTo<std::uint32_t>(4294967295.5), 4294967295U);
        QCOMPARE(truncatedTo<std::int64_t>(0x1p63), std::numeric_limits<std::int64_t>::max());
    }

    void generalNotationIsThatOfPrintf()
    {
        std::mt19937_64 random(7);
        std::uniform_real_distribution<double> exponent(-20, 20);
        for (int i = 0; i < 50000; ++i) {
            const double anySize = std::pow(10.0, exponent(random));
            const double half = static_cast<double>(random() % 10'000'000'000'000) + 0.5;
            const double ten = std::pow(10.0, i % 26 - 6);
            const double values[] = {std::bit_cast<double>(random()),
                                     -anySize,
                                     static_cast<float>(anySize),
                                     half,
                                     half / 1024, // a tie where it has thirteen digits
                                     half / 1000,
                                     std::nextafter(ten, random() % 2 == 0 ? 0.0 : 1e300),
                                     ten,
                                     i * -0.25};
            const int digits[] = {12, 6, 1, 17, 18};
            for (const double value : values) {
                const int precision = digits[random() % std::size(digits)];
                char expected[64];
                std::snprintf(expected, sizeof expected, "%.*g", precision, value);
                std::string text;
                appendGeneral(value, precision, text);
                QCOMPARE(text, std::string(expected));
            }
        }
        QCOMPARE(fixedText(-std::numeric_limits<double>::max(), 12).size(), 1U + 309 + 1 + 12);
    }

    void clock()
    {
        QCOMPARE(clockText(90061.9999), QString("01:01:01"));
        QCOMPARE(clockText(-1.0), QString("23:59:59"));
        QVERIFY(!clockText(1e300).isEmpty());
        QCOMPARE(clockTime(86'400'000LL * 40 + 123).toString("ss.zzz"), QString("00.123"));
        QCOMPARE(tenthsOf(0.25), 3);
        QCOMPARE(timeKeyOf(0.04), 0U);
        QCOMPARE(timeKeyOf(-3.0), 0U);
    }

    void banner()
    {
        QCOMPARE(Revision::getRevisionString(), std::string("ORNA 1.2.19"));
        Revision::printHeader();
        const QList<QByteArray> lines = diagnostics().split('\n');
        QCOMPARE(lines.size(), 2 + 11 + 3 + 1 + 1);
        QCOMPARE(lines[0] + lines[1], QByteArray(49, '-'));
        QCOMPARE(lines[13], QByteArray(16, ' ') + "Version  : ORNA 1.2.19");
        const QRegularExpression built(
            "^ {16}Compiled : [A-Z][a-z]{2} [ \\d]\\d \\d{4} [\\d:]{8}$");
        QVERIFY(built.match(lines[14]).hasMatch());
        QCOMPARE(lines[15], QByteArray(16, ' ') + "CWD      : " + QDir::currentPath().toUtf8());
        QCOMPARE(lines[16], QByteArray(49, '-'));
        {
            const Timer timer("load");
        }
        QVERIFY(QRegularExpression("^load : [0-9.e+-]+ ms\n$").match(diagnostics()).hasMatch());
    }

    void listing()
    {
        QVERIFY(QDir(folder()).mkpath("sub/deep"));
        write("a.CAN", "");
        write("sub/b.CAN", "");
        write("sub/deep/.hidden", "");
        QVERIFY(QFile::link(folder(), path("sub/up"))); // a circle
        Directory directory(folder().toStdString());
        const auto listed = [&](bool recursive) {
            QStringList names;
            for (const std::string& entry : directory.entryList(recursive)) {
                names += QString::fromStdString(entry).mid(folder().size() + 1);
            }
            names.sort();
            return names;
        };
        QCOMPARE(listed(true), QStringList({"a.CAN", "sub/b.CAN", "sub/deep/.hidden", "sub/up"}));
        QCOMPARE(listed(false), QStringList({"a.CAN", "sub"}));
        QVERIFY(Directory(path("none").toStdString()).entryList(true).empty());
    }

    void paths()
    {
        const std::string base = folder().toStdString();
        QCOMPARE(Directory::extractPathFomFile("/a/b/file.CAN"), std::string("/a/b"));
        QCOMPARE(Directory::extractPathFomFile("file.CAN"), std::string());
        QCOMPARE(Directory::extractPathFomFile(base + "/"), base + "/");
        QVERIFY(Directory::createDirectoryRecursive(base + "/x/y/ORNA/"));
        QVERIFY(Directory::exists(base + "/x/y/ORNA"));
        QVERIFY(Directory::createDirectoryRecursive(base + "/x"));
        const std::string file = write("file", "").toStdString();
        QVERIFY(!Directory::exists(file));
        QVERIFY(!Directory::createDirectoryRecursive(file + "/sub"));
        QVERIFY(!Directory::createDirectoryRecursive(""));
    }
};

QTEST_APPLESS_MAIN(TestBase)
#include "tst_base.moc"
