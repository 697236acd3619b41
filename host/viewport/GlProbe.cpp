#include "host/viewport/GlProbe.h"

#include <QGuiApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>

namespace Host {

namespace {

constexpr int major = 3;
constexpr int minor = 3;

/// Platforms without windows. Some offer OpenGL all the same, but cannot show what was drawn with it.
bool HasWindows()
{
    const QString platform = QGuiApplication::platformName();
    return platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
}

} // namespace

QSurfaceFormat ViewportFormat()
{
    constexpr int depthBits = 24;
    QSurfaceFormat format;
    format.setRenderableType(QSurfaceFormat::OpenGL);
    format.setVersion(major, minor);
    format.setProfile(QSurfaceFormat::CoreProfile);
    format.setDepthBufferSize(depthBits);
    // Drawn at the pace of the events; waiting for the screen is left to the window system.
    format.setSwapInterval(0);
    return format;
}

bool HasViewportGl()
{
    if (!HasWindows()) {
        return false;
    }
    QOpenGLContext context;
    context.setFormat(ViewportFormat());
    if (!context.create() || context.isOpenGLES()) {
        return false;
    }
    QOffscreenSurface surface;
    surface.setFormat(context.format());
    surface.create();
    if (!surface.isValid() || !context.makeCurrent(&surface)) {
        return false;
    }
    const bool isEnough = context.format().version() >= qMakePair(major, minor);
    context.doneCurrent();
    return isEnough;
}

} // namespace Host
