#include "preview3d/ui/RenderingContext.h"

#include "preview3d/ui/OffScreenSurface.h"
#include "preview3d/ui/PixelFormat.h"

#include <EGL/egl.h>
#include <EGL/eglext.h>
#include <GL/gl.h>
#include <array>
#include <vector>

namespace keltavlo {

namespace {

// Opens a display that draws without a screen, otherwise the screen's display. It stays open until the
// program ends, because contexts come and go.
EGLDisplay OpenDisplay() {
    EGLDisplay display = eglGetPlatformDisplay(EGL_PLATFORM_SURFACELESS_MESA, nullptr, nullptr);
    if (display && eglInitialize(display, nullptr, nullptr)) return display;
    display = eglGetDisplay(EGL_DEFAULT_DISPLAY);
    return display && eglInitialize(display, nullptr, nullptr) ? display : EGL_NO_DISPLAY;
}

EGLDisplay GetDisplay() {
    static const EGLDisplay display = OpenDisplay();
    return display;
}

int GetAttribute(EGLDisplay display, EGLConfig config, EGLint name) {
    EGLint value = 0;
    eglGetConfigAttrib(display, config, name, &value);
    return value;
}

std::vector<EGLConfig> FindConfigs(EGLDisplay display, int depthBits) {
    const std::array attributes{EGL_SURFACE_TYPE, EGL_PBUFFER_BIT, EGL_RENDERABLE_TYPE,
                                EGL_OPENGL_BIT,   EGL_DEPTH_SIZE,  depthBits,
                                EGL_NONE};
    EGLint count = 0;
    eglChooseConfig(display, attributes.data(), nullptr, 0, &count);
    std::vector<EGLConfig> configs(static_cast<std::size_t>(count));
    eglChooseConfig(display, attributes.data(), configs.data(), count, &count);
    return configs;
}

// Chooses the configuration with the fewest sufficient bits, so that no bits are lost and none wasted.
EGLConfig ChooseConfig(EGLDisplay display, const PixelFormat& format) {
    for (int depthBits = format.depthBits; depthBits > 0; depthBits -= 8) {
        EGLConfig best = nullptr;
        int bestBits = 0;
        for (const EGLConfig config : FindConfigs(display, depthBits)) {
            const int bits = GetAttribute(display, config, EGL_BUFFER_SIZE);
            if (bits < format.colorBits || (best && bits >= bestBits)) continue;
            best = config;
            bestBits = bits;
        }
        if (best) return best;
    }
    return nullptr;
}

// Uses the profile that still has the calls of OpenGL 1.
EGLContext CreateNativeContext(EGLDisplay display, EGLConfig config) {
    constexpr std::array attributes{EGL_CONTEXT_OPENGL_PROFILE_MASK,
                                    EGL_CONTEXT_OPENGL_COMPATIBILITY_PROFILE_BIT, EGL_NONE};
    eglBindAPI(EGL_OPENGL_API);
    return eglCreateContext(display, config, EGL_NO_CONTEXT, attributes.data());
}

std::string GetText(GLenum name) {
    const GLubyte* text = glGetString(name);
    return text ? reinterpret_cast<const char*>(text) : std::string();
}

} // namespace

std::unique_ptr<RenderingContext> RenderingContext::Create(const PixelFormat& format) {
    const EGLDisplay display = GetDisplay();
    if (!display) return nullptr;
    const EGLConfig config = ChooseConfig(display, format);
    if (!config) return nullptr;
    const EGLContext context = CreateNativeContext(display, config);
    if (!context) return nullptr;
    return std::unique_ptr<RenderingContext>(new RenderingContext(display, config, context));
}

RenderingContext::~RenderingContext() {
    eglDestroyContext(display, context);
}

std::unique_ptr<OffScreenSurface> RenderingContext::CreateSurface(QSize size) const {
    const std::array attributes{EGL_WIDTH, size.width(), EGL_HEIGHT, size.height(), EGL_NONE};
    const EGLSurface handle = eglCreatePbufferSurface(display, config, attributes.data());
    return handle ? std::make_unique<OffScreenSurface>(display, handle, size) : nullptr;
}

bool RenderingContext::MakeCurrent(const OffScreenSurface& surface) const {
    return eglMakeCurrent(display, surface.GetHandle(), surface.GetHandle(), context) == EGL_TRUE;
}

void RenderingContext::MakeNoneCurrent() {
    eglBindAPI(EGL_OPENGL_API);
    eglMakeCurrent(GetDisplay(), EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
}

std::string DescribeOpenGL() {
    const auto context = RenderingContext::Create({});
    const auto surface = context ? context->CreateSurface({1, 1}) : nullptr;
    if (!surface || !context->MakeCurrent(*surface)) return {};
    std::string description = GetText(GL_RENDERER) + ", OpenGL " + GetText(GL_VERSION);
    RenderingContext::MakeNoneCurrent();
    return description;
}

} // namespace keltavlo
