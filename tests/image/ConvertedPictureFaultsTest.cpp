#include "image/ConvertedPicture.h"
#include "support/CodecHarness.h"
#include "support/Fault.h"

namespace keltavlo {

// No view gets a half-converted picture or the tables of another palette.
TEST(ConvertedPictureFaults, LeaveNothingBehind) {
    const Image picture = RandomTexture(7, 5);
    const ColorList list{0xFF000000, 0xFF80FF00, 0xFFFFFFFF}, other{0xFF102030, 0xFFFFFF00};
    for (const auto conversion : {PictureConversion::nearest, PictureConversion::errorDiffusion}) {
        ConvertedPicture converted, undisturbed;
        bool hit = allocationsCanFail;
        for (unsigned first = 1; hit && !testing::Test::HasFailure(); ++first) {
            converted.Get(picture, conversion, &other);
            hit = RunWithFault(Step::allocation, first, false, [&] {
                      converted.Get(picture, conversion, &list);
                  }).wasHit;
            EXPECT_TRUE(SamePixels(converted.Get(picture, conversion, &list),
                                   undisturbed.Get(picture, conversion, &list)))
                << first;
        }
    }
}

} // namespace keltavlo
