#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication application(argc, argv);
    QApplication::setDoubleClickInterval(2000);  // a busy machine is no slow hand
    return RUN_ALL_TESTS();
}
