#include "image/ui/PaletteBar.h"

#include "framework/core/StringTable.h"
#include "framework/core/Text.h"
#include "framework/ui/Commands.h"
#include "image/ui/PainterSurface.h"
#include "image/ui/PaletteChooser.h"
#include "res/ShellStrings.h"
#include "resources/Shell.h"

#include <QMouseEvent>
#include <QVBoxLayout>
#include <QtMath>

namespace keltavlo {

namespace {

// Shows a bitmap in its top left corner, one widget pixel per bitmap pixel.
class BitmapView final : public QWidget {
public:
    BitmapView(const DibSection& shown, QWidget* parent) : QWidget(parent), bitmap(shown) {
        setFixedSize(bitmap.GetWidth(), bitmap.GetHeight());
        setAttribute(Qt::WA_TransparentForMouseEvents); // the bar handles clicks
    }

protected:
    void paintEvent(QPaintEvent*) override {
        PainterSurface surface(*this);
        bitmap.Draw(surface, rect());
    }

private:
    const DibSection& bitmap;
};

// On a display with scale 2, positions may be halves, which belong to the point before them.
QPoint PointOf(const QMouseEvent& mouse) {
    return {qFloor(mouse.position().x()), qFloor(mouse.position().y())};
}

} // namespace

PaletteBar::PaletteBar(unsigned barId, QWidget* parent)
    : Dynamic(barId, LoadString(IDS_PALETTE_BAR), parent) {
    CreateControls();
    Renew();
}

void PaletteBar::CreateControls() {
    auto* contents = new QWidget(this);
    auto* column = new QVBoxLayout(contents);
    chooser = new PaletteChooser(contents);
    chooser->setToolTip(ToQString(CommandToolTip(IDS_PALETTE_CHOOSER)));
    chooser->setStatusTip(ToQString(CommandPrompt(IDS_PALETTE_CHOOSER)));
    chooser->setAccessibleName(chooser->toolTip());
    connect(chooser, &QComboBox::activated, this, [this] { ChooserSelected(); });
    column->addWidget(chooser);
    for (const PalettePlanes::Part part :
         {PalettePlanes::plane, PalettePlanes::strip1, PalettePlanes::strip2}) {
        parts[part] = new BitmapView(planes.GetBitmap(part), contents);
        parts[part]->setObjectName(QString::fromLatin1(partNames[part]));
        column->addWidget(parts[part], 0, Qt::AlignHCenter);
    }
    column->addStretch();
    contents->setStatusTip(ToQString(CommandPrompt(IDS_PALETTE_PICK)));
    contents->setMouseTracking(true);
    contents->installEventFilter(this);
    setWidget(contents);
}

void PaletteBar::OnUpdate(const QWidget*, unsigned, CObject*) {
    Renew();
}

void PaletteBar::SetMode(PalettePlanes::Mode mode) {
    planes.SetMode(mode);
    Renew();
}

void PaletteBar::Renew() {
    const Shell* shell = Shell::Find();
    planes.Rebuild(shell ? shell->GetCurrentColor() : 0);
    planes.Render(shell ? shell->GetGammaTable() : nullptr, GetLook());
    widget()->update();
}

PalettePlanes::Look PaletteBar::GetLook() const {
    const QPalette& colors = palette();
    return {colors.color(QPalette::Button).rgb(), colors.color(QPalette::Dark).rgb(),
            colors.color(QPalette::Shadow).rgb(), colors.color(QPalette::Midlight).rgb(),
            colors.color(QPalette::Light).rgb()};
}

void PaletteBar::FillChooser() {
    chooser->FillChooser();
}

// Ignores a list whose document has closed since the chooser was filled.
void PaletteBar::ChooserSelected() {
    constexpr std::uintptr_t firstAddress = 256;
    const std::uintptr_t value = chooser->GetSelectedValue();
    if (value < firstAddress) return SetMode(static_cast<PalettePlanes::Mode>(value));
    const ColorList* list = PaletteChooser::FindList(value);
    if (!list) {
        FillChooser();
        return chooser->setCurrentIndex(planes.GetMode());
    }
    planes.SetColors(*list);
    SetMode(PalettePlanes::colorTable);
}

std::optional<Color> PaletteBar::HitTest(const QPoint& point) const {
    for (const PalettePlanes::Part part :
         {PalettePlanes::plane, PalettePlanes::strip1, PalettePlanes::strip2}) {
        const QPoint inside = parts[part]->mapFrom(widget(), point);
        if (const auto color = planes.HitTest(part, inside.x(), inside.y())) return color;
    }
    return std::nullopt;
}

void PaletteBar::Pick(const QPoint& point) {
    const std::optional<Color> color = HitTest(point);
    if (!color) return;
    Shell::Get().SetCurrentColor(*color);
    Shell::Get().UpdatePaletteBar(Shell::colorChanged);
}

void PaletteBar::ShowColorAt(const QPoint& point) const {
    if (const std::optional<Color> color = HitTest(point)) Shell::Get().SetColorText(*color);
}

bool PaletteBar::eventFilter(QObject* watched, QEvent* event) {
    if (watched == widget()) {
        const auto* mouse = dynamic_cast<QMouseEvent*>(event);
        if (event->type() == QEvent::MouseButtonPress && mouse->button() == Qt::LeftButton)
            Pick(PointOf(*mouse));
        else if (event->type() == QEvent::MouseMove)
            ShowColorAt(PointOf(*mouse));
    }
    return CDialogBar::eventFilter(watched, event);
}

void PaletteBar::showEvent(QShowEvent* event) {
    FillChooser();
    CDialogBar::showEvent(event);
}

// The edges and the background use the colors of the desktop's palette.
void PaletteBar::changeEvent(QEvent* event) {
    CDialogBar::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && widget()) Renew();
}

} // namespace keltavlo
