#include "framework/ui/GuardedApplication.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace keltavlo;

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir data; // so that the program and the toolkit find nothing of the user's
    for (const char* folder : {"XDG_DATA_HOME", "XDG_CONFIG_HOME"}) qputenv(folder, data.path().toUtf8());
    const GuardedApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
