#include "FrameMacro.h"

#include "Clock.h"
#include "MacroItem.h"
#include "KeyEventCodes.h"
#include "MacroSquare.h"
#include "ModuleAddMacroSquare.h"
#include "ModuleMacroManager.h"

#include <QEvent>
#include <QGridLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QStyle>
#include <QVBoxLayout>

QList<MacroSquare*> FrameMacro::squareList;

namespace {

// A recorded mouse button (Qt's value) and the code the macro keeps for it.
struct MouseButtonCode
{
    int button;
    quint16 code;
};
constexpr MouseButtonCode kMouseButtons[] = {
    {.button = Qt::LeftButton, .code = MacroEvent::kMouseLeft},
    {.button = Qt::RightButton, .code = MacroEvent::kMouseRight},
    {.button = Qt::MiddleButton, .code = MacroEvent::kMouseMiddle},
};

constexpr quint16 kPositionScale = 256; // X in the high byte, Y in the low

void repolish(QWidget* widget)
{
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
}

} // namespace

FrameMacro::FrameMacro(ModuleMacroManager& macros, QWidget* parent, Clock* clock)
    : QFrame(parent), store(macros), clock(clock ? clock : QtClock::shared())
{
    setObjectName(QStringLiteral("FrameMacro"));
    setFocusPolicy(Qt::ClickFocus);
    ui.setupUi(this);
    ui.scrollAreaSquares->viewport()->installEventFilter(this);
    for (Macro* macro : store.macros())
        addRow(macro);

    connect(ui.pushButtonAddMacro, &QPushButton::clicked, this, &FrameMacro::onAddMacro);
    connect(ui.pushButtonRecord, &QPushButton::toggled, this, &FrameMacro::onRecordToggled);
    connect(ui.pushButtonInsert, &QPushButton::clicked, this, &FrameMacro::onInsert);
    connect(ui.pushButtonSetDelay, &QPushButton::clicked, this, &FrameMacro::onSetDelay);
    connect(ui.pushButtonDelete, &QPushButton::clicked, this, &FrameMacro::onDeleteSelected);
    connect(ui.pushButtonClear, &QPushButton::clicked, this, &FrameMacro::onClear);
    connect(ui.pushButtonSave, &QPushButton::clicked, this, &FrameMacro::onSave);

    retranslate();
    selectMacro(store.macros().value(0));
}

FrameMacro::~FrameMacro()
{
    // The squares go with the grid; the shared list must not keep them.
    squareList.clear();
}

QList<MacroItem*> FrameMacro::items() const
{
    QList<MacroItem*> rows;
    for (int i = 0; i < ui.listLayout->count(); ++i) {
        if (auto* item = qobject_cast<MacroItem*>(ui.listLayout->itemAt(i)->widget()))
            rows.append(item);
    }
    return rows;
}

// ---- the squares

void FrameMacro::addSquare(quint8 type, bool down, quint16 value, QString text)
{
    if (!loading && (!recording || !mouseAccepted)) return;
    if (type == MacroEvent::MouseButton) {
        for (const MouseButtonCode& entry : kMouseButtons)
            if (value == entry.button) value = entry.code;
        text = MacroSquare::buttonWord(value);
    }
    if (text.contains(u' ')) text = text.left(2);

    qsizetype at = insertAfter ? squareList.indexOf(insertAfter.data()) : -1;
    if (at < 0) at = squareList.size();
    MacroSquare* action = MacroSquare::acquire(ui.gridWidget);
    action->setEvent(type, down, value, text);
    MacroSquare* delay = MacroSquare::acquire(ui.gridWidget);
    delay->setEvent(MacroEvent::Delay, false, kDefaultDelay, tr("延迟"));
    for (MacroSquare* square : {action, delay}) {
        connect(square, &MacroSquare::onAction, this, &FrameMacro::onSquareAction,
                Qt::UniqueConnection);
        connect(square, &MacroSquare::valueEdited, this, &FrameMacro::onSave, Qt::UniqueConnection);
    }
    squareList.insert(at, action);
    squareList.insert(at + 1, delay);
    pendingDelay = delay;
    // While recording the file is written when the recording stops (and 20 ms after a dialog's
    // squares): a whole-file save per event would eat into the gaps being measured.
    if (!loading) rebuildGrid(recording ? Keep::Memory : Keep::File);
}

void FrameMacro::rebuildGrid(Keep keep)
{
    placeGrid();
    clock->singleShot(kScrollMs, this, [this] {
        QWidget* viewport = ui.scrollAreaSquares->viewport();
        const QSize hint = ui.gridLayout->sizeHint();
        ui.gridWidget->resize(qMax(viewport->width(), hint.width()),
                              qMax(viewport->height(), hint.height()));
        QScrollBar* bar = ui.scrollAreaSquares->verticalScrollBar();
        bar->setValue(bar->maximum());
    });
    if (keep == Keep::File)
        saveSquares();
    else if (keep == Keep::Memory)
        syncEvents();
    showSize();
}

void FrameMacro::placeGrid()
{
    // Squares that already stand at their index stay in the layout; the ones behind the first
    // change are laid out again. While recording that is the new pair alone.
    qsizetype same = 0;
    while (same < placed.size() && same < squareList.size() &&
           placed.at(same) == squareList.at(same))
        ++same;
    while (placed.size() > same) {
        delete ui.gridLayout->takeAt(int(placed.size() - 1));
        placed.removeLast();
    }
    for (qsizetype i = same; i < squareList.size(); ++i) {
        MacroSquare* square = squareList.at(i);
        ui.gridLayout->addWidget(square, int(i / kSquaresPerRow), int(i % kSquaresPerRow),
                                 Qt::AlignCenter);
        placed.append(square);
    }
    for (MacroSquare* square : std::as_const(squareList)) {
        square->setSelected(false);
        square->show();
    }
    ui.gridLayout->activate();
    ui.gridWidget->resize(ui.gridWidget->width(), ui.gridLayout->sizeHint().height());
    ui.labelEmpty->setVisible(squareList.isEmpty() && currentMacro);
}

void FrameMacro::syncEvents()
{
    if (!currentMacro) return;
    qDeleteAll(currentMacro->events);
    currentMacro->events.clear();
    for (const MacroSquare* square : std::as_const(squareList))
        store.AddEvent(currentMacro, square->type(), square->value(), square->down(),
                       square->text());
}

void FrameMacro::saveSquares()
{
    if (!currentMacro) return;
    syncEvents();
    store.SaveEvents(currentMacro);
}

void FrameMacro::showSize()
{
    const qsizetype packed = currentMacro ? ModuleMacroManager::PackMacro(currentMacro).size() : 0;
    // The keyboard also keeps the repeat count in front of the records.
    const qsizetype size = packed < 2 ? packed : packed + 2;
    ui.labelSize->setText(tr("占用") + QStringLiteral(": %1 / %2 ").arg(size).arg(kDeviceBytes) +
                          tr("字节"));
    ui.labelSize->setProperty("over", size > kDeviceBytes);
    repolish(ui.labelSize);
}

void FrameMacro::dropSquares()
{
    for (MacroSquare* square : std::as_const(squareList))
        square->release();
    squareList.clear();
    insertAfter = nullptr;
    pendingDelay = nullptr;
}

void FrameMacro::selectMacro(Macro* macro)
{
    // Recording stops (and saves the macro it was for) before another opens.
    if (recording) ui.pushButtonRecord->setChecked(false);
    currentMacro = macro;
    for (MacroItem* item : items())
        item->setSelected(item->macro() == macro);
    ui.labelMacroName->setText(macro ? macro->name : QString());

    loading = true;
    dropSquares();
    if (macro) {
        const QList<MacroEvent*>& events = macro->events;
        for (qsizetype i = 0; i < events.size(); i += 2) {
            const MacroEvent* action = events.at(i);
            addSquare(action->type, action->down, action->value, action->text);
            if (pendingDelay && i + 1 < events.size())
                pendingDelay->setValue(events.at(i + 1)->value);
        }
    }
    loading = false;
    pendingDelay = nullptr;
    insertAfter = nullptr;
    // Opening a macro writes nothing: a file that could not be read stays as it is on disk
    // until the user changes this macro.
    rebuildGrid(Keep::Nothing);
    updateTools();
}

// ---- recording

void FrameMacro::takeGap()
{
    const qint64 now = clock->elapsedMs();
    lastGap = quint16(now - gapStartMs); // cut to 16 bits, as the delay holds them
    if (pendingDelay) pendingDelay->setValue(lastGap);
    gapStartMs = now;
}

void FrameMacro::recordKey(QKeyEvent* event, bool down)
{
    event->accept();
    if (event->isAutoRepeat()) return; // a held key is one press
    const KeyEventCodes::RecordedKey key = KeyEventCodes::recordedKey(*event);
    if (key.code == 0) return; // a key the vocabulary has no code for adds nothing
    takeGap();
    addSquare(MacroEvent::Key, down, key.code, key.name);
}

bool FrameMacro::isRecordedButton(Qt::MouseButton button)
{
    for (const MouseButtonCode& entry : kMouseButtons)
        if (int(button) == entry.button) return true;
    return false;
}

void FrameMacro::recordMouse(Qt::MouseButton button, bool down)
{
    if (!isRecordedButton(button)) return;
    takeGap();
    addSquare(MacroEvent::MouseButton, down, quint16(button), QString());
}

bool FrameMacro::event(QEvent* event)
{
    if (recording) {
        switch (event->type()) {
        case QEvent::ShortcutOverride:
            event->accept(); // every key is the macro's while recording
            return true;
        case QEvent::KeyPress:
            // Tab and Backtab would move the focus before keyPressEvent sees them.
            keyPressEvent(static_cast<QKeyEvent*>(event));
            return true;
        default:
            break;
        }
    }
    return QFrame::event(event);
}

void FrameMacro::keyPressEvent(QKeyEvent* event)
{
    if (!recording) return QFrame::keyPressEvent(event);
    recordKey(event, true);
}

void FrameMacro::keyReleaseEvent(QKeyEvent* event)
{
    if (!recording) return QFrame::keyReleaseEvent(event);
    recordKey(event, false);
}

void FrameMacro::mousePressEvent(QMouseEvent* event)
{
    if (!recording) return QFrame::mousePressEvent(event);
    recordMouse(event->button(), true);
    event->accept();
}

void FrameMacro::mouseReleaseEvent(QMouseEvent* event)
{
    if (!recording) return QFrame::mouseReleaseEvent(event);
    recordMouse(event->button(), false);
    event->accept();
}

void FrameMacro::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (!recording) return QFrame::mouseDoubleClickEvent(event);
    event->accept();
    if (!isRecordedButton(event->button())) return;
    takeGap();
    const auto button = quint16(event->button());
    for (bool down : {true, false, true, false})
        addSquare(MacroEvent::MouseButton, down, button, QString());
    // The release that trails a double click, and any click right behind it, are not the
    // user's: they are swallowed for a moment.
    mouseAccepted = false;
    clock->singleShot(kDoubleClickQuietMs, this, [this] { mouseAccepted = true; });
}

void FrameMacro::hideEvent(QHideEvent* event)
{
    // Leaving the page (or closing the window) ends a recording, which saves it.
    if (recording && !event->spontaneous()) ui.pushButtonRecord->setChecked(false);
    QFrame::hideEvent(event);
}

void FrameMacro::onRecordToggled(bool checked)
{
    pendingDelay = nullptr;
    recording = checked;
    if (checked) {
        gapStartMs = clock->elapsedMs();
        setFocus(Qt::OtherFocusReason); // key events come to the page
    } else {
        saveSquares();
        showSize();
    }
    retranslate();
    updateTools();
}

// ---- the tools

void FrameMacro::onSquareAction(MacroSquare* from, uchar action)
{
    const qsizetype at = squareList.indexOf(from);
    if (at < 0) return;
    switch (action) {
    case MacroSquare::InsertHere:
        insertAfter = from;
        ui.pushButtonInsert->click();
        break;
    case MacroSquare::DeleteThis:
        // An action goes with the delay behind it; a delay offers no deletion of its own.
        if (from->type() == MacroEvent::Delay) return;
        for (int n = 0; n < 2 && at < squareList.size(); ++n)
            squareList.takeAt(at)->release();
        rebuildGrid();
        break;
    default:
        break;
    }
}

void FrameMacro::onInsert()
{
    if (!currentMacro || recording) {
        insertAfter = nullptr;
        return;
    }
    ModuleAddMacroSquare* dialog = ModuleAddMacroSquare::instance(this);
    connect(dialog, &QDialog::finished, this, &FrameMacro::onInsertFinished, Qt::UniqueConnection);
    dialog->openFresh();
}

void FrameMacro::onInsertFinished(int result)
{
    const ModuleAddMacroSquare* dialog = ModuleAddMacroSquare::instance(this);
    if (result == QDialog::Accepted && currentMacro) {
        recording = true; // lets the dialog's squares through the one adding path
        switch (dialog->choice()) {
        case ModuleAddMacroSquare::KeyChoice:
            if (dialog->keyCode() != 0) {
                addSquare(MacroEvent::Key, true, dialog->keyCode(), dialog->keyText());
                addSquare(MacroEvent::Key, false, dialog->keyCode(), dialog->keyText());
            }
            break;
        case ModuleAddMacroSquare::MouseChoice:
            for (int button : dialog->mouseButtons()) {
                addSquare(MacroEvent::MouseButton, true, quint16(button), QString());
                addSquare(MacroEvent::MouseButton, false, quint16(button), QString());
            }
            break;
        case ModuleAddMacroSquare::PositionChoice:
            addSquare(MacroEvent::MousePosition, false,
                      quint16(dialog->positionX() * kPositionScale + dialog->positionY()),
                      QString());
            break;
        default:
            break;
        }
    }
    recording = false;
    loading = false;
    pendingDelay = nullptr;
    insertAfter = nullptr;
    clock->singleShot(kInsertSaveMs, this, [this] { onSave(); });
}

void FrameMacro::onSetDelay()
{
    const auto delay = quint16(ui.spinBoxDelay->value());
    for (MacroSquare* square : std::as_const(squareList))
        if (square->type() == MacroEvent::Delay) square->setValue(delay);
    onSave();
}

void FrameMacro::onDeleteSelected()
{
    // From the end, a pair at a time, so that the indices ahead stay valid.
    for (qsizetype i = (squareList.size() - 1) / 2 * 2; i >= 0; i -= 2) {
        MacroSquare* action = squareList.at(i);
        if (!action->isSelected() || action->type() == MacroEvent::Delay) continue;
        for (int n = 0; n < 2 && i < squareList.size(); ++n)
            squareList.takeAt(i)->release();
    }
    rebuildGrid();
}

void FrameMacro::onClear()
{
    dropSquares();
    rebuildGrid();
}

void FrameMacro::onSave()
{
    saveSquares();
    showSize();
}

// ---- the list

MacroItem* FrameMacro::addRow(Macro* macro)
{
    auto* item = new MacroItem(macro, ui.scrollAreaList->widget());
    ui.listLayout->insertWidget(ui.listLayout->count() - 1, item); // above the stretch
    connect(item, &MacroItem::onOperation, this, &FrameMacro::onItemOperation);
    return item;
}

void FrameMacro::onAddMacro()
{
    Macro* macro = store.AddMacro();
    if (!macro) return; // the store is full
    MacroItem* item = addRow(macro);
    // Saved at once, so that the new macro is still there at the next start.
    store.SaveHeader();
    ui.scrollAreaList->ensureWidgetVisible(item);
    if (!currentMacro) selectMacro(macro);
}

void FrameMacro::onItemOperation(int operation, QWidget* from)
{
    auto* item = qobject_cast<MacroItem*>(from);
    if (!item) return;
    Macro* macro = item->macro();
    switch (operation) {
    case MacroItem::Select:
        selectMacro(macro);
        break;
    case MacroItem::Delete:
        ui.listLayout->removeWidget(item);
        item->hide();
        item->deleteLater(); // it is still in its own click
        if (macro == currentMacro) selectMacro(nullptr);
        store.RemoveMacro(macro);
        break;
    case MacroItem::Rename:
        macro->name = item->text();
        store.SaveHeader();
        if (macro == currentMacro) ui.labelMacroName->setText(macro->name);
        break;
    default:
        break;
    }
}

// ---- look

void FrameMacro::updateTools()
{
    const bool open = currentMacro != nullptr;
    ui.pushButtonRecord->setEnabled(open);
    for (QWidget* tool :
         {static_cast<QWidget*>(ui.pushButtonInsert), static_cast<QWidget*>(ui.pushButtonDelete),
          static_cast<QWidget*>(ui.pushButtonClear), static_cast<QWidget*>(ui.pushButtonSetDelay),
          static_cast<QWidget*>(ui.spinBoxDelay), static_cast<QWidget*>(ui.pushButtonSave)})
        tool->setEnabled(open && !recording);
    ui.labelEmpty->setVisible(squareList.isEmpty() && open);
}

void FrameMacro::retranslate()
{
    ui.retranslateUi();
    ui.pushButtonRecord->setText(recording ? tr("停止录制") : tr("开始录制"));
    ui.pushButtonRecord->setIcon(QIcon(recording
                                           ? QStringLiteral(":/images/macropage/stop-light.png")
                                           : QStringLiteral(":/images/macropage/record.png")));
    showSize();
}

void FrameMacro::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) retranslate();
    QFrame::changeEvent(event);
}

bool FrameMacro::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == ui.scrollAreaSquares->viewport() && event->type() == QEvent::Resize) {
        const QRect area = ui.scrollAreaSquares->viewport()->rect();
        ui.labelEmpty->setGeometry(area.adjusted(40, 0, -40, 0));
        ui.gridWidget->resize(qMax(area.width(), ui.gridLayout->sizeHint().width()),
                              qMax(area.height(), ui.gridLayout->sizeHint().height()));
    }
    return QFrame::eventFilter(watched, event);
}
