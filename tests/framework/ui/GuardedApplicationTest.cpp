#include "framework/ui/PaintSentence.h"
#include "support/ui/WindowFixture.h"

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

namespace keltavlo {

namespace {

// A window in dark colors whose picture cannot be painted.
struct DarkWidget final : QWidget {
    void paintEvent(QPaintEvent*) override { PaintSentence(*this, documentCommand); }
};

struct HungryWidget final : QWidget {
    QEvent::Type failing = QEvent::None;
    bool event(QEvent* event) override {
        if (event->type() == failing) throw std::bad_alloc();
        return QWidget::event(event);
    }
};

struct GuardedApplicationTest : WindowFixture {
    // What Qt allocates for an event leaks when an exception passes through it.
    bool Fails(QEvent&& event) {
#ifdef __SANITIZE_ADDRESS__
        const __lsan::ScopedDisabler toolkit;
#endif
        widget.failing = event.type();
        return !QCoreApplication::sendEvent(&widget, &event) && !event.isAccepted();
    }

    HungryWidget widget;
};

} // namespace

TEST_F(GuardedApplicationTest, EventsWithoutMemoryAreIgnoredAndToldOfInOneBox) {
    widget.show();
    const DialogAnswer answer(Press(QDialogButtonBox::Ok));
    const QMimeData data;
    EXPECT_TRUE(Fails(QKeyEvent(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier)));
    EXPECT_TRUE(Fails(QTimerEvent(1)));
    EXPECT_TRUE(Fails(QDropEvent({}, Qt::CopyAction, &data, Qt::NoButton, Qt::NoModifier)));
    EXPECT_TRUE(Fails(QMouseEvent(QEvent::MouseButtonRelease, QPointF(), QPointF(), Qt::LeftButton, {}, {})));
    widget.failing = QEvent::Close;
    EXPECT_FALSE(widget.close()) << "what was not saved would be lost";
    EXPECT_TRUE(widget.isVisible());
    QTest::qWait(200);
    widget.failing = QEvent::Paint;
    widget.repaint();
    QTest::qWait(50);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << "a view says itself what it cannot paint";
}

TEST_F(GuardedApplicationTest, ASentenceInPlaceOfAPictureIsReadable) {
    DarkWidget dark;
    dark.setPalette(QPalette(Qt::green, Qt::black, {}, {}, {}, {}, Qt::green, {}, Qt::black));
    const int line = dark.fontMetrics().lineSpacing(), oneLine = 300, oneWord = 65;
    for (const int width : {oneLine, oneWord}) {
        dark.resize(width, 100);
        const QImage picture = dark.grab().toImage().convertToFormat(QImage::Format_RGB32);
        const QRect ink =
            QRegion(QBitmap::fromImage(picture.createMaskFromColor(0xFF000000, Qt::MaskInColor)))
                .boundingRect();
        EXPECT_EQ(ink.height() > line, width == oneWord) << "words wrap";
        EXPECT_LT((ink.center() - dark.rect().center()).manhattanLength(), 8) << "pixels from the center";
        EXPECT_TRUE(dark.rect().adjusted(8, 8, -8, -8).contains(ink));
    }
}

} // namespace keltavlo
