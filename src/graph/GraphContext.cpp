#include "graph/GraphContext.h"

#include <QtCore/QThread>
#include <QtGui/QOffscreenSurface>
#include <QtGui/QOpenGLContext>

#include <future>
#include <memory>

namespace TARN {

namespace {

using Context = std::unique_ptr<QOpenGLContext>;

/// Null where there is none; for the thread \p user.
Context makeContext(QThread* user)
{
    auto context = std::make_unique<QOpenGLContext>();
    context->setFormat(graphFormat());
    if (!context->create()) {
        return nullptr;
    }
    context->moveToThread(user);
    return context;
}

/// On its way, or nothing.
std::future<Context>& coming()
{
    static std::future<Context> context;
    return context;
}

/// An OpenGL for embedded devices, or one without what is old, cannot draw it.
bool isEnough(QOpenGLContext& context)
{
    QOffscreenSurface surface;
    surface.setFormat(graphFormat());
    surface.create();
    if (context.isOpenGLES() || !context.makeCurrent(&surface)) {
        return false;
    }
    const bool isWhole = context.format().profile() != QSurfaceFormat::CoreProfile;
    context.doneCurrent();
    return isWhole;
}

} // namespace

QSurfaceFormat graphFormat()
{
    QSurfaceFormat format;
    format.setRenderableType(QSurfaceFormat::OpenGL);
    format.setVersion(2, 1);
    format.setProfile(QSurfaceFormat::NoProfile);
    return format;
}

void loadGraphics()
{
    coming() = std::async(std::launch::async, makeContext, QThread::currentThread());
}

bool canDrawGraph()
{
    const Context context =
        coming().valid() ? coming().get() : makeContext(QThread::currentThread());
    return context != nullptr && isEnough(*context);
}

} // namespace TARN
