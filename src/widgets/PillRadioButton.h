#pragma once

#include <QRadioButton>

// A radio button drawn as a pill with its text in the middle, purple when chosen: for rows of
// choices that act at once when clicked (a layer to write, a layer to read).
class PillRadioButton : public QRadioButton
{
    Q_OBJECT

public:
    explicit PillRadioButton(QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool hitButton(const QPoint& pos) const override;
};
