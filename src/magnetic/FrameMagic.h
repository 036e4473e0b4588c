#pragma once

#include <QColor>
#include <QFrame>

class Clock;
class DialogDeviceConnect;
class MagicDeadZonePage;
class MagicStabPage;
class MagicSwitchPage;
class MagicTestPage;
class MagicTravelPage;
class ModuleKeyboard;
class QButtonGroup;
class QStackedWidget;

// The magnetic switch page of a native keyboard: the on-screen keyboard above, five pages below
// (travel and rapid trigger, dead zones, switch types, stabilisation, tests). A user selects
// keys and applies values; each key's values go to the keyboard and show on its key. The page
// keeps no values of its own: the keys are drawn from the connection's cache.
class FrameMagic : public QFrame
{
    Q_OBJECT

public:
    enum Page { Travel = 0, DeadZone = 1, Switch = 2, Stabilisation = 3, Test = 4 };
    static constexpr int kPages = 5;

    // clock paces the text boxes; null means real time.
    FrameMagic(DialogDeviceConnect* device, Clock* clock = nullptr, QWidget* parent = nullptr);
    ~FrameMagic() override;

    ModuleKeyboard* keyboard() const { return frameKeyboard; }
    int currentPage() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void changeEvent(QEvent* event) override;

private:
    void buildForm(Clock* clock);
    void retranslate();
    void onPageClicked(int id);
    void showCaptions(int page);
    void onSelectionChanged();
    void onKeyClicked(const QString& text, uchar code);
    void applyTravel();
    void applyDeadZones();
    void onReadDone();

    DialogDeviceConnect* device;
    // The switch type a click on a key writes while the switch page shows, and its colour.
    QColor colour;
    quint8 switchType = 0;

    ModuleKeyboard* frameKeyboard = nullptr;
    QButtonGroup* buttonGroupSet = nullptr;
    QStackedWidget* stackedWidget = nullptr;
    MagicTravelPage* page0 = nullptr;
    MagicDeadZonePage* page1 = nullptr;
    MagicSwitchPage* page2 = nullptr;
    MagicStabPage* page3 = nullptr;
    MagicTestPage* page4 = nullptr;
};
