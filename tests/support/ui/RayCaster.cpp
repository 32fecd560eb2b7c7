#include "support/ui/RayCaster.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <numbers>

namespace keltavlo {

namespace {

// How far a pixel's center may be off, in pixels, and the share of pixels that may differ because of it.
constexpr float slack = 1.0F / 32;
constexpr double largestExcusedShare = 0.01;

float Volume(const QVector3D& a, const QVector3D& b, const QVector3D& c) {
    return QVector3D::dotProduct(a, QVector3D::crossProduct(b, c));
}

bool IsNear(QRgb a, QRgb b, int tolerance) {
    return std::abs(qRed(a) - qRed(b)) <= tolerance && std::abs(qGreen(a) - qGreen(b)) <= tolerance &&
           std::abs(qBlue(a) - qBlue(b)) <= tolerance;
}

} // namespace

// A corner's weight at the hit point is the volume that the ray spans with the other two corners.
QRgb RayCaster::ColorAlong(const QVector3D& ray) const {
    QRgb color = qRgb(0, 0, 0);
    float nearest = std::numeric_limits<float>::infinity();
    for (const Quad& quad : quads)
        for (const std::size_t second : {1U, 2U}) {
            const Corner &first = quad[0], &middle = quad[second], &last = quad[second + 1];
            const QVector3D a = first.place - eye, b = middle.place - eye, c = last.place - eye;
            const float ofA = Volume(ray, c, b), ofB = Volume(ray, a, c), ofC = Volume(ray, b, a);
            const float whole = ofA + ofB + ofC, distance = Volume(a, c, b) / whole;
            if (ofA < 0 || ofB < 0 || ofC < 0 || !(distance < nearest)) continue;
            nearest = distance;
            color = shade((ofA * first.values + ofB * middle.values + ofC * last.values) / whole);
        }
    return color;
}

void RayCaster::ExpectSeenIn(QWidget& widget, int tolerance) const {
    const QImage picture = widget.grab().toImage();
    const auto width = static_cast<float>(picture.width()), height = static_cast<float>(picture.height());
    const QVector3D right = QVector3D::crossProduct(-eye, {0, 0, 1}).normalized();
    const QVector3D up = QVector3D::crossProduct(right, -eye).normalized();
    const QVector3D ahead = -eye.normalized() * (height / 2 / std::tan(std::numbers::pi_v<float> / 8));
    int excused = 0;
    for (int row = 0; row < picture.height(); ++row)
        for (int column = 0; column < picture.width(); ++column) {
            const float x = static_cast<float>(column) + 0.5F - width / 2;
            const float y = height / 2 - 0.5F - static_cast<float>(row);
            const auto colorAt = [&](float dx, float dy) {
                return ColorAlong(ahead + right * (x + dx) + up * (y + dy));
            };
            const auto isAlike = [&](float dx, float dy) {
                return IsNear(colorAt(0, 0), colorAt(dx, dy), tolerance);
            };
            const QRgb seen = picture.pixel(column, row);
            if (IsNear(colorAt(0, 0), seen, tolerance)) continue;
            ++excused;
            ASSERT_FALSE(isAlike(-slack, -slack) && isAlike(-slack, slack) && isAlike(slack, -slack) &&
                         isAlike(slack, slack))
                << column << ", " << row << " is " << std::hex << seen << " instead of " << colorAt(0, 0);
        }
    EXPECT_LE(excused, largestExcusedShare * width * height);
}

} // namespace keltavlo
