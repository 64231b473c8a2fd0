#pragma once

#include "flight/Flight.h"
#include "profile/Selection.h"
#include "support/CoreTest.h"
#include "support/RecordingBuilder.h"

#include <QtCore/QFile>

#include <cstring>
#include <memory>
#include <random>

/// Base of tests that work on recordings, profiles and flights, which are given as text.
class FlightTest : public CoreTest
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

    /// Writes a recording of these samples and returns its path.
    QString writeRecording(const QString& samples, const QString& name = "REC_0000.CAN") const
    {
        RecordingBuilder file;
        return write(name, add(file, samples).bytes());
    }

    static std::shared_ptr<const TARN::Record> load(const std::list<QString>& paths)
    {
        auto record = std::make_shared<TARN::Record>();
        if (!record->readRecordData(paths)) {
            qFatal("could not read the recording");
        }
        return record;
    }

    /// A profile with these elements below its root.
    std::shared_ptr<const TARN::Profile> profileOf(const QByteArray& elements) const
    {
        auto profile = TARN::Profile::load(
            write("profile.xml", "<CanAerospaceProfile>" + elements + "</CanAerospaceProfile>"));
        if (!profile->isLoaded()) {
            qFatal("could not load the profile");
        }
        return profile;
    }

    std::shared_ptr<const TARN::Flight> flightOf(const QString& samples,
                                                 const QByteArray& elements) const
    {
        return TARN::Flight::make(load({writeRecording(samples)}), profileOf(elements));
    }

    /// The parameters of these names.
    static TARN::Selection select(const TARN::Profile& profile, const QStringList& names)
    {
        TARN::Selection selection;
        for (const auto& [device, parameter] : profile.parameters()) {
            if (names.contains(parameter->name)) {
                selection.set(*parameter, true);
            }
        }
        return selection;
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
};
