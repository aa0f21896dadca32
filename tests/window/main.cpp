// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char* argv[]) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    // The tests neither read nor leave settings of the one who runs them.
    QCoreApplication::setOrganizationName("TARQEN tests");
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
