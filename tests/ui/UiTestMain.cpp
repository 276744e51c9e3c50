// The window tests' main: one QApplication for every test, on Qt's offscreen platform
// unless another was chosen. Listing the tests needs no application.
#include <gtest/gtest.h>

#include <QApplication>
#include <cstdlib>
#include <cstring>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (::testing::GTEST_FLAG(list_tests)) return RUN_ALL_TESTS();
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QApplication app(argc, argv);
    return RUN_ALL_TESTS();
}
