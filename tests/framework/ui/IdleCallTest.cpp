#include "framework/ui/IdleCall.h"

#include <QtTest>
#include <QtWidgets>

#include <functional>

namespace keltavlo {

namespace {

void RunEventLoop(const std::function<void()>& atStart = [] {}) {
    QEventLoop loop;
    QTimer::singleShot(0, &loop, atStart);
    QTimer::singleShot(20, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace

TEST(IdleCallTest, WaitsUntilTheUserHasFinished) {
    int calls = 0;
    IdleCall call([&] { ++calls; });
    RunEventLoop();
    EXPECT_EQ(calls, 0) << "nobody requested it";
    QWidget window;
    window.show();
    QMenu menu;
    menu.addAction("Item");
    QDialog dialog;
    const auto press = [&] { QTest::mousePress(window.windowHandle(), Qt::LeftButton); };
    const auto release = [&] { QTest::mouseRelease(window.windowHandle(), Qt::LeftButton); };
    using Action = std::function<void()>;
    const std::pair<Action, Action> works[] = {{[&] { menu.popup({}); }, [&] { menu.close(); }},
                                               {[&] { dialog.open(); }, [&] { dialog.close(); }},
                                               {press, release}};
    for (const auto& [begin, end] : works) {
        calls = 0;
        begin();
        call.Request();
        RunEventLoop();
        EXPECT_EQ(calls, 0);
        end();
        RunEventLoop([&] {
            RunEventLoop();
            EXPECT_EQ(calls, 0) << "in a nested loop";
        });
        RunEventLoop();
        EXPECT_EQ(calls, 1);
    }
}

} // namespace keltavlo
