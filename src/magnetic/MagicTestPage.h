#pragma once

#include <QStringList>
#include <QWidget>

class DialogDeviceConnect;
class QGridLayout;
class QKeyEvent;
class QLabel;
class QScrollArea;
class ToggleButton;

// The test page of the magnetic page (page4), two tests side by side. The travel test starts the
// keyboard's depth stream and shows the depth on a ruler and as a pictured key going down. The
// key test lists the keys that reach the page as key events: the ones held now, and every one
// seen. Both keep running while other pages show.
class MagicTestPage : public QWidget
{
    Q_OBJECT

public:
    static constexpr int kPressFrames = 10;
    static constexpr int kNamesPerRow = 10;

    explicit MagicTestPage(DialogDeviceConnect* device, QWidget* parent = nullptr);

    bool isKeyTestOn() const;
    // Key events that reached the magnetic page while the key test runs.
    void keyPressed(const QKeyEvent& event);
    void keyReleased(const QKeyEvent& event);
    // What the key test calls the key of an event: its text, else the vocabulary's name of its
    // scan code.
    static QString keyName(const QKeyEvent& event);

signals:
    void keyTestSwitched(bool on);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QWidget* buildTravelTest();
    QWidget* buildKeyTest();
    void retranslate();
    void paintRuler();
    void showFrame(int index);
    void rebuildHeldRow();
    QLabel* nameLabel(const QString& name, QWidget* parent) const;

    DialogDeviceConnect* device;
    QLabel* labelTitle5 = nullptr;
    ToggleButton* checkBoxKeytest0 = nullptr;
    QLabel* labelKeymt = nullptr;
    QLabel* labelPress = nullptr;
    QLabel* labelTitle3 = nullptr;
    ToggleButton* checkBoxKeytest1 = nullptr;
    QScrollArea* scrollArea0 = nullptr;
    QWidget* scrollAreaWidgetContents0 = nullptr;
    QLabel* labelTitle4 = nullptr;
    QScrollArea* scrollArea1 = nullptr;
    QGridLayout* gridLayout_2 = nullptr;
    QStringList held;
    int frame = kPressFrames - 1; // the pictured key's: 9 at rest, 0 at the bottom
};
