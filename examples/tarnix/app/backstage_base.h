#pragma once

#include <ovk/main_window/backstage_page_base.h>

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace tarnix {

class Host;

/// Base of the program's backstage pages: a heading, a body, and buttons of commands.
class HostBackstagePage : public ovk::BackstagePageBase
{
    Q_OBJECT

public:
    HostBackstagePage(Host& host, QWidget* parent, const QString& title);

protected:
    QVBoxLayout* Body() const { return mp_body; }
    /// A row of large buttons; commands that the product lacks are left out.
    void AddButtons(const QStringList& commands);
    QLabel* AddHeading(const QString& text);
    /// Called whenever the page comes into view.
    virtual void Refresh() {}

    void showEvent(QShowEvent* event) override;

    Host& m_host;

private:
    QVBoxLayout* mp_body;
};

} // namespace tarnix
