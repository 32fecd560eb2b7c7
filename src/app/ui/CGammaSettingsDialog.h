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

// A sample of what gamma values do: a picture as it is stored, and beside it a color seen through the
// values.
class CGammaSettingsDialogButton : public QAbstractButton {
public:
    explicit CGammaSettingsDialogButton(const QString& name);

    // The color is 0xAARRGGBB; the picture, 32 x 32, is the caller's and lives as long as the button.
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

// Chooses gamma values by sliders, with samples that show what they do.
class CGammaSettingsDialog : public CDialog {
public:
    CGammaSettingsDialog(QWidget* owner, const GammaValues& values);

    // What was given, or after OK what the sliders show.
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
    std::array<CGammaSettingsDialogButton*, 4> samples{}; // children of this window, as all below
    std::array<QSlider*, 3> sliders{};                    // red, green, blue
    QCheckBox* linkControls = nullptr;
    QLabel* valueText = nullptr;
};

} // namespace keltavlo
