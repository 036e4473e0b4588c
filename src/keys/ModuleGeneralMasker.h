#pragma once

#include <QDialog>
#include <QPointer>

// Dims a page (or the screen) and shows one small widget modally in its middle. When the widget
// hides, the masker gives it back and ends: accepted if its result was set to 1 meanwhile,
// rejected otherwise.
class ModuleGeneralMasker : public QDialog
{
    Q_OBJECT

public:
    // frameWidget null covers the primary screen.
    ModuleGeneralMasker(QWidget* child, QWidget* frameWidget = nullptr);

signals:
    void onClicked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QPointer<QWidget> child;
};
