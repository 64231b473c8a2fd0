#pragma once

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <arpa/inet.h>
#include <csignal>
#include <grp.h>
#include <pwd.h>
#include <sys/socket.h>
#include <unistd.h>

/// A database server with a folder of its own on the loopback address, stopped when this dies. It
/// refuses to be run by root and is run by its own user then.
class PostgresServer
{
public:
    static constexpr const char* Password = "p'w \"<b>&;";

    PostgresServer() : mPort(freePort()), mUser(geteuid() == 0 ? getpwnam("postgres") : nullptr)
    {
        const QString password = mFolder.filePath("password");
        QFile file(password);
        if (file.open(QIODevice::WriteOnly)) {
            file.write(Password);
            file.close();
        }
        for (const QString& path : {mFolder.path(), password}) {
            if (mUser != nullptr && chown(qPrintable(path), mUser->pw_uid, mUser->pw_gid) != 0) {
                qFatal("could not give the folder to the server's user");
            }
        }
        QProcess init;
        startAs(
            init, "initdb",
            {"-D", data(), "-U", "orna", "-A", "scram-sha-256", "--no-sync", "--pwfile", password});
        if (!init.waitForFinished(120'000) || init.exitCode() != 0) {
            qFatal("could not make a database: %s", init.readAllStandardError().constData());
        }
    }
    ~PostgresServer() { stop(); }

    void start()
    {
        startAs(mServer, "postgres",
                {"-D", data(), "-h", "127.0.0.1", "-p", QString::number(mPort), "-k",
                 mFolder.path(), "-F"});
        for (int left = 600; left > 0 && !isReady(); --left) {
            QTest::qWait(100);
        }
    }

    /// Ends its connections, too.
    void stop()
    {
        if (mServer.state() != QProcess::NotRunning) {
            ::kill(static_cast<pid_t>(mServer.processId()), SIGINT);
            mServer.waitForFinished();
        }
    }

    QString url(const QString& user = "orna") const
    {
        return QString("postgresql://%1@127.0.0.1:%2/postgres").arg(user).arg(mPort);
    }

private:
    static int freePort()
    {
        const int made = socket(AF_INET, SOCK_STREAM, 0);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        auto* generic = reinterpret_cast<sockaddr*>(&address);
        const bool known = bind(made, generic, size) == 0 && getsockname(made, generic, &size) == 0;
        close(made);
        return known ? ntohs(address.sin_port) : 0;
    }

    void startAs(QProcess& process, const QString& program, const QStringList& arguments)
    {
        process.setWorkingDirectory(mFolder.path());
        process.setStandardOutputFile(QProcess::nullDevice());
        if (program == "postgres") {
            process.setStandardErrorFile(QProcess::nullDevice());
        }
        if (mUser != nullptr) {
            process.setChildProcessModifier([user = mUser] {
                if (setgroups(0, nullptr) != 0 || setgid(user->pw_gid) != 0 ||
                    setuid(user->pw_uid) != 0) {
                    _exit(1);
                }
            });
        }
        process.start(binary(program), arguments);
    }

    bool isReady() const
    {
        QProcess asked;
        asked.start(binary("pg_isready"), {"-h", "127.0.0.1", "-p", QString::number(mPort)});
        return asked.waitForFinished() && asked.exitCode() == 0;
    }

    static QString binary(const QString& program)
    {
        const QDir versions("/usr/lib/postgresql");
        const QString version =
            versions.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name).value(0);
        return versions.filePath(version + "/bin/" + program);
    }

    QString data() const { return mFolder.filePath("data"); }

    QTemporaryDir mFolder;
    int mPort;
    const passwd* mUser; ///< null: the one who runs this
    QProcess mServer;
};
