#include "archives/ui/ProgressDialog.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QMimeData>
#include <QProgressBar>
#include <QTest>

#include <gtest/gtest.h>

namespace keltavlo {

namespace {

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

TEST(ProgressDialogTest, ShowsItselfAtOnceAndLetsNothingThroughThatAPersonAsks) {
    Owner owner;
    const QMimeData files;
    {
        ProgressDialog dialog(&owner, "Reading & more...", {0, 2000000000, 500});
        EXPECT_TRUE(dialog.windowHandle()->isExposed());
        EXPECT_EQ(dialog.findChild<QLabel*>()->text(), "Reading & more...");
        QCoreApplication::postEvent(&owner, new QCloseEvent);
        QCoreApplication::postEvent(&dialog, new QCloseEvent);
        QCoreApplication::postEvent(
            &owner, new QDropEvent(QPointF(), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier));
        owner.update();
        owner.painted = 0;
        dialog.SetPosition(2000000000);
        EXPECT_EQ(dialog.findChild<QProgressBar*>()->value(), 2000000000);
        EXPECT_EQ(owner.closed + owner.drops, 0);
        EXPECT_EQ(owner.painted, 1) << "but windows are drawn";
        EXPECT_TRUE(dialog.isVisible());
    }
    owner.close();
    EXPECT_EQ(owner.closed, 1) << "afterwards all is as before";
}

} // namespace keltavlo
