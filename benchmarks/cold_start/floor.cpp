// The floor of a cold start: a plain main window with the same number of plain tool buttons and
// the same pictures, in tabs of tool bars. Prints "painted" after its first paint and ends.
#include <QApplication>
#include <QDir>
#include <QMainWindow>
#include <QPaintEvent>
#include <QTabWidget>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

#include <cstdio>

namespace {

class Window : public QMainWindow
{
public:
    Window(int buttons, int pages, const QString& icons)
    {
        const QFileInfoList files = QDir(icons).entryInfoList({QStringLiteral("*.svg")}, QDir::Files);
        auto* tabs = new QTabWidget(this);
        setMenuWidget(tabs);
        for (int page = 0; page < pages; ++page) {
            auto* bar = new QToolBar(tabs);
            tabs->addTab(bar, QStringLiteral("Page %1").arg(page));
            for (int i = page; i < buttons; i += pages) {
                auto* button = new QToolButton(bar);
                button->setText(QStringLiteral("Command %1").arg(i));
                if (!files.isEmpty())
                    button->setIcon(QIcon(files.at(i % files.size()).filePath()));
                button->setToolButtonStyle(i % 4 ? Qt::ToolButtonTextBesideIcon
                                                 : Qt::ToolButtonTextUnderIcon);
                bar->addWidget(button);
            }
        }
        setCentralWidget(new QWidget(this));
        resize(1280, 800);
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QMainWindow::paintEvent(event);
        QTimer::singleShot(0, this, [] {
            std::printf("painted\n");
            std::fflush(stdout);
            QCoreApplication::exit(0);
        });
    }
};

} // namespace

int main(int argc, char** argv)
{
    if (argc != 4) {
        std::fprintf(stderr, "usage: cold_start_floor BUTTONS PAGES ICON_FOLDER\n");
        return 2;
    }
    QApplication application(argc, argv);
    Window window(std::atoi(argv[1]), std::atoi(argv[2]), QString::fromLocal8Bit(argv[3]));
    window.show();
    return QApplication::exec();
}
