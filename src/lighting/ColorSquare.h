#pragma once

#include <QColor>
#include <QFrame>
#include <QImage>

// The saturation-value square of a colour picker: for the current hue, saturation runs from
// left to right and value from the bottom up. A press or a drag picks the colour under the
// pointer; the ring marks where it stands.
class ColorSquare : public QFrame
{
    Q_OBJECT

public:
    explicit ColorSquare(QWidget* parent = nullptr);

    double hue() const { return m_hue; }
    // Saturation and value are where the pointer stands: x across the width, y up the height.
    double saturation() const;
    double value() const;
    QPointF pointer() const { return {m_x, m_y}; }
    char mode() const { return m_mode; }
    // The colour under the pointer.
    QColor currentColor() const;

public slots:
    // Takes hue, saturation and value of the colour and moves the pointer to it. A colour
    // without a hue (grey) keeps hue 0.
    void setColor(const QColor& color);
    // The hue of the square; the pointer stays, and the colour now under it is reported.
    void setHue(double hue);
    void setSaturation(double saturation);
    void setValue(double value);
    // The slice of the colour space shown; only 'H' (a fixed hue) is drawn.
    void setCheckedColor(char checked);

signals:
    void colorSelected(const QColor& color);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void render();
    void pickAt(const QPointF& position);
    QColor colorAt(double x, double y) const;
    QColor shownColor() const;

    double m_hue = 0;
    QImage m_image;
    char m_mode = 'H';
    double m_x = 124.0;
    double m_y = 124.0;
    bool m_reportPending = false;
    // The hue and size the image was drawn for: a paint with neither changed reuses it.
    double m_imageHue = -1;
};
