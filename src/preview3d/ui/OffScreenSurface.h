#pragma once

#include <QImage>

namespace keltavlo {

// Memory of the graphics system that OpenGL draws into, as the back buffer of a window.
class OffScreenSurface {
public:
    // Called by RenderingContext. Takes ownership of `surfaceHandle`.
    OffScreenSurface(void* displayHandle, void* surfaceHandle, QSize surfaceSize)
        : display(displayHandle), handle(surfaceHandle), size(surfaceSize) {}
    OffScreenSurface(const OffScreenSurface&) = delete;
    OffScreenSurface& operator=(const OffScreenSurface&) = delete;
    ~OffScreenSurface();

    void* GetHandle() const { return handle; }
    QSize GetSize() const { return size; } // pixels
    // Copies the drawn pixels, top row first. The surface must be current. `picture` becomes RGB32 of the
    // surface's size and keeps its memory if it fits. Throws std::bad_alloc.
    void CopyTo(QImage& picture) const;

private:
    void* display;
    void* handle;
    QSize size;
};

} // namespace keltavlo
