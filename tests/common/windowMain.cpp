#include "kit/kitStyle.h"

#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    // Windows of tests need no screen; one that is named is used, to watch them.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    if (!zdt::applyKitStyle(application, QStringList{ZDT_SKIN_DIR}))
        return 1;
    return RUN_ALL_TESTS();
}
