#include "DialogVKPicker.h"

#include <QFrame>
#include <QVBoxLayout>

namespace {
constexpr int kKeyWidth = 40;
}

DialogVKPicker::DialogVKPicker(QWidget* parent) : DialogKeyPickerBase(kKeyWidth, parent)
{
    setObjectName(QStringLiteral("DialogVKPicker"));
    auto* frameVK = new QFrame(card());
    frameVK->setObjectName(QStringLiteral("frameVK"));
    auto* inner = new QVBoxLayout(frameVK);
    inner->setContentsMargins(0, 0, 0, 0);
    inner->addWidget(buildKeyBlocks(frameVK, tr("基本字符"), tr("拓展字符")));

    auto* layout = new QVBoxLayout(card());
    layout->setContentsMargins(28, 24, 28, 24);
    layout->setSpacing(18);
    layout->addWidget(frameVK);
    layout->addWidget(buildSlotRow(card(), tr("组合键："), tr("确认")));
}
