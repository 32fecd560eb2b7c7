#include "archives/ui/ProgressDialog.h"

#include "support/ui/DialogAnswer.h"

namespace keltavlo {

TEST(ProgressDialogTest, ShowsItselfAtOnceAndBlocksWhatTheUserAsks) {
    QWidget owner;
    owner.setAcceptDrops(true);
    owner.show();
    EventSpy seen(owner);
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
        seen.counts.clear();
        dialog.SetPosition(2000000000);
        EXPECT_EQ(dialog.findChild<QProgressBar*>()->value(), 2000000000);
        EXPECT_EQ(seen.counts[QEvent::Close] + seen.counts[QEvent::Drop], 0);
        EXPECT_EQ(seen.counts[QEvent::Paint], 1) << "but windows are drawn";
        EXPECT_TRUE(dialog.isVisible());
    }
    owner.close();
    EXPECT_EQ(seen.counts[QEvent::Close], 1) << "afterwards all is as before";
}

} // namespace keltavlo
