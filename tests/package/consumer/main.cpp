// A host as small as can be: it includes everything, and prints the version that was linked in.
#include <ovk/ovk.h>

#include <QApplication>

#include <cstdio>

namespace {

class Frame : public ovk::Application
{
};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    Frame frame;
    std::printf("version %s\n", qPrintable(ovk::Application::GetInstance().GetVersionInfo().ToString()));
    return 0;
}
