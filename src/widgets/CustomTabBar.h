#pragma once

#include <QColor>
#include <QTabBar>

class QPropertyAnimation;

// A flat tab bar: tabs as coloured blocks (normal, hovered, selected), the selected one in
// bold purple with a bar under its text, and a bar that slides to the current tab.
class CustomTabBar : public QTabBar
{
    Q_OBJECT
    Q_PROPERTY(int currentX READ getCurrentX WRITE setCurrentX)
    Q_PROPERTY(int currentWidth READ getCurrentWidth WRITE setCurrentWidth)

public:
    explicit CustomTabBar(QWidget* parent = nullptr);

    int getCurrentX() const { return currentX; }
    void setCurrentX(int x);
    int getCurrentWidth() const { return currentWidth; }
    void setCurrentWidth(int width);
    // The tab under the pointer, -1 for none.
    int hoveredTab() const { return hovered; }

public slots:
    void onCurrentChanged(int index);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    int currentX = 0;
    int currentWidth = 0;
    QPropertyAnimation* xAnimation;
    QColor normalColor;
    QColor hoverColor;
    QColor selectedColor;
    int hovered = -1;
};
