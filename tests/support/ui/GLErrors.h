#pragma once

#include "preview3d/ui/OpenGLCtrl.h"

#include <GL/gl.h>
#include <gtest/gtest.h>

namespace keltavlo {

// Expects that no control in the window has caused an error of OpenGL.
inline void ExpectNoGLErrors(const QWidget& window) {
    int controls = 0;
    for (QWidget* child : window.findChildren<QWidget*>())
        if (auto* control = dynamic_cast<OpenGLCtrl*>(child)) {
            ++controls;
            control->MakeCurrent();
            EXPECT_EQ(glGetError(), GLenum{GL_NO_ERROR});
            control->ReleaseCurrent();
        }
    EXPECT_GT(controls, 0);
}

} // namespace keltavlo
