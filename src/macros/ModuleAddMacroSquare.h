#pragma once

#include <QDialog>
#include <QList>
#include <QString>

class QButtonGroup;
class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QSpinBox;
class QStackedWidget;

// The dialog that adds one event to a macro by hand: a key (caught from the keyboard), mouse
// buttons, or a mouse position. One dialog serves the page; its answers are read after it is
// accepted.
class ModuleAddMacroSquare : public QDialog
{
    Q_OBJECT

public:
    enum Choice { KeyChoice = 0, MouseChoice = 1, PositionChoice = 2 };

    // The one dialog, made under parent on first use.
    static ModuleAddMacroSquare* instance(QWidget* parent);

    int choice() const;
    // The caught key's code and name; 0 and empty when none was caught or it has no code.
    quint16 keyCode() const { return caughtCode; }
    QString keyText() const { return caughtText; }
    // The ticked buttons as the page's event values: 1 left, 4 middle, 2 right, in that order.
    QList<int> mouseButtons() const;
    int positionX() const;
    int positionY() const;

    // Clears the caught key, then opens the dialog (not blocking).
    void openFresh();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    explicit ModuleAddMacroSquare(QWidget* parent);
    QWidget* buildKeyPage();
    QWidget* buildMousePage();
    QWidget* buildPositionPage();
    void retranslate();

    quint16 caughtCode = 0;
    QString caughtText;

    QLabel* labelTitle;
    QButtonGroup* buttonGroupChoice;
    QRadioButton* radioButtonKey;
    QRadioButton* radioButtonMouse;
    QRadioButton* radioButtonPos;
    QStackedWidget* stackedWidget;
    QLineEdit* lineEditKey;
    QCheckBox* checkBox1;
    QCheckBox* checkBox2;
    QCheckBox* checkBox3;
    QLabel* labelX;
    QLabel* labelY;
    QSpinBox* spinBoxX;
    QSpinBox* spinBoxY;
    QPushButton* pushButtonOK;
    QPushButton* pushButtonCancel;
};
