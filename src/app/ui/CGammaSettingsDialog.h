#pragma once

#include "app/GammaSettings.h"
#include "framework/ui/CDialog.h"

#include <QImage>

#include <array>

class QCheckBox;
class QGridLayout;
class QLabel;
class QSlider;

namespace keltavlo {

class CGammaSettingsDialogButton;

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
