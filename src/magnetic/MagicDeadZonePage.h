#pragma once

#include <QWidget>

class ModuleLinear;
class QLabel;
class QPushButton;

// The dead zone page of the magnetic page (page1): the top dead zone in the left pane of a
// double travel control and the bottom one in the right pane. The magnetic page writes them to
// the selected keys when the apply button is pressed.
class MagicDeadZonePage : public QWidget
{
    Q_OBJECT

public:
    explicit MagicDeadZonePage(QWidget* parent = nullptr);

    // Millimetres as the panes' boxes read.
    float top() const;
    float bottom() const;
    QPushButton* applyButton() const { return pushButtonSetDeathzone; }
    void setSelectionText(const QString& text);

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();

    QLabel* labelTitle2 = nullptr;
    QLabel* labelDeathzone = nullptr;
    QLabel* labelDeathzoneNote = nullptr;
    ModuleLinear* frameDead = nullptr;
    QLabel* labelSelectDZKey = nullptr;
    QPushButton* pushButtonSetDeathzone = nullptr;
};
