#include "support/ui/WindowFixture.h"

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

namespace keltavlo {

namespace {

class HungryWidget final : public QWidget {
public:
    QEvent::Type failing = QEvent::None;

protected:
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

} // namespace keltavlo
