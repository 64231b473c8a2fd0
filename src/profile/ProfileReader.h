#pragma once

#include "base/XmlHandler.h"
#include "profile/Profile.h"

namespace TARN {

/// Fills a cleared profile from the elements of its file, in document order: names are looked
/// up among what stood earlier.
class ProfileReader
{
public:
    explicit ProfileReader(Profile& profile) : mProfile(profile) {}

    void readRoot(const QDomElement& root);

private:
    void readUnits(const QDomElement& list);
    void readEnums(const QDomElement& list);
    void readThresholds(const QDomElement& list);
    void readDevice(const QDomElement& element);
    void readErrorMatrix(const QDomElement& element);
    ProfileParameter readParameter(const QDomElement& element, const QString& device);
    void readSteady(const QDomElement& element, ProfileParameter& parameter);
    void noteKmlParameter(const QString& kmlId, const ProfileParameter& parameter);
    void store(ProfileDevice& device, const ProfileParameter& parameter);

    QString text(const QDomElement& element, const char* name);
    int integer(const QDomElement& element, const char* name);
    std::optional<double> number(const QDomElement& element, const char* name);

    Profile& mProfile;
    XmlHandler mXml;
};

} // namespace TARN
