#pragma once

#include <QColor>
#include <QLabel>

// A colour swatch. Among the swatches of one parent, the one pressed last is the selected one
// and wears a ring in its own colour.
class ColorLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ColorLabel(QWidget* parent = nullptr);
    ~ColorLabel() override;

    QColor color() const { return m_color; }
    void setColor(const QColor& color);
    bool isSelected() const;
    // Makes this the selected swatch of its parent; the one before it loses the ring.
    void select();
    // The selected swatch among a parent's children, or null.
    static ColorLabel* selectedOf(const QObject* parent);

signals:
    void pressed(const QColor& color);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    QColor m_color;
};
