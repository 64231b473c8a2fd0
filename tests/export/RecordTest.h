#pragma once

#include "profile/Profile.h"
#include "record/Record.h"
#include "support/CoreTest.h"
#include "support/RecordingBuilder.h"

#include <QtCore/QFile>

#include <cstring>
#include <memory>
#include <random>

/// Base of tests that work on a loaded recording, whose samples and profile are given as text.
class RecordTest : public CoreTest
{
protected:
    /// Adds samples such as "500@1.5=71.25 501/1@2=7:00F0": identifier, channel (0 when left
    /// out), seconds, and either a FLOAT or a type code with data in hexadecimal.
    static RecordingBuilder& add(RecordingBuilder& file, const QString& samples)
    {
        for (const QString& text : samples.split(' ', Qt::SkipEmptyParts)) {
            const QString source = text.section('@', 0, 0);
            TestSample sample;
            sample.id = source.section('/', 0, 0).toUInt();
            sample.channel = source.section('/', 1).toUInt();
            sample.ticks = ticks(text.section('@', 1).section('=', 0, 0).toDouble());
            sample.payload = payload(text.section('=', 1));
            file.add(sample);
        }
        return file;
    }

    /// Loads a recording of one file with these samples.
    TARN::Record& load(const QString& samples, const QString& name = "REC_0000.CAN")
    {
        RecordingBuilder file;
        return loadFiles({write(name, add(file, samples).bytes())});
    }
    TARN::Record& loadFiles(const std::list<QString>& paths)
    {
        mRecord = std::make_unique<TARN::Record>();
        if (!mRecord->readRecordData(paths)) {
            qFatal("could not read the recording");
        }
        return *mRecord;
    }

    /// Loads a profile with these elements below its root; no parameter is selected.
    TARN::Profile& useProfile(const QByteArray& elements) const
    {
        TARN::Profile& profile = *TARN::Profile::instance();
        if (!profile.loadProfile(write("profile.xml", "<CanAerospaceProfile>" + elements +
                                                          "</CanAerospaceProfile>"))) {
            qFatal("could not load the profile");
        }
        return profile;
    }

    static QByteArray golden(const QString& name)
    {
        QFile file(QString(ORNA_GOLDEN) + "/" + name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no golden file)");
    }

    /// A number from 0 to \p limit - 1; the same sequence on every machine.
    static int pick(std::mt19937& random, unsigned limit)
    {
        return static_cast<int>(random() % limit);
    }

private:
    static QByteArray payload(const QString& value)
    {
        if (value.contains(':')) {
            const QByteArray type = QByteArray::number(value.section(':', 0, 0).toUInt(), 16);
            return "00" + type.rightJustified(2, '0') + "0000" + value.section(':', 1).toLatin1();
        }
        const float number = value.toFloat();
        std::uint32_t bits;
        std::memcpy(&bits, &number, sizeof bits);
        return "00020000" + QByteArray::number(bits, 16).rightJustified(8, '0');
    }

    std::unique_ptr<TARN::Record> mRecord;
};
