#pragma once

#include "app/GammaSettings.h"

#include <QAbstractButton>

class QImage;

namespace keltavlo {

// A sample of what gamma values do: a picture as it is stored, and beside it a colour seen through the
// values.
class CGammaSettingsDialogButton : public QAbstractButton {
public:
    explicit CGammaSettingsDialogButton(const QString& name);

    // The colour is 0xAARRGGBB; the picture, 32 x 32, is the caller's and lives as long as the button.
    void SetSample(std::uint32_t sampleColor, const QImage& picture, const GammaValues& values);
    void SetValues(const GammaValues& values);
    QSize sizeHint() const override { return {96, 32}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    GammaValues gammaValues;
    std::uint32_t color = 0;
    const QImage* bitmap = nullptr;
};

} // namespace keltavlo
