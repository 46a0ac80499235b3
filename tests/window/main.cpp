#include <gtest/gtest.h>

#include "platform/qt/application.h"

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    qputenv("QT_STYLE_OVERRIDE", "Windows");  // a desktop that wants another look
    const zifferon::Application application(argc, argv);
    zifferon::Application::setDoubleClickInterval(2000);  // a busy machine is no slow hand
    return RUN_ALL_TESTS();
}
