#pragma once

#include "KeyEntry.h"

#include <QDialog>
#include <array>

class QAbstractButton;
class QButtonGroup;
class QFrame;
class QLabel;
class QPushButton;

// What both key pickers share: a dimmed, frameless dialog laid over the caller, a white card
// in its middle, the keys of the basic and extended blocks (pushButton_Hid%03d in
// buttonGroup), and three slots that fill bytes 1 to 3 of the result in the order of picking.
// A press on a slot empties it; the next pick fills the first gap.
class DialogKeyPickerBase : public QDialog
{
    Q_OBJECT

public:
    static constexpr int kSlots = 3;

    // Meaningful once exec() returned Accepted.
    KeyEntry entry() const { return result; }
    QLabel* slotLabel(int index) const { return labelSelect.at(index); }

protected:
    DialogKeyPickerBase(int keyWidth, QWidget* parent);

    // The card the picker fills.
    QFrame* card() const { return frameCard; }
    // The two key blocks under their titles; the keys join buttonGroup.
    QWidget* buildKeyBlocks(QWidget* owner, const QString& basicTitle,
                            const QString& extendedTitle);
    // The title, the three slots and the two buttons.
    QWidget* buildSlotRow(QWidget* owner, const QString& title, const QString& okText);
    // All four bytes 0 and every slot "--".
    void clearSlots();
    // Runs before a key of buttonGroup fills a slot.
    virtual void keyPicked() {}

    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

    KeyEntry result;
    QButtonGroup* buttonGroup;
    QPushButton* pushButtonOK = nullptr;
    QPushButton* pushButtonCancel = nullptr;

private:
    void onKeyButton(QAbstractButton* button);

    int keyWidth;
    QFrame* frameCard;
    std::array<QLabel*, kSlots> labelSelect{};
};
