#pragma once

#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <arpa/inet.h>
#include <csignal>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <unistd.h>

/// A server with a folder of its own on the loopback address, stopped by its process id.
class LocalServer
{
protected:
    LocalServer() : mPort(freePort()) {}
    virtual ~LocalServer() = default; ///< who starts it stops it
    LocalServer(const LocalServer&) = delete;
    LocalServer& operator=(const LocalServer&) = delete;

    virtual bool isReady() const = 0;

    void waitUntilReady() const
    {
        constexpr int Most = 600;
        for (int left = Most; left > 0 && !isReady(); --left) {
            QTest::qWait(100);
        }
    }

    void signalAndWait(int signal)
    {
        if (mProcess.state() != QProcess::NotRunning) {
            ::kill(static_cast<pid_t>(mProcess.processId()), signal);
            mProcess.waitForFinished();
        }
    }

    /// In the child, before its program begins: a test that crashes leaves no server behind.
    static void dieWithParent() { prctl(PR_SET_PDEATHSIG, SIGTERM); }

    static bool succeeds(const QString& program, const QStringList& arguments)
    {
        QProcess asked;
        asked.start(program, arguments);
        return asked.waitForFinished() && asked.exitCode() == 0;
    }

    QTemporaryDir mFolder;
    int mPort;
    QProcess mProcess;

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
};
