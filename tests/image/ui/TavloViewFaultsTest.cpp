#include "resources/PaletteDocument.h"
#include "support/Fault.h"
#include "support/ui/TavloViewFixture.h"

namespace keltavlo {

using TavloViewFaults = TavloViewFixture;

TEST_F(TavloViewFaults, WithoutMemoryAViewSaysSoAndEditsChangeNothing) {
    if (!allocationsCanFail) GTEST_SKIP();
    document->SetCurrentPalette(Open<PaletteDocument>(Put("white.kelcolors", Words({0xFFFFFFFF}))));
    GetTexture().SetSize(256, 256);
    std::ranges::fill(GetTexture().Pixels(), 0xFF808080);
    document->UpdateAllViews(nullptr);
    Send(ID_FILTER_NEAREST);
    {
        const DialogAnswer answer(Confirm("not enough memory", QDialogButtonBox::Ok));
        const Fault fault(Step::largeAllocation, 1, true);
        EXPECT_FALSE(IsPlain(view->grab().toImage())) << "there is a sentence";
        EXPECT_FALSE(Send(ID_FORMAT_NEAREST));
        QTest::qWait(200);
    }
    EXPECT_FALSE(document->IsModified() || document->GetHistory().CanUndo());
    EXPECT_EQ(GetTexture().GetPixel(9, 9), 0xFF808080);
    EXPECT_EQ(ColorShownAt(9, 9), 0xFFFFFFFF);
}

TEST_F(TavloViewFaults, AStepOfAStrokeThatLacksMemoryIsPaintedAfterwards) {
    if (!allocationsCanFail) GTEST_SKIP();
    EventSpy painted(*view);
    EXPECT_TRUE(RunWithFault(Step::allocation, 1, false, [&] { document->SetTexel(9, 9, 0); }).wasHit);
    QCoreApplication::processEvents();
    EXPECT_TRUE(painted.region.contains(QPoint(9, 9)));
}

} // namespace keltavlo
