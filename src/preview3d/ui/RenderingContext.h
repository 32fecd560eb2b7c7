#pragma once

#include <QSize>

#include <memory>
#include <string>

namespace keltavlo {

class OffScreenSurface;
struct PixelFormat;

// The state of one OpenGL scene. It draws on off-screen surfaces and needs no screen.
class RenderingContext {
public:
    // Null when the system offers no OpenGL, or nothing near the format.
    static std::unique_ptr<RenderingContext> Create(const PixelFormat& format);
    RenderingContext(const RenderingContext&) = delete;
    RenderingContext& operator=(const RenderingContext&) = delete;
    ~RenderingContext();

    // A surface for this context, of at least one pixel; null when there is no room for it.
    std::unique_ptr<OffScreenSurface> CreateSurface(QSize size) const;
    // From now on the OpenGL calls of this thread go to the context and the surface. False when they do not.
    bool MakeCurrent(const OffScreenSurface& surface) const;
    // From now on they go nowhere.
    static void MakeNoneCurrent();

private:
    RenderingContext(void* displayHandle, void* configHandle, void* contextHandle)
        : display(displayHandle), config(configHandle), context(contextHandle) {}

    void* display;
    void* config;
    void* context;
};

// What draws, and its OpenGL version, for people to read; empty when the system offers no OpenGL.
std::string DescribeOpenGL();

} // namespace keltavlo
