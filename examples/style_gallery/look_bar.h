#pragma once

#include "look.h"

#include <QToolBar>

class QAction;
class QComboBox;

/// Chooses theme, accent, scale, direction, frame and contrast; what is chosen is asked for at
/// once.
class LookBar : public QToolBar
{
    Q_OBJECT

public:
    explicit LookBar(const Look& look, QWidget* parent = nullptr);

    const Look& GetLook() const { return m_look; }

    /// Shows what somebody else made of theme and accent.
    void Follow();

Q_SIGNALS:
    void Changed(const Look& look);
    /// A scale is a matter of the whole process.
    void ScaleChosen(const Look& look);

private:
    QComboBox* AddChoice(const QString& label, const QString& tip);
    void AddAccents();
    void AddSwitches();
    void TakeAccent(int index);
    void ChooseFreeColor();
    void ShowAccent();

    Look m_look;
    QComboBox* m_themes = nullptr;
    QComboBox* m_accents = nullptr;
};
