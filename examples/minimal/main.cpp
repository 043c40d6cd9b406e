// A whole host: three commands, their catalogue and their ribbon, a dock page, and a preference.
#include <ovk/ovk.h>

#include <QApplication>
#include <QPlainTextEdit>
#include <QPointer>

class Frame : public ovk::Application
{
};

struct Settings // declared once, stored by name
{
    ovk::PreferenceChapter chapter{"Greetings"};
    ovk::Preference<bool> loud{chapter, "Loud"};
};

class LogPage : public QPlainTextEdit, public ovk::IDockPage
{
public:
    LogPage()
    {
        setObjectName("Page.Log");
        setReadOnly(true);
        setMinimumSize(160, 80);
    }
    QString GetId() const override { return objectName(); }
    QWidget* GetWidget() const override { return const_cast<LogPage*>(this); }
    bool IsAvailable() const override { return true; }
    void OnActivated() override {}
    bool IsToggleable() const override { return true; }
    void OnVisibilityToggled(bool) override {}
    QString GetSizeGroupId() const override { return QString(); }
    QSizePolicy GetSizePolicy() const override { return sizePolicy(); }
};

class Pages : public ovk::IWidgetFactory
{
public:
    ~Pages() override { delete log; }
    QWidget* CreatePageWidget(const QString& id) override { return id == "Page.Log" ? log : nullptr; }
    QStringList GetPageIds() const override { return {"Page.Log"}; }

    QPointer<LogPage> log = new LogPage; // the window's as soon as a panel has it
};

class Context : public ovk::UpdatableContext // what commands ask about the document
{
public:
    void Refresh() override {}
    quint64 GetPartsOnActiveDataSet() const override { return 0; }
    quint64 GetSlicesOnActiveDataSet() const override { return 0; }
    quint64 GetSelectedPartsOnActiveDataSet() const override { return 0; }
    quint64 GetSelectedSlicesOnActiveDataSet() const override { return 0; }
    quint64 GetPartsOnModelerSet() const override { return 0; }
    quint64 GetSlicesOnModelerSet() const override { return 0; }
    quint64 GetSelectedPartsOnModelerSet() const override { return 0; }
    quint64 GetSelectedSlicesOnModelerSet() const override { return 0; }
};

class Command : public ovk::UiCommand // what it does, and when it is enabled or checked
{
public:
    using Action = std::function<void()>;
    using Update = std::function<void(Command&)>;

    Command(const QString& id, const QString& title, const QString& tip, Action action, Update update)
        : UiCommand(id), m_action(action), m_update(update)
    {
        SetStrings(title, tip, tip, true, true, true);
    }

protected:
    void _DoExecute() override { m_action(); }
    void _DoUpdateUi(const ovk::UpdatableContext&) override { m_update(*this); }

private:
    Action m_action;
    Update m_update;
};

class Factory : public ovk::ICommandsFactory // owns the commands
{
public:
    Factory(Settings& settings, QPlainTextEdit& log)
        : m_greet("Greet", "Say hello", "Greets you in the log",
                  [&] { log.appendPlainText(settings.loud ? "HELLO!" : "Hello."); },
                  [](Command& command) { command.setEnabled(true); }),
          m_loud("Loud", "Loud", "Greets in capitals", [&] { settings.loud = !settings.loud; },
                 [&](Command& command) {
                     command.setCheckable(true);
                     command.setEnabled(true);
                     command.setChecked(settings.loud);
                 }),
          m_clear("Clear", "Clear", "Empties the log", [&] { log.clear(); },
                  [&](Command& command) { command.setEnabled(!log.document()->isEmpty()); })
    {
    }
    ovk::UiCommand* GetCommand(const QString& id, int) override
    {
        for (Command* command : {&m_greet, &m_loud, &m_clear}) {
            if (command->GetId() == id)
                return command;
        }
        return nullptr;
    }
    void CreateCommands(const QSet<QString>&) override {}
    bool ResolveDynamicCommand(const QString&, QList<ovk::UiCommand*>&) override { return false; }

private:
    Command m_greet, m_loud, m_clear;
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setStyle(new Qtitan::RibbonStyle); // the application's
    Frame frame;
    ovk::RootController* root = ovk::RootController::GetInstance();
    Settings settings;
    auto* ui = new ovk::UiController; // these two are the root's
    new ovk::UiProfileController;
    auto features = std::make_unique<ovk::UiFeaturesController>();
    features->LoadDefinitions("Minimal");
    Pages pages;
    Factory factory(settings, *pages.log);
    features->AddSubFactory(&factory);
    ovk::UiProfileController::GetInstance()->SetProductName("Minimal");
    ui->SetUpdatableContext(std::make_unique<Context>());

    root->OnAppStart(); // loads the preferences and the profile
    auto window = std::make_unique<ovk::RibbonWindow>();
    ui->SetActiveLayout(ui->GetProfile()->GetLayout("Main"));
    ui->UpdateUi();
    window->resize(800, 500);
    window->show();
    const int result = QApplication::exec();

    root->OnAppShutdown(); // saves both
    window.reset();
    features.reset();
    delete root;
    return result;
}
