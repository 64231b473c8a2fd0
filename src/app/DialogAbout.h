#pragma once

#include <QtWidgets/QDialog>

class QLayout;

/// Name, version and licence of the program and of the libraries it is built with.
class DialogAbout : public QDialog
{
    Q_OBJECT

public:
    explicit DialogAbout(QWidget* parent);

private Q_SLOTS:
    void slotClose();

private:
    QLayout* createTitle();
};
