#include "support/CoreTest.h"

#include "base/Diagnostics.h"

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>

void CoreTest::init()
{
    QTest::failOnWarning(QRegularExpression(".*"));
    mFolder = std::make_unique<QTemporaryDir>();
    mDiagnostics = std::tmpfile();
    QVERIFY(mFolder->isValid() && mDiagnostics != nullptr);
    TARN::setDiagnosticStream(mDiagnostics);
}

void CoreTest::cleanup()
{
    TARN::setDiagnosticStream(nullptr);
    std::fclose(mDiagnostics);
    mFolder.reset();
}

QString CoreTest::write(const QString& name, const QByteArray& content) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("could not write %s", qUtf8Printable(file.fileName()));
    }
    return file.fileName();
}

QByteArray CoreTest::read(const QString& name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}

QByteArray CoreTest::diagnostics()
{
    QByteArray text;
    std::rewind(mDiagnostics);
    for (int c = std::fgetc(mDiagnostics); c != EOF; c = std::fgetc(mDiagnostics)) {
        text += static_cast<char>(c);
    }
    std::fclose(mDiagnostics);
    mDiagnostics = std::tmpfile();
    TARN::setDiagnosticStream(mDiagnostics);
    return text;
}
