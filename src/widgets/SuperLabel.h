#pragma once

#include <QLabel>
#include <QTimer>

class CustomTooltip;

// A picture label with two states (selected or not, each with its picture and style sheet),
// one selected per parent, and a CustomTooltip that opens to its right while hovered.
class SuperLabel : public QLabel
{
    Q_OBJECT

public:
    explicit SuperLabel(QWidget* parent = nullptr);
    ~SuperLabel() override;

    void setPictures(const QString& on, const QString& off);
    void setStyles(const QString& on, const QString& off);
    // Selecting one deselects the one that was selected under the same parent.
    void setSelected(bool selected);
    bool isSelected() const { return state; }
    // The text moves to the CustomTooltip; the label keeps no text or tool tip of its own.
    void setTip(const QString& text);

    // Null until 100 ms after construction, unless setTip made it sooner.
    CustomTooltip* tooltip() const { return tip; }
    bool isTipPending() const { return showTimer.isActive(); }

protected:
    bool event(QEvent* event) override;

private:
    void buildTooltip();
    void showTooltip();

    CustomTooltip* tip = nullptr;
    QTimer showTimer;
    bool state = false;
    QString pictureOn;
    QString pictureOff;
    QString styleOn;
    QString styleOff;
};
