#pragma once

#include <QCheckBox>
#include <QColor>

// An on-off switch painted over a check box: a pill with a round knob, purple when on.
class ToggleButton : public QCheckBox
{
    Q_OBJECT

public:
    explicit ToggleButton(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    bool hitButton(const QPoint& pos) const override;

private:
    QColor checkedColor;
    QColor uncheckedColor;
};
