#pragma once

#include <QByteArray>
#include <QFrame>
#include <QList>
#include <QPoint>

class Clock;
class CustomTooltip;
class DialogDeviceConnect;
class KeyboardButton;
class QAbstractButton;
class QButtonGroup;

// The on-screen keyboard that every page of a native keyboard shows. All instances stand in
// one list, so that a binding or a disabled key shows on every page at once. It selects keys
// (one at a time on the key page, up to a limit elsewhere, or with a rubber band), offers to
// clear, disable or enable a key on a right click, and shows bindings, colours and values.
class ModuleKeyboard : public QFrame
{
    Q_OBJECT

public:
    static constexpr int kDefaultSelectionLimit = 300;
    static constexpr quint8 kAllKeys = 255;

    // device may be null (a keyboard that only shows); clock null means real time.
    explicit ModuleKeyboard(DialogDeviceConnect* device, Clock* clock = nullptr,
                            QWidget* parent = nullptr);
    ~ModuleKeyboard() override;

    // Every keyboard that exists, oldest first.
    static const QList<ModuleKeyboard*>& instances();

    // The key of a code, or null when the board has none.
    KeyboardButton* button(quint8 code) const;
    // All keys in group order.
    QList<KeyboardButton*> buttons() const;
    QButtonGroup* group() const { return buttonGroup; }
    CustomTooltip* popupWidget() const { return popup; }
    QList<KeyboardButton*> disabledButtons() const { return disabledKeys; }

    void setSelectionLimit(int limit);
    int selectionLimit() const { return SelectionLimit; }
    // The codes of the checked keys in group order; returns their count.
    int selectedCodes(QByteArray& out) const;
    void selectAll(bool on);

    // Code kAllKeys (or more) colours every key.
    void setKeyColor(int code, const QColor& colour);
    void setKeyBorder(quint8 code, const QColor& colour);
    void setKeyValues2(quint8 code, float upper, float lower);
    void setKeyValues3(quint8 code, float left, float right);
    void setKeyValues4(quint8 code, float upperRight, float lowerRight, bool extra);
    // A binding's texts; the title "DISABLED" disables the key instead (nothing is written).
    // With recurse, every keyboard does the same.
    void setKeyTooltip(quint8 code, const QString& title, const QString& body, bool recurse);
    // Disables or enables a key as the popup does; with notify the keyboard is written.
    void setKeyEnabledState(KeyboardButton* key, bool enable, bool notify);

    void enterSelectMode();
    void enterValueMode(quint8 mode);
    void enterScaledValueMode(bool on);
    void enterLayerMode(bool on);
    // Ends the select and value modes, as a page does before showing keys its own way.
    void leaveModes();
    void lockKeyboard();
    void updateLegend();
    void setFnEnabled(bool enabled);
    void setLegendVisible(bool visible);
    // The orange mark of a key that was seen; code 0 marks the key named 129.
    void markKeyHit(quint8 code);

    bool isLocked() const { return locked; }
    bool isSelectMode() const { return selectMode; }
    bool isValueMode() const { return valueMode; }

signals:
    void onKeyClicked(const QString& text, uchar hid);
    void onKeyChanged(uchar hid, uchar type, bool enable);
    void onSelect();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildKeys();
    QWidget* buildLegend();
    void onButtonClicked(QAbstractButton* clicked);
    void propagate(const QString& name, bool enabled, bool notify, bool recurse);
    void applyLegendRule();
    // Checkable keys with no binding shown, in the given display mode.
    void resetKeys(quint8 displayMode);
    void openPopup(KeyboardButton* target);
    void onPopupClicked();
    bool anyModeOn() const { return locked || selectMode || valueMode; }

    DialogDeviceConnect* device;
    Clock* clock;
    QButtonGroup* buttonGroup = nullptr;
    QWidget* frameFlag = nullptr;
    QWidget* bandPane = nullptr; // above the keys, where the rubber band is painted
    QList<KeyboardButton*> disabledKeys;
    KeyboardButton* popupTarget = nullptr;
    CustomTooltip* popup = nullptr;
    bool locked = false;
    int SelectionLimit = kDefaultSelectionLimit;
    bool selectMode = false;
    bool valueMode = false;
    bool dragging = false;
    QPoint dragStart;
    QPoint dragEnd;
};
