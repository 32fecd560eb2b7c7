#include "app/ui/CGammaSettingsDialog.h"

#include "framework/core/StringTable.h"
#include "framework/core/Text.h"
#include "framework/ui/DialogLayout.h"
#include "framework/ui/PixelIcon.h"
#include "image/picture/Color.h"
#include "res/ControlIds.h"
#include "res/DialogIcons.h"
#include "res/ShellStrings.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPainter>
#include <QSignalBlocker>
#include <QSlider>

namespace keltavlo {

namespace {

constexpr QRect pictureArea(0, 0, 32, 32);
constexpr QRect colorArea(32, 0, 64, 32);

struct Channel {
    const char* label;
    unsigned slider;
    PixelArt (*icon)();
};
constexpr Channel channels[] = {{"Red:", IDC_SLIDER_RED, RedIcon},
                                {"Green:", IDC_SLIDER_GREEN, GreenIcon},
                                {"Blue:", IDC_SLIDER_BLUE, BlueIcon}};

struct Sample {
    const char* name;
    unsigned button;
    std::uint32_t color; // half as bright as the lit pixels of the bitmap
};
constexpr Sample sampleRows[] = {{"R", IDC_SAMPLE_RED, 0xFF800000},
                                 {"G", IDC_SAMPLE_GREEN, 0xFF008000},
                                 {"B", IDC_SAMPLE_BLUE, 0xFF000080},
                                 {"RGB", IDC_SAMPLE_RGB, 0xFF808080}};

// Alternates black and fully lit pixels. From a distance, that is exactly half the light, whatever the screen
// does with values in between. The gamma is right if the color beside it looks the same.
QImage MakeBitmap(std::uint32_t color) {
    constexpr int side = 32;
    const std::uint32_t lit =
        Compose(Red(color) ? 255 : 0, Green(color) ? 255 : 0, Blue(color) ? 255 : 0, 255);
    QImage bitmap(side, side, QImage::Format_RGB32);
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x) bitmap.setPixel(x, y, (x + y) % 2 ? lit : alphaMask);
    return bitmap;
}

QSlider* MakeSlider(const char* name) {
    auto* slider = new QSlider(Qt::Horizontal);
    slider->setAccessibleName(QString::fromUtf8(name));
    slider->setRange(0, gammaPositions);
    slider->setTickPosition(QSlider::TicksBelow);
    slider->setTickInterval(10);
    slider->setPageStep(20);
    slider->setSingleStep(2);
    slider->setMinimumWidth(200);
    return slider;
}

QString ValueText(int position) {
    return ToQString(FormatString(IDS_GAMMA_VALUE, GammaAtPosition(position)));
}

} // namespace

CGammaSettingsDialogButton::CGammaSettingsDialogButton(const QString& name) {
    setAccessibleName(name);
    setFocusPolicy(Qt::NoFocus); // for display only
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

CGammaSettingsDialog::CGammaSettingsDialog(QWidget* owner, const GammaValues& values)
    : CDialog(owner), gammaValues(values) {
    setWindowTitle(QStringLiteral("Gamma Settings"));
    QGridLayout& grid = AddPageGrid(*this);
    AddHeading(grid, {0, 0, 5}, "Channels");
    AddChannels(grid);
    linkControls = &AddCheckBox(*this, grid, {4, 1, 3}, "Link Controls", IDC_LINK_CONTROLS);
    valueText = &AddText(grid, {4, 4}, "");
    valueText->setMinimumWidth(fontMetrics().horizontalAdvance(ValueText(gammaPositions)));
    AddControl(IDC_GAMMA_VALUE, *valueText);
    AddSamples(grid);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    layout()->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void CGammaSettingsDialog::AddChannels(QGridLayout& grid) {
    int row = 1;
    for (const Channel& channel : channels) {
        QSlider* slider = sliders[static_cast<std::size_t>(row - 1)] = MakeSlider(channel.label);
        AddIcon(grid, {row, 0}, MakePixelIcon(channel.icon()));
        AddText(grid, {row, 1}, channel.label);
        AddText(grid, {row, 2}, "0");
        grid.addWidget(slider, row, 3);
        AddText(grid, {row, 4}, "5");
        AddControl(channel.slider, *slider);
        connect(slider, &QSlider::valueChanged, this, [this](int position) { OnScroll(position); });
        ++row;
    }
    grid.setColumnStretch(3, 1);
}

void CGammaSettingsDialog::AddSamples(QGridLayout& grid) {
    auto* row = new QHBoxLayout;
    grid.addLayout(row, 5, 0, 1, 5);
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const Sample& sample = sampleRows[i];
        bitmaps[i] = MakeBitmap(sample.color);
        samples[i] = new CGammaSettingsDialogButton(QString::fromUtf8(sample.name));
        samples[i]->SetSample(sample.color, bitmaps[i], gammaValues);
        AddControl(sample.button, *samples[i]);
        row->addWidget(samples[i]);
    }
}

void CGammaSettingsDialog::OnInitDialog() {
    const double values[] = {gammaValues.red, gammaValues.green, gammaValues.blue};
    for (std::size_t i = 0; i < sliders.size(); ++i) {
        const QSignalBlocker quiet(sliders[i]);
        sliders[i]->setValue(PositionOfGamma(values[i]));
    }
    linkControls->setChecked(true);
}

void CGammaSettingsDialog::OnScroll(int position) {
    for (QSlider* slider : sliders) {
        const QSignalBlocker quiet(slider);
        if (linkControls->isChecked()) slider->setValue(position);
    }
    valueText->setText(ValueText(position));
    for (CGammaSettingsDialogButton* sample : samples) sample->SetValues(ReadSliders());
}

GammaValues CGammaSettingsDialog::ReadSliders() const {
    return {GammaAtPosition(sliders[0]->value()), GammaAtPosition(sliders[1]->value()),
            GammaAtPosition(sliders[2]->value())};
}

void CGammaSettingsDialog::accept() {
    gammaValues = ReadSliders();
    CDialog::accept();
}

} // namespace keltavlo
