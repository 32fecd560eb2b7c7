#pragma once

#include <QVector3D>
#include <QWidget>

#include <array>
#include <functional>
#include <vector>

namespace keltavlo {

// Casts a ray through each pixel, to check pictures drawn with OpenGL. The camera looks at the origin with a
// vertical field of view of 45 degrees; z is up, and back faces are invisible.
struct RayCaster {
    struct Corner {
        QVector3D place;
        QVector3D values; // whatever the color depends on, spread over the triangles
    };
    // Counter-clockwise from outside and wholly before the camera; two triangles that share the first corner.
    using Quad = std::array<Corner, 4>;

    // Expects equal colors, within `tolerance` of each channel, except for few pixels in which the color
    // changes. Pixels that no quad covers are black.
    void ExpectSeenIn(QWidget& widget, int tolerance = 0) const;

    QVector3D eye;
    std::vector<Quad> quads;
    std::function<QRgb(const QVector3D& values)> shade;

private:
    QRgb ColorAlong(const QVector3D& ray) const;
};

} // namespace keltavlo
