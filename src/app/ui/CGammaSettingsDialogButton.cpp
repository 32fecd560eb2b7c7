#include "app/ui/CGammaSettingsDialogButton.h"

#include <QImage>
#include <QPainter>

namespace keltavlo {

namespace {

constexpr QRect pictureArea(0, 0, 32, 32);
constexpr QRect colorArea(32, 0, 64, 32);

} // namespace

CGammaSettingsDialogButton::CGammaSettingsDialogButton(const QString& name) {
    setAccessibleName(name);
    setFocusPolicy(Qt::NoFocus); // only to look at
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void CGammaSettingsDialogButton::SetSample(std::uint32_t sampleColor, const QImage& picture,
                                           const GammaValues& values) {
    color = sampleColor;
    bitmap = &picture;
    SetValues(values);
}

void CGammaSettingsDialogButton::SetValues(const GammaValues& values) {
    gammaValues = values;
    update();
}

void CGammaSettingsDialogButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.drawImage(pictureArea, *bitmap);
    painter.fillRect(colorArea, QColor::fromRgb(ApplyGamma(gammaValues, color)));
}

} // namespace keltavlo
