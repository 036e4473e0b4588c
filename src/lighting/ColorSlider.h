#pragma once

#include "CustumSlider.h"
#include <QColor>
#include <QList>

// The hue bar of a colour picker: a rounded rainbow with a round handle. A left press jumps
// to the pointer and a drag follows it, as on every slider of the pages.
class ColorSlider : public CustumSlider
{
    Q_OBJECT

public:
    explicit ColorSlider(QWidget* parent = nullptr);

    const QList<QColor>& gradientColors() const { return colors; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QList<QColor> colors;
};
