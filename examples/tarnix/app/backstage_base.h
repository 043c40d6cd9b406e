#pragma once

#include "model/phrase.h"

#include <ovk/main_window/backstage_page_base.h>

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <functional>
#include <vector>

namespace tarnix {

class Host;

/// Base of the program's backstage pages: a heading, a body, and buttons of commands.
class HostBackstagePage : public ovk::BackstagePageBase
{
    Q_OBJECT

public:
    HostBackstagePage(Host& host, QWidget* parent, const Phrase& title);

protected:
    QVBoxLayout* Body() const { return mp_body; }
    /// A row of large buttons; commands that the product lacks are left out.
    void AddButtons(const QStringList& commands);
    QLabel* AddHeading(const Phrase& text);
    /// Runs `set` now and whenever the language changes.
    void Say(const std::function<void()>& set);
    /// Called whenever the page comes into view.
    virtual void Refresh() {}

    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

    Host& m_host;

private:
    QVBoxLayout* mp_body;
    std::vector<std::function<void()>> m_texts;
};

} // namespace tarnix
