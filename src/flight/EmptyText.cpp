#include "flight/EmptyText.h"

#include "flight/Session.h"

#include <QtCore/QCoreApplication>

namespace TARN {

namespace {

/// The user's texts of this file, declared so that the extraction of texts finds them.
struct EmptyTexts
{
    Q_DECLARE_TR_FUNCTIONS(EmptyText)
};

QString withoutProfile(const Session& session)
{
    return session.profile()->isLoaded()
               ? QString()
               : EmptyTexts::tr(
                     "No profile is loaded, so nothing can be decoded and nothing was "
                     "checked.\nChoose one in the <a href=\"preferences\">preferences</a>.");
}

QString withoutSamples(const Session& session)
{
    if (session.switches().loading.isOn() && session.flight() == nullptr) {
        return EmptyTexts::tr("The recording is being loaded.");
    }
    if (session.flight() == nullptr) {
        return EmptyTexts::tr(
            "No recording is loaded.\nOpen a card and pick one or more recordings in "
            "the list on the left.");
    }
    return session.flight()->samples().empty()
               ? EmptyTexts::tr("The recording holds no samples, so nothing was checked.")
               : QString();
}

} // namespace

QString emptyTextOf(const Session& session)
{
    const QString profile = withoutProfile(session);
    if (!profile.isEmpty()) {
        return profile;
    }
    if (session.selection().empty()) {
        return EmptyTexts::tr(
            "No parameter is selected.\nTick parameters in the list on the left and "
            "press \"Confirm Selection\".");
    }
    return withoutSamples(session);
}

QString emptyTextOfAll(const Session& session)
{
    const QString profile = withoutProfile(session);
    return profile.isEmpty() ? withoutSamples(session) : profile;
}

} // namespace TARN
