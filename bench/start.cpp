#include "Suite.h"
#include "Window.h"

#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>

#include <filesystem>

namespace TARN::Bench {

namespace {

QString programBesideThisOne(const char* name)
{
    const auto folder = std::filesystem::read_symlink("/proc/self/exe").parent_path();
    return QString::fromStdString((folder / name).string());
}

Measurement startOf(const char* program, const QString& home)
{
    return [path = programBesideThisOne(program), home] {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", home);
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(home);
        process.setStandardOutputFile(QProcess::nullDevice());
        return secondsOf([&] {
            process.start(path, QStringList());
            require(process.waitForFinished() && process.exitCode() == 0,
                    "can't start " + path.toStdString());
        });
    };
}

/// The profile is looked for in the bundle below the working directory.
void installProfile(const QString& home)
{
    const std::filesystem::path folder = home.toStdString() + "/orna.app/Contents/Resources";
    std::filesystem::create_directories(folder);
    std::filesystem::copy(ORNA_BENCH_PROFILE, folder);
}

/// Time from the start of the viewer's process until its window has painted, to that of a bare
/// window with an OpenGL widget. Both run with an empty home of their own.
double startRatio()
{
    const QTemporaryDir home;
    require(home.isValid(), "no folder for a home");
    installProfile(home.path());
    constexpr int Rounds = 15; // so short a time is easily disturbed
    return ratioOf(startOf("orna-bench-start-viewer", home.path()),
                   startOf("orna-bench-start-bare", home.path()), Rounds);
}

} // namespace

void startFigures(Suite& suite)
{
    suite.figure("start.time", 1.4, startRatio);
}

} // namespace TARN::Bench
