#pragma once

#include "LanguageSwitch.h"

#include <QWidget>
#include <memory>

class Clock;
class DialogDeviceConnect;
class HidBackend;
class ModuleLangMenu;
class QLabel;
class QPushButton;
class QTranslator;

// The hub's window. It owns the HID backend and the one connection, connects to the wired
// keyboard named in device.ini and shows what the connection has read.
class MainWindow : public QWidget
{
    Q_OBJECT

public:
    // clock null means the real one; tests pass a manual clock.
    explicit MainWindow(std::unique_ptr<HidBackend> hid, Clock* clock = nullptr,
                        QWidget* parent = nullptr);
    ~MainWindow() override;

    DialogDeviceConnect* connection() const { return device.get(); }
    ModuleLangMenu* languageMenu() const { return langMenu; }

    // Carries out a choice of the language menu (index into kLanguages, the menu's text).
    void applyLanguage(int index, const QString& text);
    // The start-up choice: the saved "lastlang", language 0 when there is none.
    void selectSavedLanguage();

    // Set by main(); the window reloads them when the language changes, it doesn't own them.
    QTranslator* appTranslator = nullptr;
    QTranslator* qtBaseTranslator = nullptr;
    QTranslator* qtTranslator = nullptr;

protected:
    void changeEvent(QEvent* event) override;

private:
    enum class LinkState { Searching, NotFound, NotOpened, Connected, Reading };

    void buildUi();
    void showLanguageMenu();
    void openSystemInfo();
    void retranslateUi();
    void connectKeyboard();
    void setLinkState(LinkState state);
    void showLinkState();
    void refreshValues();
    void onReadAllStarted();
    void onReadFinished();

    std::unique_ptr<HidBackend> hid;
    Clock* clock;
    std::unique_ptr<DialogDeviceConnect> device;

    LinkState linkState = LinkState::Searching;
    qint64 readStartedMs = -1;
    qint64 lastReadMs = -1;
    QString lastReadTime;
    quint16 reportedVersion = 0;
    quint32 reportedId = 0;
    bool identityKnown = false;

    QLabel* titleLabel = nullptr;
    QLabel* stateDot = nullptr;
    QLabel* stateLabel = nullptr;
    QLabel* targetLabel = nullptr;
    QLabel* versionLabel = nullptr;
    QLabel* readDoneLabel = nullptr;
    QPushButton* reconnectButton = nullptr;
    QPushButton* langButton = nullptr;
    QPushButton* setButton = nullptr;
    ModuleLangMenu* langMenu = nullptr;
    LanguageSwitch language;

    // One row per value: the caption and the value.
    struct Row
    {
        QLabel* caption = nullptr;
        QLabel* value = nullptr;
    };
    Row deviceIdRow, firmwareRow, profileRow, reportRateRow, debounceRow;
    Row sleepRows[4];
};
