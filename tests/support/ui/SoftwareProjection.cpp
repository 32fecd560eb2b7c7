#include "support/ui/SoftwareProjection.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <numbers>
#include <utility>

namespace {

using Vector = SoftwareProjection::Vector;

// How far a pixel's middle may be off, in pixels, and how many pixels may differ for that.
constexpr double slack = 1.0 / 32;
constexpr double largestExcusedShare = 0.01;

double Dot(const Vector& a, const Vector& b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

Vector Difference(const Vector& a, const Vector& b) {
    return {a[0] - b[0], a[1] - b[1], a[2] - b[2]};
}

Vector Cross(const Vector& a, const Vector& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

Vector Unit(const Vector& vector) {
    const double length = std::sqrt(Dot(vector, vector));
    return {vector[0] / length, vector[1] / length, vector[2] / length};
}

// Twice the area between two corners and a point, positive on the left of the way from a to b.
template <class Point>
double Side(const Point& a, const Point& b, double x, double y) {
    return (b.x - a.x) * (y - a.y) - (b.y - a.y) * (x - a.x);
}

bool IsNear(QRgb a, QRgb b, int tolerance) {
    return std::abs(qRed(a) - qRed(b)) <= tolerance && std::abs(qGreen(a) - qGreen(b)) <= tolerance &&
           std::abs(qBlue(a) - qBlue(b)) <= tolerance;
}

} // namespace

SoftwareProjection::SoftwareProjection(const Vector& eyePlace, const Vector& target, QSize pictureSize,
                                       Shade colorOfValues)
    : eye(eyePlace), forward(Unit(Difference(target, eyePlace))), size(pictureSize),
      shade(std::move(colorOfValues)) {
    right = Unit(Cross(forward, {0, 0, 1}));
    up = Cross(right, forward);
}

SoftwareProjection::ScreenCorner SoftwareProjection::Project(const Corner& corner) const {
    const Vector fromEye = Difference(corner.place, eye);
    const double depth = Dot(fromEye, forward);
    const double pixelsPerTangent = size.height() / 2.0 / std::tan(std::numbers::pi / 8);
    return {size.width() / 2.0 + pixelsPerTangent * Dot(fromEye, right) / depth,
            size.height() / 2.0 + pixelsPerTangent * Dot(fromEye, up) / depth, depth, corner.values};
}

void SoftwareProjection::Add(const Triangle& triangle) {
    triangles.push_back({Project(triangle[0]), Project(triangle[1]), Project(triangle[2])});
}

void SoftwareProjection::AddQuad(const std::array<Corner, 4>& quad) {
    Add({quad[0], quad[1], quad[2]});
    Add({quad[0], quad[2], quad[3]});
}

QRgb SoftwareProjection::ColorAt(double x, double y) const {
    QRgb color = qRgb(0, 0, 0);
    double nearest = std::numeric_limits<double>::infinity();
    for (const auto& [a, b, c] : triangles) {
        const double area = Side(a, b, c.x, c.y);
        const double ofA = Side(b, c, x, y) / area, ofB = Side(c, a, x, y) / area, ofC = 1 - ofA - ofB;
        if (area <= 0 || ofA < 0 || ofB < 0 || ofC < 0) continue;
        const double wA = ofA / a.depth, wB = ofB / b.depth, wC = ofC / c.depth;
        const double depth = 1 / (wA + wB + wC);
        if (depth >= nearest) continue;
        nearest = depth;
        Vector values;
        for (std::size_t i = 0; i < values.size(); ++i)
            values[i] = (wA * a.values[i] + wB * b.values[i] + wC * c.values[i]) * depth;
        color = shade(values);
    }
    return color;
}

bool SoftwareProjection::IsPlainAt(double x, double y, int tolerance) const {
    for (const double dx : {-slack, slack})
        for (const double dy : {-slack, slack})
            if (!IsNear(ColorAt(x, y), ColorAt(x + dx, y + dy), tolerance)) return false;
    return true;
}

void SoftwareProjection::ExpectSeenIn(const QImage& picture, int tolerance) const {
    ASSERT_EQ(picture.size(), size);
    int wrong = 0, excused = 0;
    for (int row = 0; row < size.height(); ++row)
        for (int column = 0; column < size.width(); ++column) {
            const double x = column + 0.5, y = size.height() - row - 0.5;
            const QRgb seen = picture.pixel(column, row);
            if (IsNear(ColorAt(x, y), seen, tolerance)) continue;
            if (!IsPlainAt(x, y, tolerance))
                ++excused;
            else if (++wrong <= 5)
                ADD_FAILURE() << column << ", " << row << " is " << std::hex << seen << " instead of "
                              << ColorAt(x, y);
        }
    EXPECT_EQ(wrong, 0);
    EXPECT_LT(excused, largestExcusedShare * size.width() * size.height());
}
