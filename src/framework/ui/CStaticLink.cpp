#include "framework/ui/CStaticLink.h"

#include "framework/core/Text.h"

#include <QDesktopServices>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QUrl>

namespace keltavlo {

CStaticLink::CStaticLink(const QString& text, std::string address) : QLabel(text), link(std::move(address)) {
    setTextFormat(Qt::PlainText);
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    QFont underlined;
    underlined.setUnderline(true); // the rest comes from the window's font
    setFont(underlined);
}

void CStaticLink::EnsureLink() {
    if (link.empty()) link = FromQString(text());
}

void CStaticLink::AddPrefix(const std::string& prefix) {
    EnsureLink();
    link = prefix + link;
}

void CStaticLink::Open() {
    EnsureLink();
    QDesktopServices::openUrl(QUrl(ToQString(link)));
}

void CStaticLink::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) Open();
}

void CStaticLink::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space)
        Open();
    else
        QLabel::keyPressEvent(event);
}

void CStaticLink::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    if (!hasFocus()) return;
    QPainter painter(this);
    QStyleOptionFocusRect option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

} // namespace keltavlo
