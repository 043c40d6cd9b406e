#pragma once

#include <QtTest/QtTest>

#include <functional>
#include <memory>

/// The runner that every test executable shares.
///
/// A source registers its class with `OVK_TEST_CLASS(Class)` at the start of a line and includes
/// its `.moc` at the end. `--class=Class` runs one class; without it all run, one after another.
/// Any Qt warning that was not announced with `QTest::ignoreMessage` fails the class, and so does
/// a top-level widget that is left behind.
namespace ovk_test {

using Factory = std::function<std::unique_ptr<QObject>()>;

/// Puts a class on the runner's list. Always returns true.
bool RegisterTestClass(const char* name, Factory factory);

/// A temporary folder in which QStandardPaths' writable locations live while a test class runs
/// (XDG_DATA_HOME and XDG_CONFIG_HOME); made anew for each class and removed after it.
QString DataHome();

} // namespace ovk_test

#define OVK_TEST_CLASS(Class)                                                                       \
    static const bool s_registered_##Class = ovk_test::RegisterTestClass(                           \
        #Class, [] { return std::unique_ptr<QObject>(std::make_unique<Class>()); });
