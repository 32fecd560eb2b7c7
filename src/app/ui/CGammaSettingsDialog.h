#pragma once

#include "app/GammaSettings.h"
#include "framework/ui/CDialog.h"

#include <QAbstractButton>
#include <QImage>

#include <array>

class QCheckBox;
class QGridLayout;
class QLabel;
class QSlider;

namespace keltavlo {

// A sample of gamma values: a stored picture, and beside it a color that the values apply to.
class CGammaSettingsDialogButton : public QAbstractButton {
public:
    explicit CGammaSettingsDialogButton(const QString& name);

    // The color is 0xAARRGGBB. The picture, 32 x 32, belongs to the caller and lives as long as the button.
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

// Lets the user choose gamma values with sliders and shows their effect on samples.
class CGammaSettingsDialog : public CDialog {
public:
    CGammaSettingsDialog(QWidget* owner, const GammaValues& values);

    // Returns the initial values or, after OK, those of the sliders.
    const GammaValues& GetGammaValues() const { return gammaValues; }
    void accept() override;

protected:
    void OnInitDialog() override;

private:
    void AddChannels(QGridLayout& grid);
    void AddSamples(QGridLayout& grid);
    void OnScroll(int position);
    GammaValues ReadSliders() const;

    GammaValues gammaValues;
    std::array<QImage, 4> bitmaps;
    std::array<CGammaSettingsDialogButton*, 4> samples{}; // children of this window, like all below
    std::array<QSlider*, 3> sliders{};                    // red, green, blue
    QCheckBox* linkControls = nullptr;
    QLabel* valueText = nullptr;
};

} // namespace keltavlo
