#include "KeyboardPageFrame.h"

#include "ModuleKeyboard.h"

#include <QButtonGroup>
#include <QFrame>
#include <QHBoxLayout>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace KeyboardPageFrame {

namespace {

constexpr int kColumnWidth = 168;
constexpr QSize kButtonSize{120, 32};
constexpr int kGap = 16;

const char* const kStyle = R"(
QFrame#frameT { background-color: #FFFFFF; border: 1px solid #EFEFEF; border-radius: 24px; }
QFrame#%1, QStackedWidget#stackedWidget { background-color: #F6F6F6; border-radius: 24px; }
QFrame#%1 QPushButton { background-color: #FFFFFF; color: #333333;
    border: 1px solid #E2E2E2; border-radius: 16px; font-size: 14px; padding: 0px; }
QFrame#%1 QPushButton:hover { border-color: #6329B6; color: #6329B6; }
QFrame#%1 QPushButton:checked { background-color: #6329B6; border-color: #6329B6;
    color: #FFFFFF; }
)";

} // namespace

Parts build(QWidget* page, DialogDeviceConnect* device, Clock* clock, QSize keyboardSize,
            const QString& columnName, const QString& groupName, const QStringList& buttonNames)
{
    Parts parts;
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 20);
    layout->setSpacing(kGap);

    parts.card = new QFrame(page);
    parts.card->setObjectName(QStringLiteral("frameT"));
    auto* topLayout = new QHBoxLayout(parts.card);
    topLayout->setContentsMargins(0, 4, 0, 0);
    parts.keyboard = new ModuleKeyboard(device, clock, parts.card);
    parts.keyboard->setObjectName(QStringLiteral("frameKeyboard"));
    parts.keyboard->setFixedSize(keyboardSize);
    topLayout->addWidget(parts.keyboard, 0, Qt::AlignCenter);
    layout->addWidget(parts.card);

    auto* frameB = new QFrame(page);
    frameB->setObjectName(QStringLiteral("frameB"));
    auto* bottomLayout = new QHBoxLayout(frameB);
    bottomLayout->setContentsMargins(0, 0, 0, 0);
    bottomLayout->setSpacing(kGap);

    parts.column = new QFrame(frameB);
    parts.column->setObjectName(columnName);
    parts.column->setFixedWidth(kColumnWidth);
    auto* columnLayout = new QVBoxLayout(parts.column);
    columnLayout->setContentsMargins(24, 24, 24, 24);
    columnLayout->setSpacing(14);
    parts.group = new QButtonGroup(page);
    parts.group->setObjectName(groupName);
    for (int id = 0; id < buttonNames.size(); ++id) {
        auto* button = new QPushButton(parts.column);
        button->setObjectName(buttonNames.at(id));
        button->setFixedSize(kButtonSize);
        button->setCheckable(true);
        button->setFocusPolicy(Qt::NoFocus);
        button->setCursor(Qt::PointingHandCursor);
        parts.group->addButton(button, id);
        columnLayout->addWidget(button);
    }
    columnLayout->addStretch(1);
    bottomLayout->addWidget(parts.column);

    parts.stack = new QStackedWidget(frameB);
    parts.stack->setObjectName(QStringLiteral("stackedWidget"));
    bottomLayout->addWidget(parts.stack, 1);
    layout->addWidget(frameB, 1);
    return parts;
}

QString styleSheet(const QString& columnName)
{
    return QString::fromLatin1(kStyle).arg(columnName);
}

} // namespace KeyboardPageFrame
