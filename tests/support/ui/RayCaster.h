#pragma once

#include <QVector3D>
#include <QWidget>

#include <array>
#include <functional>
#include <vector>

namespace keltavlo {

// Follows a ray through each pixel: what pictures of OpenGL are compared with. The camera looks at the origin
// with a vertical field of view of 45 degrees, z is up; faces that turn their back to it are not seen.
struct RayCaster {
    struct Corner {
        QVector3D place;
        QVector3D values; // whatever the color depends on, spread over the triangles
    };
    // Counter-clockwise from outside and wholly before the camera; two triangles that share the first corner.
    using Quad = std::array<Corner, 4>;

    // The colors must be the same within `tolerance` of each channel. Few pixels may differ, where the
    // color changes within a small part of a pixel. What no quad covers is black.
    void ExpectSeenIn(QWidget& widget, int tolerance = 0) const;

    QVector3D eye;
    std::vector<Quad> quads;
    std::function<QRgb(const QVector3D& values)> shade;

private:
    QRgb ColorAlong(const QVector3D& ray) const;
};

} // namespace keltavlo
