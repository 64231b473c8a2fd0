#pragma once

#include <QtCore/QDir>
#include <QtCore/QObject>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <cstdio>
#include <memory>

/// Base of every test of the core. Each test function gets an empty folder of its own and hears
/// the diagnostics of what it calls; a warning of the toolkit fails it.
class CoreTest : public QObject
{
    Q_OBJECT

protected:
    QString path(const QString& name) const { return QDir(folder()).filePath(name); }
    QString folder() const { return mFolder->path(); }

    /// Writes a file into the folder and returns its path.
    QString write(const QString& name, const QByteArray& content) const;
    QByteArray read(const QString& name) const;

    /// What was diagnosed since the test function began or since the last call.
    QByteArray diagnostics();

protected Q_SLOTS:
    void init();
    void cleanup();

private:
    std::unique_ptr<QTemporaryDir> mFolder;
    std::FILE* mDiagnostics = nullptr;
};
