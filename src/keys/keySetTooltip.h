#pragma once

#include <QWidget>

class QLabel;

// The bubble a key with a binding shows while the pointer rests on it: the key's name over a
// rule, what the key does below, on a rounded card with a point at the bottom.
class keySetTooltip : public QWidget
{
    Q_OBJECT

public:
    explicit keySetTooltip(QWidget* parent = nullptr);

    void setTexts(const QString& title, const QString& body);
    QString title() const;
    QString body() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QLabel* labelTitle;
    QLabel* labelBody;
};
