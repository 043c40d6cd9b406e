#include "test_main.h"

#include <QApplication>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>
#include <QVariantAnimation>
#include <QWidget>

#include <cstdio>
#include <memory>
#include <vector>

#if defined(__SANITIZE_ADDRESS__)
#    define OVK_LEAK_SANITIZER
#elif defined(__has_feature)
#    if __has_feature(address_sanitizer)
#        define OVK_LEAK_SANITIZER
#    endif
#endif
#if defined(OVK_LEAK_SANITIZER) && defined(__linux__)
#    include <sanitizer/lsan_interface.h>
#endif

namespace ovk_test {
namespace {

/// The application; what the platform plugin leaks while it starts is none of ours.
std::unique_ptr<QApplication> MakeApplication(int& argc, char** argv)
{
#if defined(OVK_LEAK_SANITIZER) && defined(__linux__)
    const __lsan::ScopedDisabler not_ours;
#endif
    return std::make_unique<QApplication>(argc, argv);
}

struct TestClass
{
    QByteArray name;
    Factory factory;
};

std::vector<TestClass>& Classes()
{
    static std::vector<TestClass> classes;
    return classes;
}

QString g_data_home;

/// Messages of the platform plugin that say nothing about the code under test.
bool IsHarmless(const QByteArray& line)
{
    return line.contains("This plugin does not support") || line.contains("QStandardPaths: ");
}

/// Warnings that reached the log, that is, those that no QTest::ignoreMessage announced.
int CountWarnings(const QString& log_path)
{
    QFile log(log_path);
    if (!log.open(QIODevice::ReadOnly))
        return 0;
    int count = 0;
    while (!log.atEnd()) {
        const QByteArray line = log.readLine();
        if (line.startsWith("QWARN") && !IsHarmless(line))
            ++count;
    }
    return count;
}

/// Lets the clock of all animations tick once. One whose widget died in the middle of it (that of
/// the clear button of a line edit, say) notices only then, and deletes itself.
void LetOrphanedAnimationsEnd()
{
    QVariantAnimation tick;
    tick.setStartValue(0);
    tick.setEndValue(1);
    tick.setDuration(1);
    QEventLoop loop;
    QObject::connect(&tick, &QAbstractAnimation::finished, &loop, &QEventLoop::quit);
    tick.start();
    loop.exec();
}

int RunClass(const TestClass& test, const QStringList& arguments)
{
    QTemporaryDir home;
    g_data_home = home.path();
    qputenv("XDG_DATA_HOME", home.filePath("data").toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", home.filePath("config").toLocal8Bit());

    // The log is written twice, so that it can be read back for warnings.
    const QString log = home.filePath(QStringLiteral("log.txt"));
    QStringList with_log = arguments;
    if (!arguments.contains(QStringLiteral("-o")))
        with_log << QStringLiteral("-o") << log + QStringLiteral(",txt") << QStringLiteral("-o")
                 << QStringLiteral("-,txt");
    int failures = 0;
    {
        const std::unique_ptr<QObject> object = test.factory();
        failures = QTest::qExec(object.get(), with_log);
    }
    if (const int warnings = CountWarnings(log)) {
        std::fprintf(stderr, "FAIL!  : %s caused %d unexpected Qt warnings\n",
                     test.name.constData(), warnings);
        failures += warnings;
    }
    LetOrphanedAnimationsEnd();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    for (const QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->parentWidget() || widget->objectName() == QLatin1String("qt_scrollarea_viewport") ||
            widget->objectName() == QLatin1String("qtooltip_label")) // Qt's own, deleted by a timer
            continue;
        std::fprintf(stderr, "FAIL!  : %s left a top-level widget behind: %s \"%s\"\n",
                     test.name.constData(), widget->metaObject()->className(),
                     qPrintable(widget->objectName()));
        ++failures;
    }
    return failures;
}

} // namespace

bool RegisterTestClass(const char* name, Factory factory)
{
    Classes().push_back({name, std::move(factory)});
    return true;
}

QString DataHome()
{
    return g_data_home;
}

} // namespace ovk_test

int main(int argc, char** argv)
{
    using namespace ovk_test;

    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QByteArray wanted;
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        const QByteArray argument(argv[i]);
        if (argument.startsWith("--class="))
            wanted = argument.mid(8);
        else
            arguments.append(QString::fromLocal8Bit(argument));
    }

    const std::unique_ptr<QApplication> application = MakeApplication(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);

    int failures = 0;
    int run = 0;
    for (const TestClass& test : Classes()) {
        if (!wanted.isEmpty() && test.name != wanted)
            continue;
        ++run;
        failures += RunClass(test, arguments);
    }
    if (run == 0) {
        std::fprintf(stderr, "No test class named %s\n", wanted.constData());
        return 1;
    }
    return failures;
}
