#include "preview3d/ui/OffScreenSurface.h"

#include <EGL/egl.h>
#include <GL/gl.h>
#include <GL/glext.h>
#include <new>

namespace keltavlo {

namespace {

constexpr QRgb opaque = 0xFF000000;

// OpenGL returns the bottom row first and meaningless alpha.
void TurnOver(QImage& picture) {
    for (int top = 0, bottom = picture.height() - 1; top <= bottom; ++top, --bottom) {
        auto* upper = reinterpret_cast<QRgb*>(picture.scanLine(top));
        auto* lower = reinterpret_cast<QRgb*>(picture.scanLine(bottom));
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb pixel = upper[x];
            upper[x] = lower[x] | opaque;
            lower[x] = pixel | opaque;
        }
    }
}

} // namespace

OffScreenSurface::~OffScreenSurface() {
    eglDestroySurface(display, handle);
}

void OffScreenSurface::CopyTo(QImage& picture) const {
    if (picture.size() != size) picture = QImage(size, QImage::Format_RGB32);
    if (picture.isNull()) throw std::bad_alloc();
    glReadPixels(0, 0, size.width(), size.height(), GL_BGRA, GL_UNSIGNED_INT_8_8_8_8_REV, picture.bits());
    TurnOver(picture);
}

} // namespace keltavlo
