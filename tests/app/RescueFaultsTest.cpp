#include "app/Rescue.h"
#include "image/ImageDocuments.h"
#include "support/Fault.h"
#include "support/TestApplication.h"

#include <filesystem>

namespace keltavlo {

using RescueFaults = WorkshopTest;

constexpr int side = 200;

TEST_F(RescueFaults, OneDocumentThatCannotBeWrittenDoesNotLoseTheOthers) {
    for (int i = 0; i < 3; ++i) {
        auto& document = New<TGADocument>();
        document.GetTexture().SetSize(side, side);
        document.SetModifiedFlag();
    }
    application.rescueAnswer = RescueAnswer::discard;
    const std::string rescued = PathTo("rescued");
    // The program's memory reserve covers small allocations.
    for (const Step step : {Step::write, Step::flush, Step::rename, Step::largeAllocation})
        for (unsigned first = 1; !HasFailure(); ++first) {
            SCOPED_TRACE(testing::Message() << "step " << static_cast<int>(step) << " at " << first);
            Rescue rescue(rescued);
            const FaultOutcome outcome = RunWithFault(step, first, false, [&] { rescue.SaveModified(); });
            std::size_t whole = 0, others = 0;
            for (const auto& file : std::filesystem::directory_iterator(rescued))
                ++(file.file_size() > side * side * sizeof(Color) && file.path().extension() == ".rescued"
                       ? whole
                       : others);
            EXPECT_GE(whole, outcome.wasHit ? 2U : 3U);
            EXPECT_EQ(others, 0U);
            if (!outcome.wasHit) break;
        }
}

} // namespace keltavlo
