#pragma once

#include <QJsonObject>
#include <QObject>
#include <QTimer>

namespace tarnix {

/// Writes what is on the screen as JSON to a file, again after every change: for programs that test
/// the window from outside. Each widget has its class, name, text, place on the screen and state.
class UiDump : public QObject
{
    Q_OBJECT

public:
    explicit UiDump(const QString& path);

    static QJsonObject Tree();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Write();

    QString m_path;
    QTimer m_timer;
};

} // namespace tarnix
