// A whole host: one command, its catalogue and its ribbon.
#include <ovk/ovk.h>

#include <QApplication>
#include <QMessageBox>

class Frame : public ovk::Application {};

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

class Hello : public ovk::UiCommand
{
public:
    Hello() : UiCommand("Hello") { SetStrings("Say hello", "Greets you", "", true, true, true); }

protected:
    void _DoExecute() override { QMessageBox::information(nullptr, GetTitle(), "Hello!"); }
    void _DoUpdateUi(const ovk::UpdatableContext&) override { setEnabled(true); }
};

class Factory : public ovk::ICommandsFactory
{
public:
    ovk::UiCommand* GetCommand(const QString& id, int) override { return id == "Hello" ? &m_hello : nullptr; }
    void CreateCommands(const QSet<QString>&) override {}
    bool ResolveDynamicCommand(const QString&, QList<ovk::UiCommand*>&) override { return false; }

private:
    Hello m_hello;
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setStyle(new Qtitan::RibbonStyle); // the application's
    Frame frame;
    ovk::RootController* root = ovk::RootController::GetInstance();
    auto* ui = new ovk::UiController; // these two are the root's
    new ovk::UiProfileController;
    auto features = std::make_unique<ovk::UiFeaturesController>();
    features->LoadDefinitions("Minimal");
    Factory factory;
    features->AddSubFactory(&factory);
    ovk::UiProfileController::GetInstance()->SetProductName("Minimal");
    ui->SetUpdatableContext(std::make_unique<Context>());

    root->OnAppStart();
    auto window = std::make_unique<ovk::RibbonWindow>();
    ui->SetActiveLayout(ui->GetProfile()->GetLayout("Main"));
    ui->UpdateUi();
    window->show();
    const int result = QApplication::exec();

    root->OnAppShutdown(); // saves the profile
    window.reset();
    features.reset();
    delete root;
    return result;
}
