#include "ModuleAddMacroSquare.h"

#include "KeyEventCodes.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

constexpr int kMaxPosition = 127;
// The mouse buttons' values as the page stores a recorded button (Qt's: left, right, middle).
constexpr int kLeft = 1;
constexpr int kRight = 2;
constexpr int kMiddle = 4;

const char* const kStyle = R"(
ModuleAddMacroSquare { background-color: #FFFFFF; }
QLabel#labelTitle { font-size: 16px; font-weight: 600; color: #1A1A1A; }
QRadioButton, QCheckBox, QLabel { font-size: 14px; color: #333333; spacing: 8px; }
QRadioButton::indicator { width: 14px; height: 14px; border-radius: 9px;
    border: 2px solid #C8C8D0; background-color: #FFFFFF; }
QRadioButton::indicator:checked { border: 5px solid #6329B6; width: 8px; height: 8px; }
QCheckBox::indicator { width: 16px; height: 16px; border-radius: 5px;
    border: 2px solid #C8C8D0; background-color: #FFFFFF; }
QCheckBox::indicator:checked { border: none; width: 20px; height: 20px;
    image: url(:/images/macropage/checked.png); }
QLineEdit, QSpinBox { min-height: 32px; border: 1px solid #E2E2E2; border-radius: 8px;
    padding: 0px 10px; font-size: 14px; background-color: #FAFAFA; }
QLineEdit:focus, QSpinBox:focus { border-color: #6329B6; }
QPushButton { font-size: 14px; min-height: 34px; min-width: 96px; border-radius: 17px;
    border: 1px solid #E2E2E2; background-color: #FFFFFF; color: #333333; }
QPushButton:hover { border-color: #6329B6; color: #6329B6; }
QPushButton#pushButtonOK { background-color: #6329B6; border-color: #6329B6; color: #FFFFFF; }
QPushButton#pushButtonOK:hover { background-color: #7440C4; }
)";

} // namespace

ModuleAddMacroSquare* ModuleAddMacroSquare::instance(QWidget* parent)
{
    static QPointer<ModuleAddMacroSquare> dialog;
    if (!dialog) dialog = new ModuleAddMacroSquare(parent);
    return dialog;
}

ModuleAddMacroSquare::ModuleAddMacroSquare(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("ModuleAddMacroSquare"));
    setModal(true);
    setStyleSheet(QLatin1String(kStyle));
    setFixedWidth(520);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 24, 28, 24);
    layout->setSpacing(18);

    labelTitle = new QLabel(this);
    labelTitle->setObjectName(QStringLiteral("labelTitle"));
    layout->addWidget(labelTitle);

    auto* choices = new QHBoxLayout;
    choices->setSpacing(24);
    buttonGroupChoice = new QButtonGroup(this);
    radioButtonKey = new QRadioButton(this);
    radioButtonKey->setObjectName(QStringLiteral("radioButtonKey"));
    radioButtonMouse = new QRadioButton(this);
    radioButtonMouse->setObjectName(QStringLiteral("radioButtonMouse"));
    radioButtonPos = new QRadioButton(this);
    radioButtonPos->setObjectName(QStringLiteral("radioButtonPos"));
    int id = KeyChoice;
    for (QRadioButton* radio : {radioButtonKey, radioButtonMouse, radioButtonPos}) {
        buttonGroupChoice->addButton(radio, id++);
        choices->addWidget(radio);
    }
    choices->addStretch(1);
    layout->addLayout(choices);

    stackedWidget = new QStackedWidget(this);
    stackedWidget->addWidget(buildKeyPage());
    stackedWidget->addWidget(buildMousePage());
    stackedWidget->addWidget(buildPositionPage());
    stackedWidget->setFixedHeight(76);
    layout->addWidget(stackedWidget);
    connect(buttonGroupChoice, &QButtonGroup::idClicked, stackedWidget,
            &QStackedWidget::setCurrentIndex);
    radioButtonKey->setChecked(true);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    pushButtonCancel = new QPushButton(this);
    pushButtonCancel->setObjectName(QStringLiteral("pushButtonCancel"));
    pushButtonOK = new QPushButton(this);
    pushButtonOK->setObjectName(QStringLiteral("pushButtonOK"));
    for (QPushButton* button : {pushButtonCancel, pushButtonOK}) {
        button->setAutoDefault(false);
        button->setFocusPolicy(Qt::NoFocus);
        button->setCursor(Qt::PointingHandCursor);
        buttons->addWidget(button);
    }
    layout->addLayout(buttons);
    connect(pushButtonOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(pushButtonCancel, &QPushButton::clicked, this, &QDialog::reject);
    retranslate();
}

QWidget* ModuleAddMacroSquare::buildKeyPage()
{
    auto* page = new QWidget(this);
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    lineEditKey = new QLineEdit(page);
    lineEditKey->setObjectName(QStringLiteral("lineEditKey"));
    lineEditKey->setReadOnly(true); // filled by the key caught, not typed
    lineEditKey->installEventFilter(this);
    layout->addWidget(lineEditKey);
    layout->addStretch(1);
    return page;
}

QWidget* ModuleAddMacroSquare::buildMousePage()
{
    auto* page = new QWidget(this);
    auto* layout = new QHBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(24);
    checkBox1 = new QCheckBox(page);
    checkBox1->setObjectName(QStringLiteral("checkBox1"));
    checkBox2 = new QCheckBox(page);
    checkBox2->setObjectName(QStringLiteral("checkBox2"));
    checkBox3 = new QCheckBox(page);
    checkBox3->setObjectName(QStringLiteral("checkBox3"));
    for (QCheckBox* box : {checkBox1, checkBox2, checkBox3})
        layout->addWidget(box, 0, Qt::AlignTop);
    layout->addStretch(1);
    return page;
}

QWidget* ModuleAddMacroSquare::buildPositionPage()
{
    auto* page = new QWidget(this);
    auto* layout = new QHBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    labelX = new QLabel(page);
    labelY = new QLabel(page);
    spinBoxX = new QSpinBox(page);
    spinBoxX->setObjectName(QStringLiteral("spinBoxX"));
    spinBoxY = new QSpinBox(page);
    spinBoxY->setObjectName(QStringLiteral("spinBoxY"));
    for (QSpinBox* spin : {spinBoxX, spinBoxY}) {
        spin->setRange(0, kMaxPosition);
        spin->setButtonSymbols(QAbstractSpinBox::NoButtons);
        spin->setFixedWidth(96);
    }
    layout->addWidget(labelX);
    layout->addWidget(spinBoxX);
    layout->addSpacing(20);
    layout->addWidget(labelY);
    layout->addWidget(spinBoxY);
    layout->addStretch(1);
    auto* column = new QWidget(this);
    auto* columnLayout = new QVBoxLayout(column);
    columnLayout->setContentsMargins(0, 0, 0, 0);
    columnLayout->addWidget(page);
    columnLayout->addStretch(1);
    return column;
}

int ModuleAddMacroSquare::choice() const
{
    return buttonGroupChoice->checkedId();
}

QList<int> ModuleAddMacroSquare::mouseButtons() const
{
    QList<int> buttons;
    if (checkBox1->isChecked()) buttons.append(kLeft);
    if (checkBox2->isChecked()) buttons.append(kMiddle);
    if (checkBox3->isChecked()) buttons.append(kRight);
    return buttons;
}

int ModuleAddMacroSquare::positionX() const
{
    return spinBoxX->value();
}

int ModuleAddMacroSquare::positionY() const
{
    return spinBoxY->value();
}

void ModuleAddMacroSquare::openFresh()
{
    caughtCode = 0;
    caughtText.clear();
    lineEditKey->clear();
    open();
    if (choice() == KeyChoice) lineEditKey->setFocus();
}

bool ModuleAddMacroSquare::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == lineEditKey) {
        if (event->type() == QEvent::ShortcutOverride) {
            event->accept(); // every key is caught here, Escape and Tab included
            return true;
        }
        if (event->type() == QEvent::KeyPress) {
            const auto* key = static_cast<QKeyEvent*>(event);
            if (!key->isAutoRepeat()) {
                const KeyEventCodes::RecordedKey caught = KeyEventCodes::recordedKey(*key);
                caughtCode = caught.code;
                caughtText = caught.name;
                lineEditKey->setText(caughtText);
            }
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void ModuleAddMacroSquare::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) retranslate();
    QDialog::changeEvent(event);
}

void ModuleAddMacroSquare::retranslate()
{
    setWindowTitle(tr("插入"));
    labelTitle->setText(tr("请选择添加宏事件类型"));
    radioButtonKey->setText(tr("键盘按键"));
    radioButtonMouse->setText(tr("鼠标按键"));
    radioButtonPos->setText(tr("鼠标位置"));
    lineEditKey->setPlaceholderText(tr("请按下按键......"));
    checkBox1->setText(tr("左键"));
    checkBox2->setText(tr("中键"));
    checkBox3->setText(tr("右键"));
    labelX->setText(tr("X(0 ~ 127):"));
    labelY->setText(tr("Y(0 ~ 127):"));
    pushButtonOK->setText(tr("确定"));
    pushButtonCancel->setText(tr("取消"));
}
