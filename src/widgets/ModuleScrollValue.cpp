#include "ModuleScrollValue.h"

#include "ui_ModuleScrollValue.h"

#include <QMouseEvent>
#include <QWheelEvent>

namespace {

// A start far from zero keeps position + slot positive however far the wheel turns back.
constexpr qint64 startTurns = 1'000'000'000;
constexpr int slotCount = 5;
constexpr int centreSlot = 2;

} // namespace

ModuleScrollValue::ModuleScrollValue(QWidget* parent)
    : QFrame(parent), ui(std::make_unique<Ui::ModuleScrollValue>())
{
    ui->setupUi(this);
    for (int slot = 0; slot < slotCount; ++slot)
        slotLabel(slot)->installEventFilter(this);
}

ModuleScrollValue::~ModuleScrollValue() = default;

QLabel* ModuleScrollValue::slotLabel(int slot) const
{
    QLabel* const labels[slotCount] = {ui->labelValue1, ui->labelTitleL2, ui->labelTitle1,
                                       ui->labelTitleL1, ui->labelValue5};
    return labels[slot];
}

void ModuleScrollValue::setValues(const QStringList& values)
{
    valueTexts = values;
    position = startTurns * valueTexts.size();
    refresh();
    if (!valueTexts.isEmpty()) emit onIndexChanged(int(index));
}

void ModuleScrollValue::setIndex(int i)
{
    position = i + valueTexts.size() * startTurns - centreSlot;
    refresh();
}

int ModuleScrollValue::currentIndex() const
{
    return valueTexts.isEmpty() ? -1 : int(index);
}

void ModuleScrollValue::refresh()
{
    const qint64 size = valueTexts.size();
    if (size == 0) {
        for (int slot = 0; slot < slotCount; ++slot)
            slotLabel(slot)->clear();
        index = 0;
        return;
    }
    for (int slot = 0; slot < slotCount; ++slot)
        slotLabel(slot)->setText(valueTexts.at((position + slot) % size));
    index = (position + centreSlot) % size;
}

void ModuleScrollValue::wheelEvent(QWheelEvent* event)
{
    event->accept();
    if (valueTexts.isEmpty()) return;
    position += event->angleDelta().y() > 0 ? -1 : 1;
    refresh();
    emit onIndexChanged(int(index));
}

bool ModuleScrollValue::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::MouseButtonRelease || valueTexts.isEmpty())
        return QFrame::eventFilter(watched, event);
    // The two texts above the centre turn the wheel back, the two below forward.
    constexpr qint64 steps[slotCount] = {-2, -1, 0, 1, 2};
    for (int slot = 0; slot < slotCount; ++slot) {
        if (watched != slotLabel(slot) || steps[slot] == 0) continue;
        position += steps[slot];
        refresh();
        emit onIndexChanged(int(index));
        return true;
    }
    return QFrame::eventFilter(watched, event);
}
