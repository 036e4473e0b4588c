#pragma once

#include <QSlider>

// A slider that jumps to the pointer: a left press sets the value under it and a drag follows
// the pointer, instead of stepping a page at a time.
class CustumSlider : public QSlider
{
    Q_OBJECT

public:
    explicit CustumSlider(QWidget* parent = nullptr);
    explicit CustumSlider(Qt::Orientation orientation, QWidget* parent = nullptr);

    // The value at a point of the widget: across the width from the left, or up the height
    // from the bottom. Not clamped; setValue clamps.
    int valueAt(const QPoint& pos) const;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    bool spare = false; // kept for the forms; no behaviour hangs on it
    bool dragging = false;
};
