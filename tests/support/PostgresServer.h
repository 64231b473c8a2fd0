#pragma once

#include "support/LocalServer.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

#include <grp.h>
#include <pwd.h>

/// A database server. It refuses to be run by root and is run by its own user then.
class PostgresServer : public LocalServer
{
public:
    static constexpr const char* Password = "p'w \"<b>&;";

    PostgresServer() : mUser(geteuid() == 0 ? getpwnam("postgres") : nullptr)
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
    ~PostgresServer() override { stop(); }

    void start()
    {
        startAs(mProcess, "postgres",
                {"-D", data(), "-h", "127.0.0.1", "-p", QString::number(mPort), "-k",
                 mFolder.path(), "-F"});
        waitUntilReady();
    }

    /// Ends its connections, too.
    void stop() { signalAndWait(SIGINT); }

    QString url(const QString& user = "orna") const
    {
        return QString("postgresql://%1@127.0.0.1:%2/postgres").arg(user).arg(mPort);
    }

private:
    void startAs(QProcess& process, const QString& program, const QStringList& arguments)
    {
        process.setWorkingDirectory(mFolder.path());
        process.setStandardOutputFile(QProcess::nullDevice());
        if (program == "postgres") {
            process.setStandardErrorFile(QProcess::nullDevice());
        }
        process.setChildProcessModifier([user = mUser] {
            if (user != nullptr && (setgroups(0, nullptr) != 0 || setgid(user->pw_gid) != 0 ||
                                    setuid(user->pw_uid) != 0)) {
                _exit(1);
            }
            dieWithParent();
        });
        process.start(binary(program), arguments);
    }

    bool isReady() const override
    {
        return succeeds(binary("pg_isready"), {"-h", "127.0.0.1", "-p", QString::number(mPort)});
    }

    static QString binary(const QString& program)
    {
        const QDir versions("/usr/lib/postgresql");
        const QString version =
            versions.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name).value(0);
        return versions.filePath(version + "/bin/" + program);
    }

    QString data() const { return mFolder.filePath("data"); }

    const passwd* mUser; ///< null: the one who runs this
};
