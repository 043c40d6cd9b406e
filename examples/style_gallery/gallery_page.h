#pragma once

#include <QWidget>

/// Every standard widget in its states, for looking at a style.
class GalleryPage : public QWidget
{
    Q_OBJECT

public:
    explicit GalleryPage(QWidget* parent = nullptr);

private:
    QWidget* MakeButtons();
    QWidget* MakeFields();
    QWidget* MakeChoices();
    QWidget* MakeRanges();
    QWidget* MakeViews();
};
