#pragma once

#include <QCoreApplication>

class Clock;
class FrameDeviceHolder;
class HidBackend;
class ModuleMacroManager;
class QFrame;
class QHBoxLayout;
class QLabel;
class QMainWindow;
class QPushButton;
class QScrollArea;
class QStackedWidget;
class QWidget;

// The widgets of the hub's window, by the object names the window looks them up by: the title
// strip with its buttons, and the stack of the card page, the sibling's frame and the device
// page shell.
class MainWindowForm
{
    Q_DECLARE_TR_FUNCTIONS(MainWindow)

public:
    static constexpr int kTitleHeight = 80;

    // hid and clock go to the device page shell, which makes the connection; the macro store to
    // its macro page.
    void setupUi(QMainWindow* window, HidBackend* hid, Clock* clock, ModuleMacroManager& macros,
                 const QString& worksFolder);
    void retranslateUi(QMainWindow* window);

    QWidget* centralwidget = nullptr;
    QLabel* labelLogo = nullptr;
    QPushButton* pushButtonLang = nullptr;
    QPushButton* pushButtonSet = nullptr;
    QPushButton* pushButtonMin = nullptr;
    QPushButton* pushButtonExit = nullptr;
    QStackedWidget* stackedWidget = nullptr;
    QWidget* page00 = nullptr;
    QLabel* labelInfo0 = nullptr;
    QPushButton* pushButtonScan = nullptr;
    QLabel* labelPrev = nullptr;
    QLabel* labelNext = nullptr;
    QScrollArea* scrollArea = nullptr;
    QWidget* scrollAreaWidgetContents = nullptr;
    QHBoxLayout* cardLayout = nullptr;
    QWidget* page01 = nullptr;
    QFrame* frameEmb = nullptr;
    QWidget* page02 = nullptr;
    FrameDeviceHolder* frameHold = nullptr;

private:
    QWidget* buildTitle(QWidget* parent);
    QWidget* buildCardPage();
};
