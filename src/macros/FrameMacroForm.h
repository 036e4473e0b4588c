#pragma once

#include <QCoreApplication>

class QFrame;
class QGridLayout;
class QLabel;
class QPushButton;
class QScrollArea;
class QSpinBox;
class QVBoxLayout;
class QWidget;

// The widgets of the macro page, by the object names the page and its tests look them up by:
// the macro list on the left; on the right the open macro's name and size, the tools, the
// legend and the grid of squares.
class FrameMacroForm
{
    Q_DECLARE_TR_FUNCTIONS(FrameMacro)

public:
    static constexpr int kListWidth = 264;

    void setupUi(QFrame* page);
    void retranslateUi();

    QFrame* frameList = nullptr;
    QLabel* labelListTitle = nullptr;
    QPushButton* pushButtonAddMacro = nullptr;
    QScrollArea* scrollAreaList = nullptr;
    QVBoxLayout* listLayout = nullptr; // the MacroItem rows, then a stretch

    QFrame* frameEditor = nullptr;
    QLabel* labelMacroName = nullptr;
    QLabel* labelSize = nullptr;
    QPushButton* pushButtonRecord = nullptr;
    QPushButton* pushButtonInsert = nullptr;
    QPushButton* pushButtonDelete = nullptr;
    QPushButton* pushButtonClear = nullptr;
    QPushButton* pushButtonSetDelay = nullptr;
    QSpinBox* spinBoxDelay = nullptr;
    QPushButton* pushButtonSave = nullptr;
    QLabel* labelRelease = nullptr;
    QLabel* labelPress = nullptr;
    QLabel* labelDelay = nullptr;
    QLabel* labelHint = nullptr;
    QScrollArea* scrollAreaSquares = nullptr;
    QWidget* gridWidget = nullptr;
    QGridLayout* gridLayout = nullptr;
    QLabel* labelEmpty = nullptr; // over the grid while it has no squares

private:
    QWidget* buildList(QFrame* page);
    QWidget* buildEditor(QFrame* page);
    QWidget* buildTools(QWidget* parent);
    QWidget* buildLegend(QWidget* parent);
};
