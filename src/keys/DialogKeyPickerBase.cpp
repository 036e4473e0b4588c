#include "DialogKeyPickerBase.h"

#include "KeyPickerLayout.h"
#include "KeyboardButton.h"

#include <QButtonGroup>
#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

namespace {

const char* const kDialogStyle =
    "QDialog { background-color: rgba(230, 230, 230, 0.9);  border: none; border-radius: 24px;}";
// The picker lies over a page whose own button style reaches into it: its buttons take no
// padding, and every kind of button below says its own size.
const char* const kCardStyle = R"(
QFrame#frameCard { background-color: #FFFFFF; border-radius: 24px; }
QPushButton { padding: 0px; }
QTabWidget::pane { border: none; }
QLabel#labelBlockTitle { color: #1A1A1A; font-size: 14px; font-weight: 600; }
QLabel[slot="true"] { background-color: #F6F6F6; border: 1px solid #E2E2E2; border-radius: 8px;
    color: #6329B6; font-size: 13px; font-weight: 600; min-width: 120px; min-height: 32px;
    padding: 0px 8px; }
QPushButton#pushButtonOK { background-color: #6329B6; color: #FFFFFF; border: none;
    border-radius: 16px; min-width: 96px; min-height: 32px; font-size: 14px; }
QPushButton#pushButtonOK:hover { background-color: #7A42CC; }
QPushButton#pushButtonCancel { background-color: #FFFFFF; color: #333333;
    border: 1px solid #E2E2E2; border-radius: 16px; min-width: 96px; min-height: 32px;
    font-size: 14px; }
QPushButton#pushButtonCancel:hover { border-color: #6329B6; color: #6329B6; }
)";
// The keys of both blocks; sizes count inside the border, so %1 is the key width less 2.
const char* const kKeyStyle = R"(
QPushButton { background-color: #FBFBFB; color: #1A1A1A; border: 1px solid #EAEAEA;
    border-radius: 8px; min-height: 32px; max-height: 32px; min-width: %1px; max-width: %1px;
    font-size: 12px; font-weight: 600; padding: 0px; }
QPushButton:hover { border-color: #6329B6; color: #6329B6; }
QPushButton:pressed { background-color: #6329B6; color: #FFFFFF; }
)";
// The dialog's own backdrop, as its style sheet gives it: a translucent window paints no
// background of its own.
const QColor kBackdrop(230, 230, 230, int(0.9 * 255));
constexpr int kBackdropRadius = 24;
const QString kEmptySlot = QStringLiteral("--");
constexpr int kKeySpacing = 6;

} // namespace

DialogKeyPickerBase::DialogKeyPickerBase(int width, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint), buttonGroup(new QButtonGroup(this)),
      keyWidth(width), frameCard(new QFrame(this))
{
    setAttribute(Qt::WA_TranslucentBackground);
    setStyleSheet(QLatin1String(kDialogStyle) + QLatin1String(kCardStyle));
    // Laid over the caller: the screen when there is none, else the caller's own rectangle.
    QRect area = QGuiApplication::primaryScreen()->geometry();
    if (parent) area = QRect(parent->mapToGlobal(QPoint(0, 0)), parent->frameGeometry().size());
    setGeometry(area);
    setFixedSize(area.size());

    buttonGroup->setObjectName(QStringLiteral("buttonGroup"));
    connect(buttonGroup, &QButtonGroup::buttonClicked, this, &DialogKeyPickerBase::onKeyButton);

    frameCard->setObjectName(QStringLiteral("frameCard"));
    auto* outer = new QVBoxLayout(this);
    outer->addWidget(frameCard, 0, Qt::AlignCenter);
}

QWidget* DialogKeyPickerBase::buildKeyBlocks(QWidget* owner, const QString& basicTitle,
                                             const QString& extendedTitle)
{
    auto* blocks = new QWidget(owner);
    auto* layout = new QVBoxLayout(blocks);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    const auto addBlock = [&](const QString& title, KeyPickerLayout::Block block) {
        auto* label = new QLabel(title, blocks);
        label->setObjectName(QStringLiteral("labelBlockTitle"));
        layout->addWidget(label);
        auto* keys = new QWidget(blocks);
        keys->setStyleSheet(QString::fromLatin1(kKeyStyle).arg(keyWidth - 2));
        auto* grid = new QGridLayout(keys);
        grid->setContentsMargins(0, 0, 0, 0);
        grid->setSpacing(kKeySpacing);
        int row = -1;
        int column = 0;
        int columns = 0;
        for (const KeyPickerLayout::PickerKey& key : KeyPickerLayout::kKeys) {
            if (key.block != block) continue;
            column = key.row == row ? column + 1 : 0;
            row = key.row;
            columns = std::max(columns, column + 1);
            auto* button = new QPushButton(QString::fromUtf8(key.legend), keys);
            button->setObjectName(KeyboardButton::nameOf(key.code));
            button->setFixedWidth(keyWidth);
            button->setCursor(Qt::PointingHandCursor);
            button->setFocusPolicy(Qt::NoFocus);
            buttonGroup->addButton(button, key.code);
            grid->addWidget(button, row, column);
        }
        grid->setColumnStretch(columns, 1);
        layout->addWidget(keys);
    };
    addBlock(basicTitle, KeyPickerLayout::Block::Basic);
    layout->addSpacing(4);
    addBlock(extendedTitle, KeyPickerLayout::Block::Extended);
    return blocks;
}

QWidget* DialogKeyPickerBase::buildSlotRow(QWidget* owner, const QString& title,
                                           const QString& okText)
{
    auto* row = new QWidget(owner);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    auto* label = new QLabel(title, row);
    label->setObjectName(QStringLiteral("labelSetTitle"));
    layout->addWidget(label);
    for (int i = 0; i < kSlots; ++i) {
        auto* slot = new QLabel(kEmptySlot, row);
        slot->setObjectName(QStringLiteral("labelSelect%1").arg(i + 1));
        slot->setProperty("slot", true);
        slot->setAlignment(Qt::AlignCenter);
        slot->setCursor(Qt::PointingHandCursor);
        slot->installEventFilter(this);
        labelSelect[i] = slot;
        layout->addWidget(slot);
    }
    layout->addStretch(1);
    pushButtonOK = new QPushButton(okText, row);
    pushButtonOK->setObjectName(QStringLiteral("pushButtonOK"));
    pushButtonCancel = new QPushButton(tr("取消"), row);
    pushButtonCancel->setObjectName(QStringLiteral("pushButtonCancel"));
    for (QPushButton* button : {pushButtonOK, pushButtonCancel}) {
        button->setCursor(Qt::PointingHandCursor);
        button->setFocusPolicy(Qt::NoFocus);
        layout->addWidget(button);
    }
    connect(pushButtonOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(pushButtonCancel, &QPushButton::clicked, this, &QDialog::reject);
    return row;
}

void DialogKeyPickerBase::clearSlots()
{
    result = KeyEntry();
    for (QLabel* slot : labelSelect)
        slot->setText(kEmptySlot);
}

void DialogKeyPickerBase::onKeyButton(QAbstractButton* button)
{
    keyPicked();
    const quint8 code = KeyboardButton::codeOf(button);
    for (int i = 0; i < kSlots; ++i) {
        if (result.bytes[i + 1] != 0) continue;
        result.bytes[i + 1] = code;
        labelSelect[i]->setText(button->text());
        return;
    }
}

bool DialogKeyPickerBase::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress) {
        for (int i = 0; i < kSlots; ++i) {
            if (watched != labelSelect[i]) continue;
            // Later slots stay where they are: the next pick fills this gap.
            result.bytes[i + 1] = 0;
            labelSelect[i]->setText(kEmptySlot);
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void DialogKeyPickerBase::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(kBackdrop);
    painter.drawRoundedRect(QRectF(rect()), kBackdropRadius, kBackdropRadius);
}
