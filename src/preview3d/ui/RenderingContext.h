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
    // Returns null if the system has no OpenGL or no similar format.
    static std::unique_ptr<RenderingContext> Create(const PixelFormat& format);
    RenderingContext(const RenderingContext&) = delete;
    RenderingContext& operator=(const RenderingContext&) = delete;
    ~RenderingContext();

    // Creates a surface for this context, of at least one pixel; null if there is no room for it.
    std::unique_ptr<OffScreenSurface> CreateSurface(QSize size) const;
    // Directs the OpenGL calls of this thread to the context and the surface. Returns false on failure.
    bool MakeCurrent(const OffScreenSurface& surface) const;
    // Disconnects this thread from its context.
    static void MakeNoneCurrent();

private:
    RenderingContext(void* displayHandle, void* configHandle, void* contextHandle)
        : display(displayHandle), config(configHandle), context(contextHandle) {}

    void* display;
    void* config;
    void* context;
};

// Returns the renderer and its OpenGL version for display, or an empty text if the system has no OpenGL.
std::string DescribeOpenGL();

} // namespace keltavlo
