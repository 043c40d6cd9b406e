#include "tool.h"

#include <QApplication>
#include <QStringList>

#include <cstdio>

int main(int argc, char** argv)
{
    // Commands are actions, which want an application but no screen.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QTextStream out(stdout);
    QTextStream errors(stderr);
    out.setCodec("UTF-8");
    errors.setCodec("UTF-8");
    return ovk_profile::Run(QCoreApplication::arguments().mid(1), out, errors);
}
