#include "framework/ui/PaintSentence.h"

#include "framework/core/StringTable.h"
#include "framework/core/Text.h"

#include <QPainter>
#include <QWidget>

namespace keltavlo {

void PaintSentence(QWidget& window, unsigned stringId) {
    constexpr int margin = 8;
    QPainter painter(&window);
    painter.fillRect(window.rect(), window.palette().window());
    painter.drawText(window.rect().marginsRemoved({margin, margin, margin, margin}),
                     Qt::AlignCenter | Qt::TextWordWrap, ToQString(LoadString(stringId)));
}

} // namespace keltavlo
