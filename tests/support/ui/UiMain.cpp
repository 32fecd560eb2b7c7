#include "framework/ui/GuardedApplication.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace keltavlo;

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir data; // so that the program finds nothing of the user's
    qputenv("XDG_DATA_HOME", data.path().toUtf8());
    const GuardedApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
