#include "base/ClockTime.h"
#include "base/CountText.h"
#include "base/Directory.h"
#include "base/FreeMemory.h"
#include "base/OutputFile.h"
#include "base/Progress.h"
#include "base/Revision.h"
#include "base/Timer.h"
#include "support/CoreTest.h"
#include "support/ResourceLimit.h"

#include <QtCore/QDir>
#include <QtCore/QRegularExpression>

#include <array>
#include <bit>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <set>
#include <sys/stat.h>

using namespace TARN;

class TestBase : public CoreTest
{
    Q_OBJECT

    /// The first of printf's texts of one, two, three ... digits that reads back as \p value.
    static std::string shortestOf(float value)
    {
        char text[64];
        int digits = 0;
        do {
            std::snprintf(text, sizeof text, "%.*g", ++digits, double(value));
        } while (std::strtof(text, nullptr) != value && digits < 9);
        const double back = std::strtod(text, nullptr);
        if (std::abs(back) >= 1 && std::abs(back) < 1e12 && std::strchr(text, 'e') != nullptr) {
            std::snprintf(text, sizeof text, "%.0f", back);
        }
        return text;
    }

private Q_SLOTS:
    void integersAndClocks()
    {
        QCOMPARE(truncatedTo<int>(-1.9), -1);
        QCOMPARE(truncatedTo<int>(2147483646.9), 2147483646);
        QCOMPARE(truncatedTo<int>(1e300), 2147483647);
        QCOMPARE(truncatedTo<int>(-INFINITY), std::numeric_limits<int>::min());
        QCOMPARE(truncatedTo<int>(std::nan("")), 0);
        QCOMPARE(truncatedTo<std::uint32_t>(4294967295.5), 4294967295U);
        QCOMPARE(truncatedTo<std::int64_t>(0x1p63), std::numeric_limits<std::int64_t>::max());
        QVERIFY(timeKeyOf(0.04) == 0 && timeKeyOf(0.05) == 1 && timeKeyOf(-3.0) == 0);
        QCOMPARE(tenthsOf(0.25), 3);
        QCOMPARE(clockText(90061.9999), QString("01:01:01"));
        QCOMPARE(clockText(-1.0), QString("23:59:59"));
        QVERIFY(!clockText(1e300).isEmpty());
        QCOMPARE(clockTime(86'400'000LL * 40 + 123).toString("ss.zzz"), QString("00.123"));
        for (const QString text : {"0", "999", "1_000", "-999", "-100_000", "1_234_567"}) {
            const qint64 count = QString(text).remove('_').toLongLong();
            QCOMPARE(countText(count), QString(text).replace('_', QChar(0x202F)));
        }
    }

    void numbersAreThoseOfPrintf()
    {
        std::mt19937_64 random(7);
        std::uniform_real_distribution<double> exponent(-20, 20);
        std::string text;
        for (int i = 0; i < 50000; ++i) {
            const double anySize = std::pow(10.0, exponent(random));
            const double half = static_cast<double>(random() % 10'000'000'000'000) + 0.5;
            const double ten = std::pow(10.0, i % 26 - 6);
            const double next = std::nextafter(ten, random() % 2 == 0 ? 0.0 : 1e300);
            // The one by 1024 is a tie where it has thirteen digits.
            for (const double value : {std::bit_cast<double>(random()), -anySize, half, half / 1000,
                                       double(float(anySize)), half / 1024, next, ten, i * -0.25}) {
                const int precision = std::array{12, 6, 1, 17, 18}[random() % 5];
                char expected[64];
                std::snprintf(expected, sizeof expected, "%.*g", precision, value);
                text.clear();
                appendGeneral(value, precision, text);
                QCOMPARE(text, std::string(expected));
            }
            for (const float value : {std::bit_cast<float>(std::uint32_t(random())), -float(ten),
                                      float(anySize), float(i + 1) / 100}) {
                text.clear();
                appendShortest(value, text);
                QCOMPARE(text, shortestOf(value));
            }
        }
        appendShortest(-0.0F, text = "4.06 is ");
        QCOMPARE(text, std::string("4.06 is 0"));
        QCOMPARE(fixedText(-std::numeric_limits<double>::max(), 12).size(), 1U + 309 + 1 + 12);
    }

    void progress()
    {
        QString heard;
        std::stop_source stop;
        const auto listener = [&](int percent, const QString& task) { heard += task.arg(percent); };
        Progress progress(listener, stop.get_token());
        for (const char* task : {"%1 ", "sorted %1 "}) {
            progress.begin(task);
            for (const std::size_t all : {0U, 200U, 200U, 199U, 100U}) { // nothing to do is done
                progress.report(std::min<std::size_t>(all, 100), all);
            }
        }
        QCOMPARE(heard, QString("100 50 100 sorted 100 sorted 50 sorted 100 "));
        QVERIFY(!progress.stopRequested() && stop.request_stop() && progress.stopRequested());
        Progress().report(5);
    }

    void outputFiles()
    {
        const QByteArray content = QByteArray("0123456789abcde\n").repeated(3 << 16);
        QCOMPARE(mkfifo(qPrintable(path("pipe")), 0600), 0);
        write("old", "old");
        const std::tuple<const char*, const char*, rlim_t> targets[] = {
            {"old", "File too large", 3 << 19}, // on a full disk
            {"none/new", "No such file or directory", RLIM_INFINITY},
            {".", "it is no file", RLIM_INFINITY},
            {"pipe", "it is no file", RLIM_INFINITY},
            {"old", "", RLIM_INFINITY}};
        for (const auto& [name, reason, most] : targets) {
            const auto limit = ResourceLimit::fullDisk(most);
            OutputFile file(path(name));
            const bool opened = file.open();
            for (int at = 0; opened && at < content.size(); at += 1024) {
                file.write({content.data() + at, 1024});
            }
            QCOMPARE(opened && file.failed(), most != RLIM_INFINITY);
            QCOMPARE(opened && file.commit(), *reason == '\0');
            QCOMPARE(file.errorText(), QString(reason));
            QCOMPARE(read("old"), *reason == '\0' ? content : "old");
            QCOMPARE(QDir(folder()).count(), 3U); // with "." and "..", and no part of a file
        }
    }

    void system()
    {
        Revision::printHeader();
        const QByteArray text = diagnostics();
        const QRegularExpression form("^-{49}\n\n(.*\n){11} {16}Version  : ORNA 1\\.2\\.19\n"
                                      " {16}Compiled : [A-Z][a-z]{2} [ \\d]\\d \\d{4} [\\d:]{8}\n"
                                      " {16}CWD      : (.*)\n-{49}\n$");
        QVERIFY2(form.match(text).captured(2) == QDir::currentPath(), text);
        Timer("load");
        QVERIFY(QRegularExpression("^load : [0-9.e+-]+ ms\n$").match(diagnostics()).hasMatch());
        const auto pages = static_cast<std::uint64_t>(sysconf(_SC_PHYS_PAGES));
        const std::uint64_t available = availableMemory().value_or(1 << 20);
        QVERIFY(available >= 1 << 20 && available / std::uint64_t(sysconf(_SC_PAGESIZE)) <= pages);
    }

    void directories()
    {
        const std::string base = folder().toStdString();
        QVERIFY(Directory::createDirectoryRecursive(base + "/sub/deep/"));
        QVERIFY(Directory::createDirectoryRecursive(base + "/sub"));
        const std::string file = write("a.CAN", "").toStdString();
        write("sub/deep/.hidden", "");
        QVERIFY(QFile::link(folder(), path("sub/up"))); // a circle
        using Names = std::multiset<std::string>;
        const auto listed = [](const std::string& name, bool recursive) {
            const auto entries = Directory(name).entryList(recursive);
            return Names(entries.begin(), entries.end());
        };
        QCOMPARE(listed(base, true), Names({file, base + "/sub/deep/.hidden", base + "/sub/up"}));
        QCOMPARE(listed(base, false), Names({file, base + "/sub"}));
        QCOMPARE(listed(base + "/none", true), Names());
        QVERIFY(Directory::exists(base + "/sub/deep") && !Directory::exists(file));
        QVERIFY(!Directory::createDirectoryRecursive(file + "/sub"));
        QVERIFY(!Directory::createDirectoryRecursive(""));
        QCOMPARE(Directory::extractPathFomFile("/a/b/file.CAN"), std::string("/a/b"));
        QCOMPARE(Directory::extractPathFomFile("file.CAN"), std::string());
        QCOMPARE(Directory::extractPathFomFile(base + "/"), base + "/");
    }
};

QTEST_APPLESS_MAIN(TestBase)
#include "tst_base.moc"
