#include "archives/ui/PreviewPanel.h"

#include "archives/ui/DialogUnits.h"

#include <QCheckBox>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

namespace keltavlo {

// Shows its text if there is no picture.
class PreviewPanel::Area final : public QLabel {
public:
    explicit Area(QWidget* parent) : QLabel(parent) {
        setTextFormat(Qt::PlainText);
        setWordWrap(true);
        setAlignment(Qt::AlignCenter);
        setFrameStyle(QFrame::Panel | QFrame::Sunken);
        setMinimumSize(FromDialogUnits(*this, {85, 79}));
        setObjectName(QStringLiteral("previewArea"));
    }
    void SetPicture(const QImage& newPicture) {
        picture = newPicture;
        update();
    }

protected:
    // Scales to whole screen pixels, so that every texel stays sharp.
    void paintEvent(QPaintEvent* event) override {
        QLabel::paintEvent(event);
        if (picture.isNull()) return;
        const double ratio = devicePixelRatioF();
        const QRect room = contentsRect();
        const QSize most = (QSizeF(room.size()) * ratio).toSize();
        const QSize size = picture.size().scaled(most, Qt::KeepAspectRatio).expandedTo({1, 1});
        const QPoint offset((most.width() - size.width()) / 2, (most.height() - size.height()) / 2);
        QPainter painter(this);
        painter.scale(1 / ratio, 1 / ratio);
        painter.drawImage(QRect((QPointF(room.topLeft()) * ratio).toPoint() + offset, size), picture);
    }

private:
    QImage picture;
};

PreviewPanel::PreviewPanel(QWidget* parent, Reader previewReader)
    : QWidget(parent), reader(std::move(previewReader)), area(new Area(this)), text(new QLabel(this)),
      enable(new QCheckBox(QStringLiteral("&Enable Preview"), this)) {
    enable->setObjectName(QStringLiteral("enablePreview"));
    text->setObjectName(QStringLiteral("previewText"));
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    text->setAlignment(Qt::AlignTop | Qt::AlignHCenter);
    text->setMinimumHeight(2 * fontMetrics().lineSpacing());
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new QLabel(QStringLiteral("Preview:"), this));
    layout->addWidget(area, 1);
    layout->addWidget(text);
    layout->addWidget(enable);
    connect(enable, &QCheckBox::toggled, [this](bool enabled) {
        if (onSwitch) onSwitch(enabled);
        Show();
    });
}

bool PreviewPanel::IsPreviewEnabled() const {
    return enable->isChecked();
}

void PreviewPanel::SetPreviewEnabled(bool enabled) {
    enable->setChecked(enabled);
}

void PreviewPanel::SetPath(const std::string& newPath) {
    if (newPath == path) return;
    path = newPath;
    Show();
}

void PreviewPanel::Show() {
    const bool shown = IsPreviewEnabled() && !path.empty();
    const Preview preview = shown ? reader(path) : Preview();
    const bool isPicture = !preview.picture.isNull();
    area->SetPicture(preview.picture);
    area->setText(isPicture ? QString() : preview.text);
    text->setText(isPicture ? preview.text : QString());
}

} // namespace keltavlo
