#include "Suite.h"
#include "demo/Card.h"
#include "report/ExportReport.h"

#include <QtCore/QFile>

#include <filesystem>

namespace TARN::Bench {

namespace {

/// The demo hour, and its report of every parameter.
class ReportBench
{
public:
    explicit ReportBench(Suite& suite)
    {
        const auto card = suite.folder() / "report";
        std::filesystem::create_directories(card);
        Demo::CardOptions options;
        options.folder = card.string();
        options.minutes = 60;
        require(Demo::writeCard(options).empty(), "the demo flight was not written");
        for (const auto& entry : std::filesystem::directory_iterator(card)) {
            mFiles.push_back(QString::fromStdString(entry.path().string()));
        }
        mFiles.sort();
        mProfile = Profile::load(ORNA_BENCH_PROFILE);
        mOptions.directory = suite.folder().string();
        mOptions.fileName = "report.html";
    }

    double ratio()
    {
        mShown.flight = load();
        mShown.selection = Selection::all(*mProfile);
        mOptions.startTime = mShown.flight->range(0.0).start;
        mOptions.stopTime = mShown.flight->range(0.0).stop;
        write();
        QFile page(mOptions.path());
        require(page.open(QIODevice::ReadOnly), "there is no report");
        const QByteArray text = page.readAll();
        require(text.contains("Oil Pressure") && text.endsWith("</html>\n"), "a poor report");
        return ratioOf([this] { return secondsOf([this] { write(); }); },
                       [this] { return secondsOf([this] { keep(load()); }); }, 5);
    }

private:
    std::shared_ptr<const Flight> load() const
    {
        auto record = std::make_shared<Record>();
        require(record->readRecordData(mFiles), "the demo flight was not loaded");
        return Flight::make(std::move(record), mProfile);
    }

    void write()
    {
        Progress none;
        require(bool(ExportReport(mOptions).run(mShown, none)), "the report was not written");
    }

    std::list<QString> mFiles;
    std::shared_ptr<const Profile> mProfile;
    ExportInput mShown;
    ReportOptions mOptions;
};

} // namespace

void reportFigures(Suite& suite)
{
    if (suite.isWanted("report.time")) {
        ReportBench bench(suite);
        suite.figure("report.time", 6.0, [&] { return bench.ratio(); });
    }
}

} // namespace TARN::Bench
