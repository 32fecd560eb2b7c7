#include "framework/ui/GuardedApplication.h"

#include <gtest/gtest.h>

using namespace keltavlo;

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const GuardedApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
