#include <gmock/gmock.h>

#include <QCoreApplication>

// The application comes first: it sets the process locale from the environment, and QProcess needs it.
int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
