// Runs the sample host and the floor in turn, each to its first painted window, and prints the
// medians, their spread and the ratio. Taken in turn, so that a drift of the machine cancels.
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

struct Contender
{
    const char* name;
    QString program;
    QStringList arguments;
    std::vector<double> milliseconds;
};

/// Milliseconds from the start of the process to its line "painted"; negative on failure.
double Run(const Contender& contender)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    process.setProcessEnvironment(environment);
    process.setStandardErrorFile(QProcess::nullDevice());
    QElapsedTimer timer;
    timer.start();
    process.start(contender.program, contender.arguments);
    double painted = -1;
    while (painted < 0 && process.waitForReadyRead(30000)) {
        if (process.readAllStandardOutput().contains("painted"))
            painted = timer.nsecsElapsed() / 1e6;
    }
    process.waitForFinished(30000);
    return painted;
}

double Quantile(std::vector<double> values, double q)
{
    std::sort(values.begin(), values.end());
    return values[static_cast<size_t>(q * (values.size() - 1) + 0.5)];
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 5) {
        std::fprintf(stderr, "usage: cold_start_compare HOST BUTTONS PAGES ICON_FOLDER\n");
        return 2;
    }
    const QTemporaryDir data;
    const QString floor = QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("cold_start_floor"));
    Contender contenders[] = {
        {"floor", floor, arguments.mid(2), {}},
        {"host", arguments.at(1),
         {QStringLiteral("--data-dir"), data.path(), QStringLiteral("--exit-after-paint")}, {}},
    };
    constexpr int c_runs = 15;
    for (int run = -1; run < c_runs; ++run) {
        for (Contender& contender : contenders) {
            const double time = Run(contender);
            if (time < 0) {
                std::fprintf(stderr, "%s did not paint\n", contender.name);
                return 1;
            }
            if (run >= 0)
                contender.milliseconds.push_back(time);
        }
    }
    for (const Contender& contender : contenders) {
        std::printf("%-6s median %7.1f ms   quartiles %7.1f %7.1f\n", contender.name,
                    Quantile(contender.milliseconds, 0.5), Quantile(contender.milliseconds, 0.25),
                    Quantile(contender.milliseconds, 0.75));
    }
    std::printf("ratio  %.2f\n", Quantile(contenders[1].milliseconds, 0.5) /
                                    Quantile(contenders[0].milliseconds, 0.5));
    return 0;
}
