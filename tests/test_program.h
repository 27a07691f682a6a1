#pragma once

#include <QObject>

#include <memory>

// The test classes of one folder are one program. VYX_TEST(Class), in place of QTEST_MAIN at the end of a file, makes
// the class known to it under the file's name without ending.
struct TestRegistration {
    TestRegistration(const char *file, std::unique_ptr<QObject> (*make)());
};

#define VYX_TEST(Class)                                                                                                \
    static const TestRegistration registration##Class(                                                                 \
        __FILE__, []() -> std::unique_ptr<QObject> { return std::make_unique<Class>(); });
