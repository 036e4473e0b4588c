#include "VirtualKeyboardWidget.h"

#include "KeyNameTable.h"
#include "KeyboardButton.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace KeyWidgets {

VirtualKeyboard::VirtualKeyboard(QWidget* parent)
    : QFrame(parent), buttonGroup(new QButtonGroup(this))
{
    setObjectName(QStringLiteral("VirtualKeyboard"));
    buttonGroup->setObjectName(QStringLiteral("buttonGroup"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* scrollArea = new QScrollArea(this);
    scrollArea->setObjectName(QStringLiteral("scrollArea"));
    scrollArea->setWidgetResizable(true);
    auto* contents = new QWidget(scrollArea);
    contents->setObjectName(QStringLiteral("scrollAreaWidgetContents"));
    auto* grid = new QGridLayout(contents);
    for (int i = 0; i < kKeyCount; ++i) {
        const int code = kFirstCode + i;
        auto* button = new QPushButton(contents);
        button->setObjectName(KeyboardButton::nameOf(quint8(code)));
        const QString name = KeyNameByCode(quint16(code));
        button->setText(name.isEmpty() ? QStringLiteral("0x%1").arg(code, 2, 16, QLatin1Char('0'))
                                       : QString(name).replace(u'&', QLatin1String("&&")));
        button->setMinimumSize(48, 48);
        button->setMaximumSize(546, 48);
        buttonGroup->addButton(button, code);
        grid->addWidget(button, i / kColumns, i % kColumns);
    }
    scrollArea->setWidget(contents);
    layout->addWidget(scrollArea);
}

} // namespace KeyWidgets
