#pragma once

#include <QTimer>
#include <QWidget>

class QLabel;

// A clickable tooltip window: stays while the pointer is on it, goes a second after the pointer
// leaves, and a click on it is an action (onClicked) that also closes it.
class CustomTooltip : public QWidget
{
    Q_OBJECT

public:
    explicit CustomTooltip(QWidget* parent = nullptr);

    void setText(const QString& text);
    QString text() const;
    // Style sheet of the text label, e.g. "QLabel { color: red; }".
    void setTextStyle(const QString& styleSheet);
    // Whether the hide timer is counting down.
    bool isHidePending() const { return hideTimer.isActive(); }

signals:
    void onClicked();

protected:
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QLabel* label;
    QTimer hideTimer;
    bool spare = false; // kept with the form's fields; nothing reads it
};
