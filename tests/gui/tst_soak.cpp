#include "gui/Monkey.h"
#include "profile/Profile.h"
#include "record/Record.h"

#include <QtCore/QFile>
#include <QtTest/QTest>
#include <QtWidgets/QStatusBar>

#include <algorithm>
#include <unistd.h>
#include <vector>

using namespace TARN;

/// Long use of the whole window without a plan. ORNA_SOAK_ACTIONS and ORNA_SOAK_SEED make it
/// longer and different.
class Soak : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void staysSoundAndSmall();
};

namespace {

int setting(const char* name, int def)
{
    bool isNumber = false;
    const int value = qEnvironmentVariableIntValue(name, &isNumber);
    return isNumber ? value : def;
}

/// Memory that the process holds, MiB.
double heldMemory()
{
    QFile file("/proc/self/statm");
    if (!file.open(QIODevice::ReadOnly)) {
        return 0.0;
    }
    const double pages = file.readAll().split(' ').value(1).toDouble();
    return pages * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1024.0 * 1024.0);
}

void write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(path));
    file.write(bytes);
}

/// A card as a crash leaves it: beside the good files a torn one, an empty one and noise.
void spoilCard(const Viewer& viewer)
{
    QFile whole(viewer.cardPath() + "/LOG_0002.CAN");
    QVERIFY(whole.open(QIODevice::ReadOnly));
    const QByteArray bytes = whole.readAll();
    write(viewer.cardPath() + "/TORN_8001.CAN", bytes.left(bytes.size() / 3 + 11));
    write(viewer.cardPath() + "/EMPTY.can", {});
    QByteArray noise = bytes.left(200000);
    for (qsizetype i = 0; i < noise.size(); i += 7) {
        noise[i] = static_cast<char>(i * 31);
    }
    write(viewer.cardPath() + "/NOISE.CAN", noise);
}

} // namespace

void Soak::staysSoundAndSmall()
{
    const int actions = setting("ORNA_SOAK_ACTIONS", 120);
    const auto seed = static_cast<unsigned>(setting("ORNA_SOAK_SEED", 1));
    constexpr double MostGrowth = 96.0; // MiB; one recording and its curves come and go
    Viewer viewer;
    spoilCard(viewer);
    viewer.start();
    Monkey monkey(viewer, seed);
    std::vector<double> held;
    for (int i = 0; i < actions; ++i) {
        const QByteArray deed = monkey.act();
        const QByteArray where = QByteArray::number(i) + ": " + deed;
        QVERIFY2(viewer.window().isVisible(), where);
        QVERIFY2(viewer.window().windowTitle().startsWith("ORNA "), where);
        const bool hasSamples = !viewer.window().record().recordData().empty();
        QVERIFY2(viewer.action("Export CSV/CAN File")->isEnabled() == hasSamples, where);
        const bool hasColumns = viewer.table()->model()->columnCount() > 1;
        QVERIFY2(hasColumns || viewer.table()->model()->rowCount() == 0, where);
        if (i % std::max(1, actions / 6) == actions / 6 - 1) {
            held.push_back(heldMemory());
            qInfo("%d actions, memory %.0f MiB", i + 1, held.back());
        }
    }
    QVERIFY(held.back() - held.at(1) < MostGrowth); // by then everything has been opened once
}

QTEST_MAIN(Soak)
#include "tst_soak.moc"
