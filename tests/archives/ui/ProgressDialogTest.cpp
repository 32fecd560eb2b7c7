#include "archives/ui/ProgressDialog.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QMimeData>
#include <QProgressBar>
#include <QTest>

#include <gtest/gtest.h>

namespace {

// Notes what reaches it.
class Owner : public QWidget {
public:
    Owner() {
        setAcceptDrops(true);
        show();
    }
    int closed = 0, drops = 0, painted = 0;

protected:
    void closeEvent(QCloseEvent*) override { ++closed; }
    void dropEvent(QDropEvent*) override { ++drops; }
    void paintEvent(QPaintEvent*) override { ++painted; }
};

} // namespace

TEST(ProgressDialogTest, ShowsTextAndPositionAtOnce) {
    Owner owner;
    ProgressDialog dialog(&owner, "Reading & more...", {0, 2000000000, 500});
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_TRUE(dialog.windowHandle()->isExposed());
    EXPECT_FALSE(dialog.isModal());
    EXPECT_EQ(dialog.findChild<QLabel*>()->text(), "Reading & more...");
    const auto* bar = dialog.findChild<QProgressBar*>();
    EXPECT_EQ(bar->maximum(), 2000000000);
    EXPECT_EQ(bar->value(), 500);
    dialog.SetPosition(2000000000);
    EXPECT_EQ(bar->value(), 2000000000);
}

TEST(ProgressDialogTest, LetsNothingThroughThatAPersonAsks) {
    Owner owner;
    const QMimeData files;
    {
        ProgressDialog dialog(&owner, "Working...", {0, 10, 1});
        QCoreApplication::postEvent(&owner, new QCloseEvent);
        QCoreApplication::postEvent(&dialog, new QCloseEvent);
        QCoreApplication::postEvent(
            &owner, new QDropEvent(QPointF(), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier));
        owner.update();
        owner.painted = 0;
        dialog.SetPosition(2);
        EXPECT_EQ(owner.closed, 0);
        EXPECT_EQ(owner.drops, 0);
        EXPECT_EQ(owner.painted, 1) << "but windows are drawn";
        EXPECT_TRUE(dialog.isVisible());
    }
    owner.close();
    EXPECT_EQ(owner.closed, 1) << "afterwards all is as before";
}
