#pragma once

#include <QCoreApplication>

class Clock;
class DialogDeviceConnect;
class FrameDeviceHolder;
class ModuleGenKeymapping;
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

    // The connection, the key tables, the macro store, the light works' folder and the clock of
    // the pages' timers go to the device page shell.
    void setupUi(QMainWindow* window, DialogDeviceConnect* connection, ModuleGenKeymapping& keys,
                 ModuleMacroManager& macros, const QString& worksFolder, Clock* clock);
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
