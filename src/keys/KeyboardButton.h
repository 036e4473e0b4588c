#pragma once

#include <QColor>
#include <QPushButton>
#include <QString>

class Clock;
class keySetTooltip;

// One key of the on-screen keyboard. Its object name, pushButton_Hid%03d, is the only link to
// its key code. Besides its legend a key can show a binding (modified colours and a bubble), a
// fill colour, a coloured border, or small value captions for the magnetic pages.
class KeyboardButton : public QPushButton
{
    Q_OBJECT

public:
    enum DisplayMode : quint8 { Plain = 0, ColouredBorder = 1, TwoValues = 2, CornerValues = 3 };

    // clock null means real time; 100 ms after it is built the key gives itself its base style.
    KeyboardButton(quint8 code, Clock* clock, QWidget* parent = nullptr);
    ~KeyboardButton() override;

    static QString nameOf(quint8 code);
    // The key code in a button's name; 0 for a name without one.
    static quint8 codeOf(const QObject* button);
    quint8 code() const { return codeOf(this); }

    // The binding texts; both non-empty give the modified look and a bubble, anything else the
    // base look and no bubble.
    void setKeyContent(const QString& title, const QString& body);
    bool hasBinding() const { return tooltip != nullptr; }
    keySetTooltip* bubble() const { return tooltip; }

    void setDisplayMode(quint8 mode);
    quint8 displayMode() const { return mode; }
    // An invalid colour ends the fill.
    void setFillColor(const QColor& colour);
    bool isFilled() const { return filled; }
    QColor fillColour() const { return fillColor; }
    void setBorderColor(const QColor& colour);
    QColor borderColour() const { return borderColor; }
    // The colour as a key in the coloured-border mode shows it, as style sheet text.
    static QString borderColourText(const QColor& colour);
    void setValues2(float upper, float lower);
    void setValues3(float left, float right);
    void setValues4(float upperRight, float lowerRight, bool extra);
    // The captions as painted, in the order value1 to value6.
    QStringList valueTexts() const;
    bool hasExtraValues() const { return hasExtra; }

    // What the key paints as its legend: trimmed, "&&" as "&", an arrow for the arrow keys.
    QString paintedText() const;

    // The style sheets of a key's states. "[==set==]" marks where a knob half's shape goes.
    static QString baseStyle();
    static QString modifiedStyle();
    // The shape of a knob half, by the button's name; empty for every other key.
    static QString shapeOf(const QString& objectName);

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void applyStyle(const QString& style);
    void applyBorderStyle();
    void placeBubble();

    QColor borderColor{0x9B, 0x9B, 0x9B};
    quint8 mode = Plain;
    bool firstShow = true;
    bool filled = false;
    QColor fillColor;
    QString value1 = QStringLiteral("0.30");
    QString value2 = QStringLiteral("0.215");
    QString value3 = QStringLiteral("0.30");
    QString value4 = QStringLiteral("0.215");
    bool hasExtra = false;
    QString value5 = QStringLiteral("0.30");
    QString value6 = QStringLiteral("0.215");
    keySetTooltip* tooltip = nullptr;
};
