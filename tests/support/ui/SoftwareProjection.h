#pragma once

#include <QImage>

#include <array>
#include <functional>
#include <vector>

// Draws triangles pixel by pixel with nothing but geometry: what pictures of OpenGL are compared with. The
// camera's vertical field of view is 45 degrees and z is up; faces that turn their back to it are not seen.
class SoftwareProjection {
public:
    using Vector = std::array<double, 3>;
    struct Corner {
        Vector place;
        Vector values; // whatever the triangle's colour depends on, spread over it
    };
    using Triangle = std::array<Corner, 3>;
    using Shade = std::function<QRgb(const Vector& values)>;

    // Triangles must lie wholly before the camera. What no triangle covers is black.
    SoftwareProjection(const Vector& eye, const Vector& target, QSize pictureSize, Shade colorOfValues);

    void Add(const Triangle& triangle);
    // Four corners, counter-clockwise from outside.
    void AddQuad(const std::array<Corner, 4>& quad);

    // The picture must be the same within `tolerance` of each colour channel. Few pixels may differ, where
    // the colour of the projection changes within a small part of a pixel.
    void ExpectSeenIn(const QImage& picture, int tolerance = 0) const;

private:
    struct ScreenCorner {
        double x, y;  // pixels; y runs up
        double depth; // before the camera
        Vector values;
    };
    using ScreenTriangle = std::array<ScreenCorner, 3>;

    ScreenCorner Project(const Corner& corner) const;
    QRgb ColorAt(double x, double y) const;
    bool IsPlainAt(double x, double y, int tolerance) const;

    Vector eye, right, up, forward;
    QSize size;
    Shade shade;
    std::vector<ScreenTriangle> triangles;
};
