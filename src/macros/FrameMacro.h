#pragma once

#include "FrameMacroForm.h"

#include <QFrame>
#include <QList>
#include <QPointer>

class Clock;
class MacroItem;
class MacroSquare;
class ModuleMacroManager;
struct Macro;

// The macro page: the list of macros on the left; on the right the open macro as a grid of
// squares, an action and its delay in every pair, with tools to record, insert, delete and set
// delays. It edits the store only: a macro reaches a keyboard when a key is given it.
class FrameMacro : public QFrame
{
    Q_OBJECT

public:
    static constexpr int kSquaresPerRow = 12;
    static constexpr quint16 kDefaultDelay = 50;
    static constexpr int kDeviceBytes = 256; // shown beside the size, never enforced
    static constexpr int kDoubleClickQuietMs = 200;
    static constexpr int kInsertSaveMs = 20;
    static constexpr int kScrollMs = 10;

    // clock null means real time; tests pass a manual one.
    FrameMacro(ModuleMacroManager& macros, QWidget* parent = nullptr, Clock* clock = nullptr);
    ~FrameMacro() override;

    // The squares of the open macro, in event order; shared by every page, as the squares are.
    static const QList<MacroSquare*>& squares() { return squareList; }
    Macro* current() const { return currentMacro; }
    bool isRecording() const { return recording; }
    // Opens a macro of the store; null closes the grid.
    void selectMacro(Macro* macro);
    // The rows of the list, in the store's order.
    QList<MacroItem*> items() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    // The one way a square comes in, from recording, the dialog or the store.
    void addSquare(quint8 type, bool down, quint16 value, QString text);
    // What a rebuild keeps of the squares: nothing (a macro just opened), the macro in memory
    // (while recording), or its file too.
    enum class Keep { Nothing, Memory, File };
    void rebuildGrid(Keep keep = Keep::File);
    void placeGrid();
    // The macro's events from the squares, and then (saveSquares) its file.
    void syncEvents();
    void saveSquares();
    void showSize();
    void dropSquares();
    // Takes the gap since the last recorded event into the pending delay.
    void takeGap();
    void recordKey(QKeyEvent* event, bool down);
    void recordMouse(Qt::MouseButton button, bool down);
    static bool isRecordedButton(Qt::MouseButton button);

    MacroItem* addRow(Macro* macro);
    void onAddMacro();
    void onItemOperation(int operation, QWidget* from);
    void onSquareAction(MacroSquare* from, uchar action);
    void onRecordToggled(bool checked);
    void onInsert();
    void onInsertFinished(int result);
    void onSetDelay();
    void onDeleteSelected();
    void onClear();
    void onSave();
    void retranslate();
    void updateTools();

    static QList<MacroSquare*> squareList;
    QList<MacroSquare*> placed; // what the grid layout holds, by its item index

    ModuleMacroManager& store;
    Clock* clock;
    FrameMacroForm ui;

    bool recording = false;
    bool mouseAccepted = true;
    bool loading = false;
    QPointer<MacroSquare> insertAfter;
    QPointer<MacroSquare> pendingDelay;
    Macro* currentMacro = nullptr;
    qint64 gapStartMs = 0; // on the clock: when the timer of the gaps was last restarted
    quint16 lastGap = 0;
};
